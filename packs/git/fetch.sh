# fetch.sh UNITS [LABEL]: brings the whole folder to the newest state, or these files alone to that
# of a label: a tag, a commit, or a version as the listing shows it.
. "${0%/*}/common.sh"
. "${0%/*}/newest.sh"

units=$1 wanted=${2:-}

# content_of FILE: the object with its content in the wanted state.
content_of() {
  case $(git cat-file -t "$wanted" 2>/dev/null) in
    blob) git rev-parse -q --verify "$wanted" ;;
    commit | tag) git rev-parse -q --verify "$wanted:./$(below "$1")" ||
      fail "'$1' is not in '$wanted'." ;;
    *) fail "There is no label or revision '$wanted' in the archive." ;;
  esac
}

# replace FILE: puts the wanted content in its place in one step.
replace() {
  object=$(content_of "$1") || exit
  if [ -e "$1" ] && ! is_archived "$1"; then
    fail "'$1' has local changes; check it in, or undo them first."
  fi
  mkdir -p "${1%/*}"
  new=$(mktemp "${1%/*}/.veldra-fetch-XXXXXX")
  git cat-file --filters --path="$(below "$1")" "$object" >"$new" && chmod 444 "$new" &&
    mv -f -- "$new" "$1" || {
    rm -f "$new"
    exit 1
  }
}

open_repository
receive || give_up
if [ -z "$wanted" ]; then
  bring_newest
  in_archive "$units"
  restore "$units"
else
  [ -z "$remote" ] || run git fetch -q --tags "$remote" || give_up
  each "$units" | tr '\000' '\n' | while read -r file; do replace "$file"; done
fi

# fetch.sh UNITS [--to=FILE] [LABEL]: brings the whole folder to the newest state, or these files alone
# to that of a label: a tag, a commit, or a version as the listing shows it. With --to the state of a
# single unit goes there, and nothing here changes.
. "${0%/*}/common.sh"
. "${0%/*}/newest.sh"

read_fetch "$@"

# check_label: a few letters that are neither a tag nor a branch git would take for the beginning of an
# object's number. Among ten thousands there is soon one, be it of another file.
check_label() {
  case $wanted in
    *[!0-9a-fA-F]* | ????????????*) return ;;
    *[a-fA-F]*) case $wanted in ???????*) return ;; esac ;;
  esac
  [ -n "$(git rev-parse --symbolic-full-name "$wanted" 2>/dev/null)" ] || no_label
}

no_label() {
  fail "There is no label or revision '$wanted' in the archive."
}

# content_of FILE: the object with its content in the wanted state.
content_of() {
  case $(git cat-file -t "$wanted" 2>/dev/null) in
    blob) git rev-parse -q --verify "$wanted" ;;
    commit | tag) git rev-parse -q --verify "$wanted:./$(relative "$1")" ||
      fail "'$1' is not in '$wanted': it was added, moved or renamed later." ;;
    *) no_label ;;
  esac
}

# fetch_label FILE
fetch_label() {
  object=$(content_of "$1") || exit
  if [ -e "$1" ] && ! is_archived "$1"; then
    fail "'$1' has local changes; check it in, or undo them first."
  fi
  replace "$1" git cat-file --filters --path="$(relative "$1")" "$object"
}

open_repository
receive || give_up
if [ -n "$wanted" ]; then
  [ -z "$remote" ] || run git fetch -q --tags "$remote" || give_up
  check_label
fi
if [ -n "$to" ]; then
  wanted=${wanted:-$tip}
  object=$(content_of "$units") || exit
  git cat-file --filters --path="$(relative "$units")" "$object" >"$to"
elif [ -z "$wanted" ]; then
  bring_newest
  in_archive "$units"
  restore "$units"
else
  lines "$units" | while IFS= read -r unit; do fetch_label "$unit"; done
fi

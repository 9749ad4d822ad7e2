# fetch.sh UNITS [--to=FILE] [LABEL]: brings the whole folder to the newest state, or these files alone
# to that of a label: a tag or any other name of a commit. With --to the state of a single unit goes
# there, and nothing here changes.
. "${0%/*}/common.sh"
. "${0%/*}/newest.sh"

units=$1
shift
to=
case ${1:-} in
  --to=*)
    to=${1#--to=}
    shift
    ;;
esac
wanted=${1:-}

# fetch_label FILE
fetch_label() {
  file=$(pwd -P)/$(relative "$1")
  if [ -n "$(hg status -mau -- "$file" 2>/dev/null)" ] && ! is_fetched "$file"; then
    fail "'$file' has local changes; check it in, or undo them first."
  fi
  replace "$file" hg cat -r "$commit" -- "$file" || fail "'$file' is not in '$wanted'."
  sum_of "$file" >>"$(remembered)"
}

open_repository
receive || give_up
if [ -n "$to" ]; then
  hg cat -r "${wanted:-${tip:-$base}}" -- "$(pwd -P)/$(relative "$units")" >"$to"
elif [ -z "$wanted" ]; then
  bring_newest
  restore "$units"
  in_archive "$units"
else
  commit=$(hg log -r "$wanted" -l 1 -T '{node}' 2>/dev/null || :)
  [ -n "$commit" ] ||
    fail "There is no label or revision '$wanted' in the archive."
  lines "$units" | while read -r unit; do fetch_label "$unit"; done
fi

# fetch.sh UNITS [--to=FILE] [LABEL]: brings the whole folder to the newest state, or these files alone
# to that of a label: a tag or any other name of a commit. With --to the state of a single unit goes
# there, and nothing here changes.
. "${0%/*}/common.sh"
. "${0%/*}/newest.sh"

read_fetch "$@"

# find_commit LABEL: sets $commit to what a tag, a branch, a number or the beginning of a long one
# names. A number that does not exist, or a few letters, hg would take for such a beginning: as soon as
# there are some hundred commits, a slip of the pen would mean any of them.
find_commit() {
  names=$(hg log -r "$1" -l 1 -T '{node} {rev} {tags} {bookmarks} {branch} ' 2>/dev/null || :)
  commit=${names%% *}
  case $1 in
    *[!0-9a-fA-F]* | ????????????*) return ;;
    *[a-fA-F]*) case $1 in ????*) return ;; esac ;;
  esac
  case " $names" in
    *" $1 "*) ;;
    *) commit= ;;
  esac
}

# fetch_label FILE
fetch_label() {
  file=$(pwd -P)/$(relative "$1")
  if [ -n "$(hg status -mau -- "$file" 2>/dev/null)" ] && ! is_fetched "$file"; then
    fail "'$file' has local changes; check it in, or undo them first."
  fi
  replace "$file" hg cat -r "$commit" -- "$file" ||
    fail "'$file' is not in '$wanted': it was added, moved or renamed later."
  sum_of "$file" >>"$(remembered)"
}

open_repository
receive || give_up
commit=${tip:-$base}
if [ -n "$wanted" ]; then
  find_commit "$wanted"
  [ -n "$commit" ] || fail "There is no label or revision '$wanted' in the archive."
fi
if [ -n "$to" ]; then
  hg cat -r "$commit" -- "$(pwd -P)/$(relative "$units")" >"$to"
elif [ -z "$wanted" ]; then
  bring_newest
  restore "$units"
  in_archive "$units"
else
  lines "$units" | while IFS= read -r unit; do fetch_label "$unit"; done
fi

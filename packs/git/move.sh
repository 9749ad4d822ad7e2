# move.sh OLD NEW OLDFILE NEWFILE [COMMENTFILE]: gives a file, or a directory with all below it, another
# place. For a directory OLDFILE lies in it, and becomes NEWFILE in the new one. Changes of that file
# are checked in with the move; other changed files are refused.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"
. "${0%/*}/locks.sh"
. "${0%/*}/../common/moving.sh"

move_files() {
  git mv -- "$1" "$2"
}

changed_below() {
  git diff --relative --name-only -z HEAD -- "$1" | tr '\000' '\n'
}

# both: the list of what is committed.
both() {
  printf '%s\n' "$old_place" "$new_place" >"$work/both"
  printf '@%s\n' "$work/both"
}

# commit_move: as `print_commit`. Git follows a file by its content, so one that has changed, too, takes its
# new place in a commit of its own first; in an index of its own, because the file stays as it is.
commit_move() {
  changed=$(git diff --name-only -- "$new_file")
  [ -n "$changed" ] || {
    print_commit "$(both)" "$comment"
    return
  }
  git ls-files -s -z --full-name -- "$new_place" >"$work/moved"
  (
    export GIT_INDEX_FILE="$work/index"
    git read-tree HEAD && git rm -q -r --cached -- "$old_place" &&
      git update-index -z --index-info <"$work/moved" && print_commit '' "$comment"
  ) && print_commit "$new_file" "$comment"
}

# move_locks: what else is checked out in a directory stays so.
move_locks() {
  has_locks || return 0
  top=$(git rev-parse --show-prefix)
  old=$top$(relative "$old_place")
  ours | among "$old_place" | cut -f 1 | grep -v -x -F -e "$top$(relative "$old_file")" >"$work/held" || :
  give_locks "$old_place"
  while IFS= read -r path; do run git lfs lock -- "$new_place${path#"$old"}" || :; done <"$work/held"
}

read_move "$@"
read_options "${5:-}"
begin_commit "$1"
in_archive "$old_place"
# What has the state of a label goes with its newest one.
restore "$old_place"
check_move
refuse_locked "$old_place"
move_there || give_up
if run commit_move && tag_and_push; then
  [ ! -f "$new_file" ] || chmod a-w -- "$new_file"
  move_locks
  exit
fi
reason=$answer
[ "$(git rev-parse HEAD)" = "$old" ] || git reset -q --soft "$old"
move_back
on "$(both)" reset -q || :
answer=$reason
refuse_push

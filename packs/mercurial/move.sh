# move.sh OLD NEW OLDFILE NEWFILE [COMMENTFILE]: gives a file, or a directory with all below it, another
# place. For a directory OLDFILE lies in it, and becomes NEWFILE in the new one. Changes of that file
# are checked in with the move; other changed files are refused.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"
. "${0%/*}/../common/moving.sh"

move_files() {
  mv -- "$1" "$2" && hg rename -q --after -- "$1" "$2"
}

changed_below() {
  hg status -mardn -- "$1"
}

read_move "$@"
read_options "${5:-}"
begin_commit "$1"
# What has the state of a label goes with its newest one.
restore_older "$old_place"
[ -d "$old_place" ] || in_archive "$old_place"
check_move
move_there || give_up
printf '%s\n' "$old_place" "$new_place" >"$work/both"
if commit "@$work/both" "$comment" && tag_and_push; then
  [ ! -f "$new_file" ] || chmod a-w -- "$new_file"
  exit
fi
reason=$answer
# The records are made anew, so only the files are moved.
move_files() {
  mv -- "$1" "$2"
}
move_back
take_back
answer=$reason
refuse_push

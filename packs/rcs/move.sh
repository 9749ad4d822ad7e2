# move.sh ARCHIVE PROJECT OLD NEW OLDFILE NEWFILE [COMMENTFILE]: gives a file, or a directory with all
# below it, another place; the archive files move along. For a directory OLDFILE lies in it, and
# becomes NEWFILE in the new one. Changes of that file are checked in afterwards; other changed files
# are refused.
. "${0%/*}/common.sh"
. "${0%/*}/comment.sh"
. "${0%/*}/places.sh"

old=$3 new=$4 old_file=$5 new_file=$6 comment=${7:-}
name_places "$1" "$2"

# move FROM TO: fails without having moved when something is in the way.
move() {
  [ "$1" != "$2" ] || return 0
  [ ! -e "$2" ] || fail "'$2' exists already; choose another name or place."
  mkdir -p "${2%/*}" && mv -- "$1" "$2"
}

# move_both FROM TO: a file of the project with its archive file.
move_both() {
  [ "$1" != "$2" ] || return 0
  from=$(archive_file "$1") && to=$(archive_file "$2") || exit
  move "$from" "$to" || exit
  (move "$1" "$2") || {
    mv -- "$to" "$from"
    exit 1
  }
}

own=$(archive_file "$old_file") || exit
[ -f "$own" ] || fail "'$own' does not exist; the file is not in the archive."
changed=yes
! is_unchanged "$own" "$old_file" || changed=no
if [ -d "$old" ]; then
  place=$(archive_directory "$old") && new_place=$(archive_directory "$new") || exit
  archive_files "$place" | while read -r file; do
    refuse_held "$file"
    worked_on=$(working_file "$file" "$place" "$old")
    [ "$file" = "$own" ] || is_unchanged "$file" "$worked_on" ||
      fail "'$worked_on' has local changes; check it in, or undo them first."
  done || exit
  [ "$place" = "$old" ] || move "$place" "$new_place" || exit
  (move "$old" "$new") || {
    [ "$place" = "$old" ] || mv -- "$new_place" "$place"
    exit 1
  }
  move_both "$new/${old_file##*/}" "$new_file"
else
  refuse_held "$own"
  move_both "$old" "$new"
fi

name_files "$(archive_file "$new_file")" "${new_file%/*}/"
if [ "$changed" = yes ]; then
  check_in "$comment" -u
else
  # The keywords tell the new name. A lock is given back.
  chmod a-w "$working" && co -q -u "$archived" "$working"
fi

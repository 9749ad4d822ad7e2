# Sourced by the helpers that move. The pack provides
#   move_files OLD NEW     moves a file or a directory, under control and on disk
#   changed_below PLACE    prints the changed files there, relative to this folder

# read_move OLD NEW OLDFILE NEWFILE: sets $old_place, $new_place, $old_file, $new_file, and $work, a
# folder that goes with the helper.
read_move() {
  old_place=$1 new_place=$2 old_file=$3 new_file=$4
  open_work
}

# check_move: fails where nothing may be moved.
check_move() {
  [ "$old_place" = "$new_place" ] || [ ! -e "$new_place" ] ||
    fail "'$new_place' exists already; choose another name or place."
  own=$(relative "$old_file")
  other=$(changed_below "$old_place" | grep -v -x -F -e "$own" | head -n 1)
  [ -z "$other" ] || fail "'$other' has local changes; check it in, or undo them first."
}

# move_there: a directory first, then its own file in it.
move_there() {
  made=
  [ -d "${new_place%/*}" ] || made=${new_place%/*}
  mkdir -p -- "${new_place%/*}"
  [ "$old_place" = "$new_place" ] || run move_files "$old_place" "$new_place" || return
  within=$new_place/${old_file##*/}
  [ ! -d "$new_place" ] || [ "$within" = "$new_file" ] || run move_files "$within" "$new_file"
}

move_back() {
  [ ! -d "$new_place" ] || [ "$within" = "$new_file" ] || move_files "$new_file" "$within" || :
  [ "$old_place" = "$new_place" ] || move_files "$new_place" "$old_place" || :
  [ -z "$made" ] || rmdir -- "$made" 2>/dev/null || :
}

# move-directory.sh ROOT MODEL OLDDIR NEWDIR OLDFILE NEWFILE [COMMENTFILE]: gives a directory another
# place or name, and its archive files with it; the file in it that stands for it (OLDFILE) gets the
# name NEWFILE. That one is checked in if it is checked out; the others stay as they are.
. "${0%/*}/common.sh"
. "${0%/*}/comment.sh"
. "${0%/*}/tree.sh"

find_archive "$1/./"
root=$1 model=$2 old=$3 new=$4 old_file=$5 new_file=$6 comment=$7
old_archive=$root${old#"$model"}
new_archive=$root${new#"$model"}

[ -d "$old_archive" ] || fail "'$old_archive' does not exist; the directory is not in the archive."
[ ! -e "$new" ] || fail "'$new' exists already."
[ ! -e "$new_archive" ] || fail "'$new_archive' exists already."
files=$(archive_files "$old_archive")
set -f
IFS=$newline
for file in $files; do not_held_by_others "$file"; done

moved_file=$new/${old_file##*/}
kept=$(mktemp -d "${TMPDIR:-/tmp}/veldra-cm-$$-XXXXXX") || exit
trap 'rm -rf "$kept"' EXIT
[ ! -f "$old_file" ] || cp -p -- "$old_file" "$kept/file" || exit

move() {
  mkdir -p "${new%/*}" "${new_archive%/*}" || return
  mv -- "$old" "$new" || return
  # Without an archive of their own the archive files lie in the directory itself.
  [ ! -d "$old_archive" ] || mv -- "$old_archive" "$new_archive" || return
  from=$(archived_of "$root" "$model" "$moved_file")
  [ -f "$from" ] || return 0
  to=$(archived_of "$root" "$model" "$new_file")
  if [ "$from" != "$to" ]; then
    mv -- "$from" "$to" && mv -- "$moved_file" "$new_file" || return
  fi
  check_in_held "$to" "$new/" "$comment"
}

move_back() {
  if [ -n "$to" ] && [ "$from" != "$to" ] && [ -e "$to" ]; then
    mv -- "$to" "$from"
    rm -f -- "$new_file"
  fi
  [ ! -d "$new_archive" ] || [ -e "$old_archive" ] || mv -- "$new_archive" "$old_archive"
  [ ! -d "$new" ] || [ -e "$old" ] || mv -- "$new" "$old"
  [ ! -f "$kept/file" ] || cp -p -f -- "$kept/file" "$old_file"
}

move && exit
move_back
exit 1

# delete-directory.sh ARCHIVEDIRECTORY DIRECTORY [COMMENTFILE]: deletes every file below a directory
# as delete.sh does, or none of them.
. "${0%/*}/common.sh"
. "${0%/*}/comment.sh"
. "${0%/*}/tree.sh"
. "${0%/*}/attic.sh"

directory=$2 comment=$3
# The host may ask for a directory without a unit; then it does not fill in the place of the archive.
case $1 in
  *\$*) archive=$directory ;;
  *)
    find_archive "$1"
    archive=$place
    ;;
esac
[ -d "$archive" ] || fail "'$archive' does not exist; the directory is not in the archive."
files=$(archive_files "$archive")
[ -n "$files" ] || fail "'$archive' holds no archive files."

# each COMMAND: once for every file, $archived and $working being set.
each() {
  for file in $files; do
    folder=${file%/RCS/*}
    name_files "$file" "$directory${folder#"$archive"}/"
    "$@" || return
  done
}

delete_and_note() {
  delete_file "$comment" && undo="$archived$newline$working$newline$attic_file$newline$undo"
}

restore_all() {
  set -- $undo
  while [ $# -ge 3 ]; do
    archived=$1 working=$2 attic_file=$3
    shift 3
    restore_file
  done
}

set -f
IFS=$newline
for file in $(find "$directory" -type f ! -path '*/RCS/*'); do
  [ -f "$(archived_of "$archive" "$directory" "$file")" ] ||
    fail "'$file' is not in the archive; add it first, or take it out of the folder."
done
undo=
each may_be_deleted
each delete_and_note || {
  restore_all
  fail "'$working' could not be deleted; nothing is."
}
# Only what is empty goes.
(cd "$directory" && find . -mindepth 1 -depth -type d ! -name RCS ! -path '*/RCS/*' -exec rmdir {} +) 2>/dev/null
rmdir "$directory" 2>/dev/null
exit 0

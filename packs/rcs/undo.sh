# undo.sh ARCHIVEFILE DIRECTORY/: drops local changes and gives the user's lock back.
. "${0%/*}/common.sh"

name_files "$1" "$2"
[ -f "$archived" ] || fail "'$archived' does not exist; the file is not in the archive."
co -q -f -u "$archived" "$working"

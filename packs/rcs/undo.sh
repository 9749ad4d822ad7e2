# undo.sh ARCHIVEFILE DIRECTORY/: drops local changes and gives the user's lock back.
. "${0%/*}/common.sh"

name_files "$1" "$2"
in_archive
co -q -f -u "$archived" "$working"

# history.sh ARCHIVEFILE DIRECTORY/: the revisions of the file, the newest first.
. "${0%/*}/common.sh"

name_files "$1" "$2"
in_archive
rlog "$archived"

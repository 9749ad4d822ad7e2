# delete.sh ARCHIVEFILE DIRECTORY/ [COMMENTFILE]: gives a file a last revision in the state "dead",
# puts its archive file aside into RCS/Attic, and removes the file. What is changed is never removed.
. "${0%/*}/common.sh"
. "${0%/*}/comment.sh"
. "${0%/*}/tree.sh"
. "${0%/*}/attic.sh"

name_files "$1" "$2"
may_be_deleted
delete_file "$3"

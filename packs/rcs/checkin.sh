# checkin.sh ARCHIVEFILE DIRECTORY/ [COMMENTFILE]: adds a revision and gives the lock back. An
# unchanged file only gives its lock back.
. "${0%/*}/common.sh"
. "${0%/*}/comment.sh"

name_files "$1" "$2"
check_in "$3" -u

# checkin.sh ARCHIVEFILE DIRECTORY/ [--label=LABEL] [COMMENTFILE]: adds a revision and gives the lock
# back. An unchanged file only gives its lock back. The label is that of the newest revision.
. "${0%/*}/common.sh"
. "${0%/*}/comment.sh"
. "${0%/*}/labels.sh"

name_files "$1" "$2"
in_archive
shift 2
read_options "$@"
check_label
former=$(newest)
check_in "$comment" -u || exit
[ "$(newest)" != "$former" ] || printf 'unchanged: %s\n' "$working"
attach_label

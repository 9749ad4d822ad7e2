# checkin.sh UNITS [--label=LABEL] [COMMENTFILE]: commits files and gives their locks back.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

name_targets "$1"
shift
read_options "$@"
check_label
commit "$comment" --targets "$targets" || give_up
show
# A commit leaves the lock of what it has not sent.
answer=
give_locks || give_up
show
attach_label

# checkin.sh UNITS [--label=LABEL] [COMMENTFILE]: commits files and gives their locks back.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

name_targets "$1"
shift
read_options "$@"
check_label
commit "$comment" --targets "$targets" || refuse_commit
show
printf '%s\n' "$answer" | sed -n 's/^Sending        //p' >"$work/sent"
tell unchanged -v "$work/sent"
# A commit leaves the lock of what it has not sent.
answer=
give_locks || give_up
show
attach_label

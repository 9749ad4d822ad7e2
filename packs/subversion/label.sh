# label.sh --label=LABEL: gives the newest revision of the archive a label.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

read_options "$@"
[ -n "$label" ] || fail "No label is given."
check_label
attach_label

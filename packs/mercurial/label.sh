# label.sh --label=LABEL: gives the state of this folder's commit a label, in the archive too.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"

read_options "$@"
[ -n "$label" ] || fail "No label is given."
begin_commit .
publish ''

# label.sh UNITS --label=LABEL: gives the revisions of the files a label.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"

units=$1
shift
read_options "$@"
[ -n "$label" ] || fail "No label is given."
open_folder "$units"
in_archive "$units"
check_label "$units"
attach_label "$units"

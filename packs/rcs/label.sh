# label.sh ARCHIVEFILE DIRECTORY/ --label=LABEL: gives the newest revision a label.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

name_files "$1" "$2"
in_archive
read_options "$3"
check_label
[ -n "$label" ] || fail "No label is given."
attach_label

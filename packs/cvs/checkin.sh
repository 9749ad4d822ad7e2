# checkin.sh UNITS [--label=LABEL] [COMMENTFILE]: commits files, makes them read-only and takes the user
# from their editors. Unchanged files only lose their editor.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"

units=$1
shift
read_options "$@"
open_folder
in_archive "$units"
check_label "$units"
relative "$units" | tr '\n' '\000' | writable | sort -z >"$work/out"
commit "$units" "$comment" || refuse
show
attach_label "$units"
relative "$units" | tr '\n' '\000' | writable | sort -z >"$work/still-out"
comm -z -23 "$work/out" "$work/still-out" | tr '\000' '\n' | sed 's|^\./||' | tell_unchanged "$units"
tr '\000' '\n' <"$work/still-out" | sed 's|^\./||' >"$work/unchanged"
[ ! -s "$work/unchanged" ] || give "@$work/unchanged"
make_read_only "$units"

# add.sh UNITS [--label=LABEL] [COMMENTFILE]: commits new files and pushes them.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"

units=$1
shift
read_options "$@"
begin_commit "$units"
present=$(on "$units" files -r . 2>/dev/null || :)
[ -z "$present" ] || fail "'${present%%"$newline"*}' is in the archive already."
run on "$units" add -q || give_up
commit "$units" "$comment" || {
  reason=$answer
  take_back
  answer=$reason
  give_up
}
begin_delivery
publish "$units"
make_read_only "$units"

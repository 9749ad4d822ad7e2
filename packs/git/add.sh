# add.sh UNITS [--label=LABEL] [COMMENTFILE]: commits new files and pushes them.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"

units=$1
shift
read_options "$@"
begin_commit "$units"
present=$(about "$units" git ls-tree -r --name-only HEAD 2>/dev/null || :)
[ -z "$present" ] || fail "'${present%%"$newline"*}' is in the archive already."
run on "$units" add -N -f || give_up
commit "$units" "$comment" || {
  on "$units" reset -q
  give_up
}
begin_delivery
publish "$units"
make_read_only "$units"

# checkin.sh UNITS [--label=LABEL] [COMMENTFILE]: commits the files and nothing else, pushes, and
# gives locks back.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"
. "${0%/*}/locks.sh"

units=$1
shift
read_options "$@"
begin_commit
in_archive "$units"
if has_content_of "$units" HEAD; then
  echo "Nothing has been changed."
else
  run commit "$units" "$comment" || give_up
fi
publish "$units"
make_read_only "$units"
give_locks "$units"

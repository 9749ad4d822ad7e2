# checkin.sh UNITS [--label=LABEL] [COMMENTFILE]: commits the files and nothing else, and pushes.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"

units=$1
shift
read_options "$@"
begin_commit
in_archive "$units"
if is_changed; then
  commit "$units" "$comment" || give_up
else
  echo "Nothing has been changed."
fi
publish
make_read_only "$units"

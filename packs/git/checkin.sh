# checkin.sh UNITS [--label=LABEL] [COMMENTFILE]: commits the files and nothing else, pushes, and
# gives locks back.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"
. "${0%/*}/locks.sh"

units=$1
shift
read_options "$@"
begin_commit "$units"
in_archive "$units"
# Who has looked at an older state does not mean to bring that back.
restore "$units"
refuse_locked "$units"
about "$units" git diff --relative --name-only -z HEAD | tr '\000' '\n' | tell_unchanged "$units"
if has_content_of "$units" HEAD; then
  publish "$units"
else
  deliver "$units" "$comment"
fi
make_read_only "$units"
give_locks "$units"

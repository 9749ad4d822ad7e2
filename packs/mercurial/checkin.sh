# checkin.sh UNITS [--label=LABEL] [COMMENTFILE]: commits the files and nothing else, and pushes.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"

units=$1
shift
read_options "$@"
begin_commit "$units"
# Who has looked at an older state does not mean to bring that back.
restore_older "$units"
in_archive "$units"
printf '%s\n' "$states" | sed -n 's/^[MR!] //p' | tell_unchanged "$units"
if is_changed; then
  deliver "$units" "$comment"
else
  publish "$units"
fi
make_read_only "$units"

# delete.sh UNITS|DIRECTORY [COMMENTFILE]: takes files, or all below a directory, out of the archive and
# of this folder. Changed files are refused.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"

units=$1
shift
read_options "$@"
begin_commit "$units"
if [ -d "$units" ]; then
  refuse_strangers "$(on "$units" status -un)"
else
  in_archive "$units"
fi
changed=$(on "$units" status -mard | sed -n '1s/^..//p')
[ -z "$changed" ] || fail "'$changed' has local changes; check it in, or undo them first."
run on "$units" remove -q || give_up
commit "$units" "$comment" && tag_and_push && exit
reason=$answer
take_back
on "$units" revert -q --no-backup -r .
make_read_only "$units"
answer=$reason
refuse_push

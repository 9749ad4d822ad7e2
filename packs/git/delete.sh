# delete.sh UNITS|DIRECTORY [COMMENTFILE]: takes files, or all below a directory, out of the archive and
# of this folder. Changed files are refused.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"
. "${0%/*}/locks.sh"

units=$1
shift
read_options "$@"
begin_commit "$units"
in_archive "$units"
[ ! -d "$units" ] ||
  refuse_strangers "$(git ls-files -z --others --exclude-standard -- "$units" | tr '\000' '\n')"
has_content_of "$units" HEAD || fail "$unsaved"
refuse_locked "$units"
run on "$units" rm -q -r || give_up
if commit "$units" "$comment" && tag_and_push; then
  give_locks "$units"
  exit
fi
take_back "$units"
on "$units" checkout -q HEAD
make_read_only "$units"
refuse_push

# delete.sh UNITS|DIRECTORY [COMMENTFILE]: takes files, or all below a directory, out of the archive and
# of this folder. Changed files are refused.
. "${0%/*}/common.sh"

name_targets "$1"
shift
read_options "$@"
# Directories follow at their newest revision only.
tr '\n' '\000' <"$targets" | xargs -0 svn --non-interactive update --quiet -- || exit
svn delete --quiet --targets "$targets" || exit
commit "$comment" --targets "$targets" && show && exit
reason=$answer
svn revert --quiet --recursive --targets "$targets"
answer=$reason
give_up

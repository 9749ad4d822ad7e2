# checkin-batch.sh LIST [COMMENTFILE]: commits the files of the list as one change and gives their
# locks back. After a failure nothing is committed, or every file that is done is named.
. "${0%/*}/common.sh"

list=$1 comment=$2
work=$(mktemp -d "${TMPDIR:-/tmp}/veldra-cm-$$-XXXXXX") || exit
trap 'rm -rf "$work"' EXIT

sed 's/$/@/' "$list" >"$work/targets"
commit "$comment" --targets "$work/targets" || { show && exit 1; }
show

# A commit that finds nothing to send for a file leaves its lock, and so the file writable.
tr '\n' '\000' <"$list" |
  xargs -0 sh -c 'find "$@" -maxdepth 0 -perm -200' sh >"$work/unchanged"
[ -s "$work/unchanged" ] || exit 0
sed 's/$/@/' "$work/unchanged" >"$work/targets"
run svn unlock --targets "$work/targets" && show && exit
show
sort "$work/unchanged" >"$work/left"
sort "$list" | comm -23 - "$work/left" | sed 's/^/done: /'
exit 1

# add-batch.sh KIND LIST [COMMENTFILE]: puts the files of the list under control as one change; KIND
# as in add.sh. Files that are in the archive already are not done. After a failure nothing is left
# scheduled.
. "${0%/*}/common.sh"
. "${0%/*}/schedule.sh"

kind=$1 list=$2 comment=$3
work=$(mktemp -d "${TMPDIR:-/tmp}/veldra-cm-$$-XXXXXX") || exit
trap 'rm -rf "$work"' EXIT

# Takes back what is scheduled; the reason is printed already.
take_back() {
  [ ! -s "$work/added" ] || svn revert --quiet --recursive --targets "$work/added"
  exit 1
}

sed 's/$/@/' "$list" >"$work/targets"
schedule "$kind" --targets "$work/targets" >"$work/answer" 2>"$work/errors"
result=$?
sed -n 's/^A  .\{7\}//p' "$work/answer" | sed 's/$/@/' >"$work/added"
[ "$result" -eq 0 ] || { cat "$work/errors" && take_back; }
if [ "$kind" = text ]; then
  # Bytes that look like a keyword may be anything in a binary file.
  sed -n 's/^A  (bin)  //p' "$work/answer" | sed 's/$/@/' >"$work/binary"
  [ ! -s "$work/binary" ] || run svn propdel --quiet svn:keywords --targets "$work/binary" ||
    { show && take_back; }
fi
[ ! -s "$work/added" ] || commit "$comment" --targets "$work/added" || { show && take_back; }
show

# svn names what lies below the current directory relative to it. Without a file that was in the
# archive before, all are done, and nothing has to be said.
sed 's/@$//' "$work/added" >"$work/names"
here=$PWD/ LC_ALL=C awk '
  BEGIN { here = ENVIRON["here"] }
  NR == FNR { isAdded[$0]; next }
  {
    name = index($0, here) == 1 ? substr($0, length(here) + 1) : $0
    if (name in isAdded) print "done: " $0; else missing = 1
  }
  END { exit missing }
' "$work/names" "$list" >"$work/done" || { cat "$work/done" && exit 1; }

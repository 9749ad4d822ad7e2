# add.sh KIND ARCHIVEFILE DIRECTORY/ [--label=LABEL] [COMMENTFILE]: makes the archive file. KIND is
# "text" for a file whose keywords are expanded, "plain" for one whose bytes stay.
. "${0%/*}/common.sh"
. "${0%/*}/comment.sh"
. "${0%/*}/labels.sh"

kind=$1
name_files "$2" "$3"
shift 3
read_options "$@"
check_label

# Bytes that look like a keyword may be anything in a binary file.
is_binary() {
  ! tr -d '\000' <"$working" | cmp -s - "$working"
}

[ -f "$working" ] || fail "'$working' is not a file."
mkdir -p "${archived%/*}" || exit
if [ "$kind" = plain ] || is_binary; then
  rcs -q -i -kb -t- "$archived" </dev/null || exit
  # Without its first revision the archive file would be in the way of the next try.
  check_in "$comment" -u || {
    rm -f "$archived"
    exit 1
  }
else
  check_in "$comment" -i -u -t- || exit
fi
attach_label

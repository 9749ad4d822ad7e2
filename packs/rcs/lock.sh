# lock.sh ARCHIVEFILE DIRECTORY/: locks the newest revision for a file that is just that.
. "${0%/*}/common.sh"

name_files "$1" "$2"
in_archive
! is_checked_out || exit 0
# The model goes on with what it has in memory, so the lock must not change the content.
[ ! -e "$working" ] || rcsdiff -q "$archived" "$working" >/dev/null ||
  fail "'$working' differs from the newest revision; check it out, or undo its changes first."
co -q -l "$archived" "$working"

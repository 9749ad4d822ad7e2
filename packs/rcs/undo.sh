# undo.sh ARCHIVEFILE DIRECTORY/: drops local changes and gives the user's lock back. A lock of somebody
# else stays.
. "${0%/*}/common.sh"

name_files "$1" "$2"
in_archive
if holds_lock; then
  co -q -f -u "$archived" "$working"
else
  co -q -f "$archived" "$working"
fi

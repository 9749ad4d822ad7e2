# history.sh UNIT: the revisions of the file, the newest first.
. "${0%/*}/common.sh"

open_folder "$1"
in_archive "$1"
on "$1" log --

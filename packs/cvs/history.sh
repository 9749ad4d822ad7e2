# history.sh UNIT: the revisions of the file, the newest first.
. "${0%/*}/common.sh"

open_folder
in_archive "$1"
on "$1" log --

# undo.sh UNITS: drops local changes and makes the files read-only.
. "${0%/*}/common.sh"

open_repository
in_archive "$1"
on "$1" revert -q --no-backup -r .
make_read_only "$1"

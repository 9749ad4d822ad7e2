# undo.sh UNITS: drops local changes, makes the files read-only, and gives locks back.
. "${0%/*}/common.sh"
. "${0%/*}/locks.sh"

open_repository
in_archive "$1"
on "$1" checkout -q HEAD
make_read_only "$1"
give_locks "$1"

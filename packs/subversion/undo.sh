# undo.sh UNITS: drops local changes and gives locks back.
. "${0%/*}/common.sh"

name_targets "$1"
svn revert --targets "$targets" || exit
answer=
give_locks || give_up
show

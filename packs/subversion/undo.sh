# undo.sh UNITS: drops local changes and gives locks back.
. "${0%/*}/common.sh"

name_targets "$1"
run svn revert --targets "$targets" || give_up
skipped=$(printf '%s\n' "$answer" | sed -n "s/^Skipped '\(.*\)'.*/\1/p" | head -n 1)
[ -z "$skipped" ] || fail "'$skipped' is not in the archive; add it first."
refuse_gone
show
answer=
give_locks || give_up
show

# undo.sh UNITS: drops local changes, makes the files read-only, and takes the user from the editors.
. "${0%/*}/common.sh"

open_folder "$1"
in_archive "$1"
give "$1"
# What was made writable by other means, or is missing, has no copy to go back to.
state_of "$1" | sed 's/^..//' | while IFS= read -r file; do
  bring_clean "$file"
done
in_archive "$1"
make_read_only "$1"

# undo.sh UNITS: drops local changes, makes the files read-only, and takes the user from the editors.
. "${0%/*}/common.sh"

open_folder
in_archive "$1"
give "$1"
# What was made writable by other means, or is missing, has no copy to go back to.
state_of "$1" | sed 's/^..//' | while read -r file; do
  command cvs -f -Q update -C -- "$file"
  # cvs keeps the former content beside the file; the user has given it up.
  find "./$(dirname -- "$file")" -maxdepth 1 -type f -name '.#*' -newer CVS/Root \
    -exec sh -c 'case $2 in */".#$1".*) rm -f -- "$2" ;; esac' sh "${file##*/}" {} \;
done
make_read_only "$1"

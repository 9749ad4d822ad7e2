# connect.sh ARCHIVE DIRECTORY: makes the directory a working copy of the archive; the files that lie
# there are kept. A working copy of the archive is fine as it is.
. "${0%/*}/common.sh"
. "${0%/*}/place.sh"

find_place "$1"
cd -- "$2"

# take_over DIRECTORY: moves a fresh working copy into this folder. A file that lies here with other
# content stays; cvs then takes it for changed.
take_over() {
  (cd -- "$1" && find . -type d) | while IFS= read -r folder; do mkdir -p -- "$folder"; done
  (cd -- "$1" && find . -type f) | while IFS= read -r file; do
    if [ ! -e "$file" ] || cmp -s -- "$file" "$1/$file"; then mv -f -- "$1/$file" "$file"; fi
  done
}

if [ -d CVS ]; then
  [ "$(real "$(cat CVS/Root)")//$(cat CVS/Repository)" = "$(real "$root")//$module" ] ||
    fail "'$2' is already a working copy of $(cat CVS/Root)//$(cat CVS/Repository). \
Connect a fresh folder, or set the archive to that."
else
  new=$(scratch_in "$PWD" -d)
  trap 'rm -rf "$new"' EXIT
  (cd "$new" && cvs -d "$root" checkout -P -d it -- "$module" >/dev/null)
  [ -d "$new/it/CVS" ] || (cd "$new" && cvs -d "$root" checkout -d it -- "$module" >/dev/null)
  take_over "$new/it"
fi
clear_locks
# Files are read-only for everybody from now on, until somebody edits them. Who may not write in the
# archive cannot turn this on, and need not.
run cvs watch on || :
printf 'Archive Path: %s//%s\n' "$root" "$module"

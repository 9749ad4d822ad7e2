# delete.sh ARCHIVE PROJECT FILE|DIRECTORY: takes a file, or all below a directory, out of the archive
# and of the project. The archive files go to RCS/Attic, from where they can be brought back.
. "${0%/*}/common.sh"
. "${0%/*}/places.sh"

path=$3
name_places "$1" "$2"

# retire ARCHIVEFILE
retire() {
  attic=${1%/*}/Attic
  mkdir -p "$attic" || return
  name=${1##*/}
  number=1
  while [ -e "$attic/$name" ]; do
    number=$((number + 1))
    name=${1##*/}
    name=${name%,v}.$number,v
  done
  mv -- "$1" "$attic/$name"
}

# check ARCHIVEFILE FILE
check() {
  [ -f "$1" ] || fail "'$1' does not exist; the file is not in the archive."
  refuse_held "$1"
  is_unchanged "$1" "$2" || fail "'$2' has local changes; check it in, or undo them first."
}

if [ -d "$path" ]; then
  place=$(archive_directory "$path") || exit
  archive_files "$place" | while read -r file; do
    check "$file" "$(working_file "$file" "$place" "$path")"
  done || exit
  archive_files "$place" | while read -r file; do
    retire "$file" && rm -f -- "$(working_file "$file" "$place" "$path")" || exit
  done
else
  file=$(archive_file "$path") || exit
  check "$file" "$path"
  retire "$file" && rm -f -- "$path"
fi

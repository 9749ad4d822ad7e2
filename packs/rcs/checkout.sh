# checkout.sh -l[REVISION]|-r[REVISION] ARCHIVEFILE DIRECTORY/: brings a file from the archive, with
# (-l) or without a lock. A writable file is never overwritten.
. "${0%/*}/common.sh"

name_files "$2" "$3"
[ -f "$archived" ] || fail "'$archived' does not exist; the file is not in the archive."
[ -d "$3" ] || mkdir -p "$3" || exit
co -q "$1" "$archived" "$working"

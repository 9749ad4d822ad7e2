# checkout.sh -l[REVISION]|-r[REVISION] ARCHIVEFILE DIRECTORY/ [--to=FILE]: brings a file from the archive,
# with (-l) or without a lock; or to another place, leaving the one here alone. A writable file is never
# overwritten; one that is checked out already is fine.
. "${0%/*}/common.sh"

name_files "$2" "$3"
in_archive
case ${4:-} in
  --to=*)
    co -q "-p${1#-r}" "$archived" >"${4#--to=}"
    exit
    ;;
esac
[ "$1" != -l ] || ! is_checked_out || exit 0
[ -d "$3" ] || mkdir -p "$3" || exit
co -q "$1" "$archived" "$working"

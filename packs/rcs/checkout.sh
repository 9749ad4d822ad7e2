# checkout.sh -l[REVISION]|-r[REVISION] ARCHIVEFILE DIRECTORY/ [--to=FILE]: brings a file from the archive,
# with (-l) or without a lock; or to another place, leaving the one here alone. A writable file is never
# overwritten, and with -l no content that the archive does not have; one that is checked out already is
# fine, as nobody else can have made a newer revision.
. "${0%/*}/common.sh"

name_files "$2" "$3"
in_archive
case ${4:-} in
  --to=*)
    co -q "-p${1#-r}" "$archived" >"${4#--to=}"
    exit
    ;;
esac
if is_checked_out; then
  case $1 in
    -l | -r) exit ;;
    *) fail "'$working' is checked out; check it in, or undo it first." ;;
  esac
fi
# co overwrites whatever is read-only.
[ "$1" = "${1#-l}" ] || [ ! -e "$working" ] || is_archived ||
  fail "'$working' has changes although it is not checked out; undo them first."
[ -d "$3" ] || mkdir -p "$3" || exit
co -q "$1" "$archived" "$working"

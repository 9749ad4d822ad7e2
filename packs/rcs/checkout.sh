# checkout.sh -l[REVISION]|-r[REVISION] ARCHIVEFILE DIRECTORY/ [--to=FILE]: brings a file from the archive,
# with (-l) or without a lock; or to another place, leaving the one here alone. A writable file is never
# overwritten; one that is checked out already is fine, as nobody else can have made a newer revision.
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
[ -d "$3" ] || mkdir -p "$3" || exit
co -q "$1" "$archived" "$working"

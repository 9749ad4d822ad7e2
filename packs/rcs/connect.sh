# connect.sh DIRECTORY: makes sure that the directory can serve as archive, and says where it is.
. "${0%/*}/common.sh"

[ -d "$1" ] || fail "The archive '$1' is not a directory; create it or set another archive."
[ -w "$1" ] || fail "The archive '$1' may not be written."
cd "$1" || exit
printf 'Archive Path: %s\n' "$(pwd)"

# list.sh ARCHIVE|--here: what the archive holds, in svn's own XML; --here in the same form what this folder
# came by.
. "${0%/*}/common.sh"

if [ "$1" = --here ]; then
  listed=$(temporary_file) || exit
  trap 'rm -f "$listed"' EXIT
  svn info --xml --recursive . >"$listed" || exit
  awk -f "${0%/*}/here.awk" "$listed"
  exit
fi
url=$(archive_url "$1") || exit
svn list --xml --recursive -- "$url@"

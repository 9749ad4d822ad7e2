# list.sh ARCHIVE: what the archive holds, in svn's own XML.
. "${0%/*}/common.sh"

url=$(archive_url "$1") || exit
svn list --xml --recursive -- "$url@"

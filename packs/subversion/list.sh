# list.sh ARCHIVE: a line a file: revision, holder of the lock, RW while it is held, path; with tabs
# between.
. "${0%/*}/common.sh"

url=$(archive_url "$1") || exit
# Through a file: svn writes every few bytes by themselves, and a pipe makes each of them wait.
listing=$(temporary_file) || exit
trap 'rm -f "$listing"' EXIT
svn list --xml --recursive -- "$url@" >"$listing" || exit
LC_ALL=C awk -f "${0%/*}/list.awk" "$listing"

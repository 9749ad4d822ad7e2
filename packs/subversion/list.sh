# list.sh ARCHIVE: a line a file: revision, holder of the lock, RW while it is held, path; with tabs
# between.
. "${0%/*}/common.sh"

url=$(archive_url "$1") || exit
{ svn list --xml --recursive -- "$url@" || printf '<failed/>\n'; } |
  LC_ALL=C awk -f "${0%/*}/list.awk"

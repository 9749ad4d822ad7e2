# create.sh ARCHIVE: makes the repository at a local path, or, when the path leads into a repository
# that exists, the folder in it.
. "${0%/*}/common.sh"

case $1 in
  '' | *://*) fail "'$1' is no local path; a repository on a server is created there." ;;
esac
archive=$(absolute_path "$1")

repository=$archive
until [ -f "$repository/format" ] && [ -d "$repository/db" ]; do
  repository=${repository%/*}
  [ -n "$repository" ] || break
done

if [ -z "$repository" ]; then
  mkdir -p "${archive%/*}" && svnadmin create "$archive" || exit
elif [ "$repository" != "$archive" ]; then
  url=$(archive_url "$archive")
  svn info -- "$url@" >/dev/null 2>&1 ||
    svn mkdir --parents --quiet --message "Create the folder of a project." -- "$url@" || exit
fi
printf 'Archive: %s\n' "$archive"

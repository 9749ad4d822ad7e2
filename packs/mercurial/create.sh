# create.sh ARCHIVE: makes a repository at a local path.
. "${0%/*}/common.sh"

case $1 in
  '' | *://*) fail "'$1' is no local path; a repository on a server is created there." ;;
esac
mkdir -p -- "$1"
hg init -- "$1"
printf 'Archive: %s\n' "$1"

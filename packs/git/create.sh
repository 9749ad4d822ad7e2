# create.sh ARCHIVE: makes a bare repository at a local path.
. "${0%/*}/common.sh"

case $1 in
  '' | *://*) fail "'$1' is no local path; a repository on a server is created there." ;;
esac
name=$(git config init.defaultBranch || echo main)
mkdir -p -- "$1"
GIT_CONFIG_COUNT=0 git -c init.defaultBranch="$name" init -q --bare -- "$1"
printf 'Archive: %s\n' "$1"

# connect.sh ARCHIVE DIRECTORY: makes the directory a working copy of the archive; the files that
# lie there are kept. A directory that is a working copy of the archive already is fine.
. "${0%/*}/common.sh"

url=$(archive_url "$1") || exit
cd "$2" || exit

# The repository and the folder in it, whatever address leads there.
identity_of() {
  svn info -- "$1@" | sed -n 's/^Repository UUID: //p; s/^Relative URL: //p'
}

wanted=$(identity_of "$url")
[ -n "$wanted" ] || fail "The archive '$1' cannot be reached."
if present=$(svn info --show-item url . 2>/dev/null); then
  [ "$(identity_of .)" = "$wanted" ] ||
    fail "'$2' is already a working copy of $present, not of $url. \
Connect a fresh folder, or set the archive to $present."
else
  svn checkout --quiet --force -- "$url@" . || exit
fi

svn info . | grep '^Repository Root:'
# The path is stored in properties, where a dollar sign would begin a keyword.
printf 'Archive Path: '
svn info --show-item url . | sed 's/\$/%24/g; s/(/%28/g; s/)/%29/g'

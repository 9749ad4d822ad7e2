# connect.sh ARCHIVE DIRECTORY: makes the directory a working copy of the archive; the files that
# lie there are kept. A directory that is a working copy of the archive already is fine.
. "${0%/*}/common.sh"

url=$(archive_url "$1") || exit
foreign=
[ ! -e "$1" ] || [ -f "$1/format" ] || foreign=1
cd "$2" || exit

# The repository and the folder in it, whatever address leads there.
identity_of() {
  svn info -- "$1@" | sed -n 's/^Repository UUID: //p; s/^Relative URL: //p'
}

wanted=$(identity_of "$url")
[ -n "$wanted" ] || [ -z "$foreign" ] ||
  fail "'$1' is no Subversion repository. Name one, or a place where nothing is yet."
[ -n "$wanted" ] || fail "The archive '$1' cannot be reached."
if present=$(svn info --show-item url . 2>/dev/null); then
  [ "$(identity_of .)" = "$wanted" ] ||
    fail "'$2' is already a working copy of $present, not of $url. \
Connect a fresh folder, or set the archive to $present."
else
  # Bytes that are no UTF-8 are no characters to grep.
  strange=$(find . -maxdepth 1 | grep -a -v -x '.*' | sed 's|^\./||; q')
  [ -z "$strange" ] || fail "The name of '$strange' is no UTF-8, which Subversion needs. Rename it first."
  [ ! -e .svn ] || exists=1
  # Half a working copy would pass for a whole one the next time.
  svn checkout --quiet --force -- "$url@" . || { [ -n "${exists:-}" ] || rm -rf .svn; exit 1; }
fi

svn info . | grep '^Repository Root:'
# The path is stored in properties, where a dollar sign would begin a keyword.
printf 'Archive Path: '
svn info --show-item url . | sed 's/\$/%24/g; s/(/%28/g; s/)/%29/g'

# rename.sh OLDFILE NEWFILE [COMMENTFILE]: gives a file another name or directory; its history goes
# along, and so do its local changes.
. "${0%/*}/common.sh"
. "${0%/*}/tree.sh"

old=$1 new=$2 comment=$3

[ ! -e "$new" ] || fail "'$new' exists already."
kept=$(mktemp -d "${TMPDIR:-/tmp}/veldra-cm-$$-XXXXXX") || exit
trap 'rm -rf "$kept"' EXIT
cp -p -- "$old" "$kept/file" || exit

take_back() {
  revert_new "$new"
  svn revert --quiet -- "$old@"
  rm -f -- "$new"
  remove_new_parents
  # A file that was writable may have had changes.
  cmp -s "$kept/file" "$old" || { rm -f -- "$old" && cp -p "$kept/file" "$old"; }
}

# The new name is taken as it is, without an at sign to end it.
svn move --quiet --parents -- "$old@" "$new" || exit
new_parents "$new"
set -f
IFS=$newline
if commit "$comment" -- "$old@" "$new@" $new_parents; then
  show
  exit
fi
take_back
case $answer in
  *E195022:*) not_held "$old" ;;
esac
give_up

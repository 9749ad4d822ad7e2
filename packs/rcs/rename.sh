# rename.sh ROOT MODEL OLDFILE NEWFILE [COMMENTFILE]: gives a file another name or directory, and its
# archive file with it. A file that is checked out is checked in at its new place.
. "${0%/*}/common.sh"
. "${0%/*}/comment.sh"
. "${0%/*}/tree.sh"

find_archive "$1/./"
old=$3 new=$4 comment=$5
old_archived=$(archived_of "$1" "$2" "$old")
new_archived=$(archived_of "$1" "$2" "$new")

[ -f "$old_archived" ] || fail "'$old_archived' does not exist; the file is not in the archive."
[ ! -e "$new" ] || fail "'$new' exists already."
[ ! -e "$new_archived" ] || fail "'$new_archived' exists already."
not_held_by_others "$old_archived"

kept=$(mktemp -d "${TMPDIR:-/tmp}/veldra-cm-$$-XXXXXX") || exit
trap 'rm -rf "$kept"' EXIT
[ ! -e "$old" ] || cp -p -- "$old" "$kept/file" || exit

move() {
  mkdir -p "${new_archived%/*}" "${new%/*}" && mv -- "$old_archived" "$new_archived" || return
  [ ! -e "$old" ] || mv -- "$old" "$new" || return
  check_in_held "$new_archived" "${new%/*}/" "$comment"
}

move && exit
[ -e "$old_archived" ] || mv -- "$new_archived" "$old_archived"
rm -f -- "$new"
[ ! -e "$kept/file" ] || cp -p -f -- "$kept/file" "$old"
exit 1

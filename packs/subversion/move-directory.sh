# move-directory.sh OLDDIR NEWDIR OLDFILE NEWFILE [COMMENTFILE]: gives a directory another place or
# name, and the file in it that stands for it (OLDFILE) the name NEWFILE, as one change. The history
# of every file goes along. What else is checked out in there stays so.
. "${0%/*}/common.sh"
. "${0%/*}/tree.sh"

old=$1 new=$2 old_file=$3 new_file=$4 comment=$5

[ ! -e "$new" ] || fail "'$new' exists already."
make_current "$old" "$old_file"
kept=$(temporary_file -d) || exit
trap 'rm -rf "$kept"' EXIT
[ ! -f "$old_file" ] || cp -p -- "$old_file" "$kept/file" || exit
moved_file=$new/${old_file##*/}
held=$(svn status -- "$old@" | sed -n 's/^.....K. \(.*\)/\1/p')

# keep_locks: a lock belongs to a place, so those of the former one are taken anew.
keep_locks() {
  [ -n "$held" ] || return 0
  for file in $held; do
    place=$new${file#"$old"}
    [ "$place" != "$moved_file" ] || place=$new_file
    # svn itself leaves it writable.
    chmod a-w -- "$place"
    [ "$place" = "$new_file" ] || printf '%s@\n' "$place" >>"$kept/held"
  done
  [ -s "$kept/held" ] || return 0
  run svn lock --targets "$kept/held" || show
}

move() {
  # The new name is taken as it is, without an at sign to end it.
  svn move --quiet --parents -- "$old@" "$new" || return
  [ ! -f "$moved_file" ] || [ "$moved_file" = "$new_file" ] ||
    svn move --quiet -- "$moved_file@" "$new_file"
}

take_back() {
  revert_new "$new"
  svn revert --quiet --recursive -- "$old@"
  # What was not under control has come along and goes back.
  if [ -d "$new" ]; then
    rm -f -- "$new_file"
    cp -R -p -n -- "$new/." "$old/" && rm -rf -- "$new"
  fi
  remove_new_parents
  [ ! -f "$kept/file" ] || cmp -s "$kept/file" "$old_file" ||
    { rm -f -- "$old_file" && cp -p "$kept/file" "$old_file"; }
}

set -f
IFS=$newline
if run move; then
  new_parents "$new"
  depth=infinity
  if commit "$comment" -- "$old@" "$new@" $new_parents; then
    show
    keep_locks
    exit
  fi
else
  new_parents "$new"
fi
take_back
give_up

# move.sh OLD NEW OLDFILE NEWFILE [COMMENTFILE]: gives a file, or a directory with all below it, another
# place. For a directory OLDFILE lies in it, and becomes NEWFILE in the new one. Changes of that file
# are checked in with the move; other changed files are refused.
. "${0%/*}/common.sh"

old=$1 new=$2 old_file=$3 new_file=$4
name_targets "$old"
read_options "${5:-}"

# move FROM TO: the second of the paths ends at its end, whatever is in it.
move() {
  [ "$1" = "$2" ] || run svn move --quiet --parents -- "$1@" "$2"
}

# What has to be committed: the move itself, and the directories that it has made.
moved() {
  printf '%s@\n' "$old" "$new"
  made=${new%/*}
  while state=$(svn status --depth empty -- "$made@") && [ "${state#A}" != "$state" ]; do
    printf '%s@\n' "$made"
    made=${made%/*}
  done
}

# put_back: the files as they were; svn would drop the changes of the one that has some.
put_back() {
  reason=$answer
  moved >"$work/moved"
  svn revert --quiet --recursive --targets "$work/moved" || :
  rm -rf -- "$new"
  cmp -s -- "$work/own" "$old_file" || {
    [ -w "$old_file" ] || chmod u+w -- "$old_file"
    cat "$work/own" >"$old_file"
  }
  answer=$reason
  give_up
}

[ "$old" = "$new" ] || [ ! -e "$new" ] || fail "'$new' exists already; choose another name or place."
# A directory moves at its newest revision only.
svn update --quiet -- "$old@" || exit
other=$(svn status --quiet -- "$old@" | sed -n 's/^[^ ].......//p' | grep -v -x -F -e "$old_file" |
  head -n 1)
[ -z "$other" ] || fail "'$other' has local changes; check it in, or undo them first."

cp -p -- "$old_file" "$work/own" || exit
if [ -d "$old" ]; then
  within=$new/${old_file##*/}
  move "$old" "$new" && move "$within" "$new_file" || put_back
else
  move "$old" "$new" || put_back
fi
moved >"$work/moved"
commit "$comment" --targets "$work/moved" && show && exit
put_back

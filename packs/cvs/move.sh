# move.sh OLD NEW OLDFILE NEWFILE [COMMENTFILE]: gives a file, or a directory with all below it, another
# place. CVS cannot follow: the files are removed and added anew in one go. For a directory OLDFILE
# lies in it, and becomes NEWFILE in the new one. Changes of that file are checked in with the move;
# other changed files are refused. What else is checked out stays so.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"
. "${0%/*}/folders.sh"

old=$(relative "$1") new=$(relative "$2") old_file=$(relative "$3") new_file=$(relative "$4")
read_options "${5:-}"

# new_place FILE: where a file goes.
new_place() {
  if [ "$1" = "$old_file" ]; then
    printf '%s\n' "$new_file"
  else
    printf '%s\n' "$new${1#"$old"}"
  fi
}

# is_plain FILE: whether its bytes stay.
is_plain() {
  entries "$(dirname -- "$1")" | grep -F "/${1##*/}/" | grep -q -e '/-kb/'
}

# put_back: the files and what cvs knows of them, as they were.
put_back() {
  while IFS= read -r file; do
    place=$(new_place "$file")
    [ ! -e "$place" ] || {
      (cd -- "$(dirname -- "$place")" && command cvs -f -Q remove -- "${place##*/}") 2>/dev/null || :
      mkdir -p -- "$(dirname -- "$file")"
      mv -f -- "$place" "$file"
      (cd -- "$(dirname -- "$place")" && command cvs -f -Q remove -- "${place##*/}") 2>/dev/null || :
    }
  done <"$work/old"
  (cd "$work/records" && find . -type f) | while IFS= read -r record; do
    cp -- "$work/records/$record" "$record"
  done
}

# take_along: what cvs does not know.
take_along() {
  find "$old" -type f ! -path '*/CVS/*' | while IFS= read -r file; do
    place=$(new_place "$file")
    mkdir -p -- "$(dirname -- "$place")"
    [ -e "$place" ] || mv -- "$file" "$place"
  done
  drop_empty "$old"
}

# keep_out: what else is checked out in a directory stays so.
keep_out() {
  [ -s "$work/out" ] || return 0
  while IFS= read -r file; do new_place "$file"; done <"$work/out" | sed "s|^|$PWD/|" >"$work/taken"
  (take "@$work/taken") || :
}

open_folder
[ "$old" = "$new" ] || [ ! -e "$new" ] || fail "'$new' exists already; choose another name or place."
if [ -d "$old" ]; then
  controlled "$old" >"$work/old"
else
  printf '%s\n' "$old" >"$work/old"
fi
sed "s|^|$PWD/|" "$work/old" >"$work/units"
in_archive "@$work/units"
refuse_older "@$work/units"
other=$(state_of "@$work/units" | grep -v -x -F -e "M $old_file" | sed -n '1s/^..//p')
[ -z "$other" ] || fail "'$other' has local changes, or newer ones in the archive; \
check it in, undo them, or fetch first."
refuse_edited "@$work/units"

is_out <"$work/old" | grep -v -x -F -e "$old_file" >"$work/out" || :
mkdir "$work/records"
find "$old" "$(dirname -- "$old")" -path '*CVS/Entries*' -exec sh -c '
  for record do mkdir -p "$0/${record%/*}" && cp -p -- "$record" "$0/$record"; done
' "$work/records" {} +
: >"$work/text"
: >"$work/plain"
while IFS= read -r file; do
  place=$(new_place "$file")
  mkdir -p -- "$(dirname -- "$place")"
  if is_plain "$file"; then kind=plain; else kind=text; fi
  mv -- "$file" "$place"
  printf '%s\n' "$place" >>"$work/$kind"
done <"$work/old"
if run on "@$work/units" remove -- &&
  cat "$work/text" "$work/plain" | add_folders &&
  add_files -kkv <"$work/text" && add_files -kb <"$work/plain" &&
  sed "s|^|$PWD/|" "$work/text" "$work/plain" >>"$work/units" && commit "@$work/units" "$comment"; then
  [ ! -d "$old" ] || take_along
  show
  keep_out
  echo "note: CVS cannot follow a file to another place: its history stays with the former name."
  exit
fi
reason=$answer
put_back
answer=$reason
: >"$work/done"
refuse

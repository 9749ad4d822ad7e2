# Sourced by the helpers that delete. They work on $archived and $working.

may_be_deleted() {
  in_archive
  not_held_by_others "$archived" || exit
  [ ! -e "$working" ] || rcsdiff -q "$archived" "$working" >/dev/null ||
    fail "'$working' has changes; check it in, or undo them first."
}

# A former file of the same name keeps its place.
attic_place() {
  attic=${archived%/*}/Attic
  name=${archived##*/}
  attic_file=$attic/$name
  number=1
  while [ -e "$attic_file" ]; do
    attic_file=$attic/${name%,v}~$number,v
    number=$((number + 1))
  done
}

# delete_file COMMENTFILE: sets $attic_file.
delete_file() {
  attic_place
  mkdir -p "$attic" && co -q -f -l "$archived" "$working" || return
  # Without -u or -l, ci takes the working file away.
  if check_in "$1" -f -sdead; then
    mv "$archived" "$attic_file"
  else
    co -q -f -u "$archived" "$working"
    return 1
  fi
}

# restore_file: the other way round, after delete_file.
restore_file() {
  mv "$attic_file" "$archived" || return
  dead=$(rlog -h "$archived" | sed -n 's/^head: *//p')
  rcs -q -o"$dead" "$archived" && co -q -f -u "$archived" "$working"
}

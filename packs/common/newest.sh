# Sourced by the helpers that bring a whole folder up to date, of tools that know no single files.
# The pack provides
#   content COMMIT FILE        prints a file as it is in a commit
#   merge_texts MINE BASE THEIRS  prints the three in one; fails when they do not fit together
#   arriving, changed          print the files that the archive, and those that the user, has changed

# begin_update: looks at files before they are touched, in the folder $work. Fails when local changes
# and those of the archive do not fit together.
begin_update() {
  open_work
  mkdir -p "$work/merged"
  arriving | sort -z >"$work/arriving"
  changed | sort -z >"$work/changed"
  cat "$work/arriving" "$work/changed" >"$work/touched"
  writable <"$work/touched" >"$work/writable"
  comm -z -12 "$work/changed" "$work/arriving" | tr '\000' '\n' >"$work/both"
  number=0
  while IFS= read -r file; do
    number=$((number + 1))
    content "$base" "$file" >"$work/base" 2>/dev/null &&
      content "$tip" "$file" >"$work/theirs" 2>/dev/null &&
      merge_texts "./$file" "$work/base" "$work/theirs" >"$work/merged/$number" 2>/dev/null ||
      fail "'$file' has changes here and in the archive that cannot be merged. Nothing is fetched. \
Keep a copy of the file, undo it, fetch, and make the changes again."
  done <"$work/both"
}

# end_update: files have the mode that they had; new ones are read-only.
end_update() {
  xargs -0 -r chmod -f a-w -- <"$work/touched" || :
  xargs -0 -r chmod -f u+w -- <"$work/writable" || :
}

# Sourced by the helpers that bring a folder up to date.

# settle: brings what is missing, and makes read-only what has the content of the archive. Files that
# lie there already are kept as they are.
settle() {
  git checkout-index -q -a || :
  git update-index -q --refresh >/dev/null || :
  git ls-files -z | xargs -0 -r chmod -f a-w -- || :
  git diff --relative --name-only -z | xargs -0 -r chmod -f u+w -- || :
}

# bring_newest: moves the whole folder on to $tip. Local changes are merged in, or everything stays
# as it is. Files keep the mode that they had; new ones are read-only.
bring_newest() {
  is_behind || return 0
  if ! git rev-parse -q --verify HEAD >/dev/null; then
    git reset -q "$tip"
    settle
    return
  fi
  git merge-base --is-ancestor HEAD "$tip" ||
    fail "This folder has commits that the archive lacks, and the archive has newer ones. \
Bring both together with git rebase or git merge."
  work=$(mktemp -d)
  trap 'rm -rf "$work"' EXIT
  git diff --relative --name-only --no-renames -z HEAD "$tip" >"$work/arriving"
  git diff --relative --name-only --no-renames -z HEAD >"$work/changed"
  cat "$work/arriving" "$work/changed" >"$work/touched"
  writable <"$work/touched" >"$work/writable"
  stash=--no-autostash
  changed_on_both_sides || stash=--autostash
  name_user >"$work/note"
  run git merge -q --ff-only "$stash" "$tip" || give_up
  xargs -0 -r chmod -f a-w -- <"$work/touched" || :
  xargs -0 -r chmod -f u+w -- <"$work/writable" || :
}

# changed_on_both_sides: true when no file is. Fails when one is and cannot be merged.
changed_on_both_sides() {
  sort -z "$work/arriving" >"$work/arriving.sorted"
  sort -z "$work/changed" | comm -z -12 - "$work/arriving.sorted" >"$work/both"
  [ -s "$work/both" ] || return 0
  # No name that the module knows has a line end.
  tr '\000' '\n' <"$work/both" >"$work/both.lines"
  while read -r file; do
    git show "HEAD:./$file" >"$work/base" 2>/dev/null &&
      git show "$tip:./$file" >"$work/theirs" 2>/dev/null &&
      git merge-file -q -p "./$file" "$work/base" "$work/theirs" >/dev/null 2>&1 ||
      fail "'$file' has changes here and in the archive that cannot be merged. Nothing is fetched. \
Keep a copy of the file, undo it, fetch, and make the changes again."
  done <"$work/both.lines"
  return 1
}

# restore UNITS: brings back files that are missing, and read-only ones with an older content of the
# archive; a read-only file with any other content is somebody's work.
restore() {
  about "$1" git ls-files -z --deleted | git checkout-index -q -z --stdin || return
  about "$1" git diff --relative --name-only -z HEAD | tr '\000' '\n' | while read -r file; do
    if [ -z "$(printf '%s\000' "$file" | writable)" ] && is_archived "./$file"; then
      git checkout -q HEAD -- "./$file" || return
    fi
  done
}

# is_archived FILE: whether its content is known to the repository.
is_archived() {
  git cat-file -e "$(git hash-object -- "$1")" 2>/dev/null
}

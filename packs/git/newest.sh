# Sourced by the helpers that bring a folder up to date.
. "${0%/*}/../common/newest.sh"

content() {
  git show "$1:./$2"
}

merge_texts() {
  git merge-file -q -p "$@"
}

arriving() {
  git diff --relative --name-only --no-renames -z HEAD "$tip"
}

# In a file that is missing there is nothing to merge.
changed() {
  git diff --relative --name-only --no-renames --diff-filter=d -z HEAD
}

# settle: brings what is missing, and makes read-only what has the content of the archive. Files that
# lie there already are kept as they are.
settle() {
  git checkout-index -q -a || :
  git update-index -q --refresh >/dev/null || :
  git ls-files -z | xargs -0 -r chmod -f a-w -- || :
  git diff --relative --name-only -z | xargs -0 -r chmod -f u+w -- || :
}

# take_back_undelivered: a commit that a killed run has made and not brought to the archive. The files
# stay as they are, so the same command makes it anew. After `receive`.
take_back_undelivered() {
  [ -f "$records/veldra-delivery" ] || return 0
  { read -r process made && read -r former || :; } <"$records/veldra-delivery"
  ! kill -0 "$process" 2>/dev/null || return 0
  if [ "$(git rev-parse -q --verify HEAD)" = "$made" ] &&
    ! git merge-base --is-ancestor HEAD "$tip" 2>/dev/null; then
    git tag --points-at HEAD | while read -r tag; do git tag -d "$tag" >/dev/null; done
    if [ -n "$former" ]; then
      git reset -q "$former"
    else
      git update-ref -d HEAD && git read-tree --empty
    fi
  fi
  rm -f "$records/veldra-delivery"
}

# note_update, forget_update: what undo_update has to know, while a folder moves on to $tip.
note_update() {
  former=$(git rev-parse HEAD) goal=$tip
  cp "$work/writable" "$records/veldra-writable"
  printf '%s\n' "$$ $former $goal" >"$records/veldra-update"
}

forget_update() {
  rm -f "$records/veldra-update" "$records/veldra-writable"
}

# take_back_update: one that a killed run has left half done.
take_back_update() {
  [ -f "$records/veldra-update" ] || return 0
  read -r process former goal <"$records/veldra-update"
  kill -0 "$process" 2>/dev/null || undo_update
}

# undo_update: a killed merge leaves files of both commits, and changes put aside. Files that it brought
# become what they were, so that it can be made anew; every other file stays.
undo_update() {
  open_work
  clear_locks_of "$records" "$top"
  # Not by git reset, which would make a stash of what is put aside.
  git read-tree HEAD
  git update-index -q --refresh >/dev/null || :
  export GIT_INDEX_FILE="$work/index"
  git read-tree "$goal"
  git diff --relative --name-only -z | sort -z >"$work/unlike"
  unset GIT_INDEX_FILE
  git ls-files -z | sort -z >"$work/known"
  git diff --relative --name-only --no-renames -z HEAD "$goal" | sort -z |
    comm -z -23 - "$work/unlike" >"$work/brought"
  comm -z -12 "$work/known" "$work/brought" | xargs -0 -r git checkout -q HEAD --
  comm -z -13 "$work/known" "$work/brought" | xargs -0 -r rm -f --
  git diff --relative --name-only --no-renames -z "$former" "$goal" | xargs -0 -r chmod -f a-w -- || :
  xargs -0 -r chmod -f u+w -- <"$records/veldra-writable" || :
  forget_update
  take_up_changes
}

# take_up_changes: those that a killed merge has put aside. Where they do not fit any more, they are
# kept as a stash.
take_up_changes() {
  [ -f "$records/MERGE_AUTOSTASH" ] || return 0
  read -r aside <"$records/MERGE_AUTOSTASH"
  run git stash apply -q "$aside" || {
    git stash store -q -m 'put aside by a fetch that was killed' "$aside"
    rm -f "$records/MERGE_AUTOSTASH"
    fail "A former command was killed while it had put your changes aside. They are in git's stash; \
git stash pop brings them back."
  }
  rm -f "$records/MERGE_AUTOSTASH"
}

# bring_newest: moves the whole folder on to $tip. Local changes are merged in, or everything stays
# as it is.
bring_newest() {
  take_back_update
  take_back_undelivered
  is_behind || return 0
  if ! git rev-parse -q --verify HEAD >/dev/null; then
    git reset -q "$tip"
    settle
    return
  fi
  git merge-base --is-ancestor HEAD "$tip" ||
    fail "This folder has commits that the archive lacks, and the archive has newer ones. \
Bring both together with git rebase or git merge."
  base=HEAD
  begin_update
  # A stash is a commit, so that nothing is lost even when this is interrupted.
  name_user >/dev/null
  stash=--autostash
  [ -s "$work/both" ] || stash=--no-autostash
  note_update
  run git merge -q --ff-only "$stash" "$tip" || {
    [ $? -le 128 ] || undo_update
    forget_update
    give_up
  }
  end_update
  forget_update
}

# bring_missing UNITS: brings back files that are missing, read-only.
bring_missing() {
  about "$1" git ls-files -z --deleted |
    xargs -0 -r sh -c 'git checkout-index -q -- "$@" && chmod a-w -- "$@"' sh
}

# older UNITS: a line a read-only file with an older content of the archive; with any other content it is
# somebody's work.
older() {
  about "$1" git diff --relative --name-only -z HEAD | tr '\000' '\n' | while IFS= read -r file; do
    [ -n "$(printf '%s\000' "$file" | writable)" ] || ! is_archived "./$file" || printf '%s\n' "$file"
  done
}

# restore UNITS: brings back files that are missing, and the newest state of those with an older one.
restore() {
  bring_missing "$1" || return
  older "$1" | while IFS= read -r file; do git checkout -q HEAD -- "./$file" || return; done
}

# is_archived FILE: whether its content is known to the repository.
is_archived() {
  git cat-file -e "$(git hash-object -- "$1")" 2>/dev/null
}

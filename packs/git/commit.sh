# Sourced by the helpers that bring something into the archive.
. "${0%/*}/newest.sh"
. "${0%/*}/../common/delivery.sh"

unsaved="A file has local changes; check it in, or undo them first."

# begin_commit UNITS: refuses what would fail in the end. Sets $old, the commit to go back to.
begin_commit() {
  open_repository
  name_user
  [ ! -e "$(git rev-parse --git-path MERGE_HEAD)" ] ||
    fail "A merge is not finished in this folder; git commit or git merge --abort ends it."
  catch_up "$1"
  [ -z "$label" ] || check_label
}

# catch_up UNITS: the archive takes commits on top of its newest one only, so what others have done to
# other files is brought here first; these files must be as this folder knows them.
catch_up() {
  receive || give_up
  take_back_undelivered
  if is_behind; then
    each "$1" | xargs -0 git diff --quiet HEAD "$tip" -- 2>/dev/null || fail "$moved_on"
    bring_newest
  fi
  old=$(git rev-parse -q --verify HEAD || :)
}

# A label on the newest commit moves along with the next; any other stays what it is.
check_label() {
  git check-ref-format "refs/tags/$label" || fail "'$label' cannot be a label in git."
  tagged=$(git rev-parse -q --verify "refs/tags/$label^{commit}" || :)
  [ -z "$tagged" ] || [ "$tagged" = "$old" ] ||
    fail "The label '$label' exists already, for an older state. Choose another one."
}

# print_commit UNITS COMMENTFILE: commits exactly these files, with the comment byte for byte; with '' for
# UNITS what the index holds.
print_commit() {
  named=$1
  # git takes no zero bytes in comments.
  tr -d '\000' <"${2:-/dev/null}" | {
    message=$(scratch)
    trap 'rm -f "$message"' EXIT
    cat >"$message"
    set -- commit -q --allow-empty-message --cleanup=verbatim --file="$message"
    if [ -n "$named" ]; then on "$named" "$@" --only; else git "$@"; fi 2>&1
  }
}

commit() {
  run print_commit "$@"
}

# begin_delivery: from a commit on until it is in the archive, a run that is killed leaves word of it.
begin_delivery() {
  [ -z "$remote" ] ||
    printf '%s\n' "$$ $(git rev-parse HEAD)" ${old:+"$old"} >"$records/veldra-delivery"
}

end_delivery() {
  rm -f "$records/veldra-delivery"
}

# take_back UNITS: undoes the commit; the files stay as they are.
take_back() {
  if [ -n "$old" ]; then
    git reset -q --soft "$old"
  else
    git update-ref -d HEAD
  fi
  on "$1" reset -q
  end_delivery
}

# tag_and_push: brings new commits and the label to the archive; false and nothing there when that
# cannot be.
tag_and_push() {
  former=
  if [ -n "$label" ]; then
    former=$(git rev-parse -q --verify "refs/tags/$label" || :)
    run git tag -f -a -m "$label" -- "$label" || return
  fi
  [ -n "$remote" ] || return 0
  run git push -q --atomic "$remote" "HEAD:$target" ${label:+"+refs/tags/$label"} && return
  if [ -n "$former" ]; then
    git update-ref "refs/tags/$label" "$former"
  elif [ -n "$label" ]; then
    git update-ref -d "refs/tags/$label"
  fi
  return 1
}

# was_late: whether somebody was quicker with a push.
was_late() {
  case $answer in
    *'(fetch first)'* | *'(non-fast-forward)'* | *'cannot lock ref'*) ;;
    *) return 1 ;;
  esac
}

# Sourced by the helpers that bring something into the archive.
. "${0%/*}/newest.sh"
. "${0%/*}/../common/delivery.sh"

# begin_commit UNITS: refuses what would fail in the end.
begin_commit() {
  open_repository
  name_user
  catch_up "$1"
  [ -z "$label" ] || check_label
}

# catch_up UNITS: the archive takes commits on top of its newest one only, so what others have done to
# other files is brought here first; these files must be as this folder knows them.
catch_up() {
  receive || give_up
  take_back_undelivered
  [ -n "$tip" ] || return 0
  [ -z "$(on "$1" status --rev "$base" --rev "$tip" 2>/dev/null)" ] || fail "$moved_on"
  bring_newest
  base=$tip
}

# A label on the newest commit moves along with the next; any other stays what it is.
check_label() {
  tagged=$(hg log -r "tag('literal:$label')" -T x 2>/dev/null || :)
  newest="tag('literal:$label') and (. + p1(. and file('path:.hgtags')))"
  [ -z "$tagged" ] || [ -n "$(hg log -r "$newest" -T x)" ] ||
    fail "The label '$label' exists already, for an older state. Choose another one."
}

# commit UNITS COMMENTFILE: commits exactly these files. hg wants a comment, as UTF-8; bytes that are
# none are read as ISO 8859-1.
commit() {
  message=$(scratch)
  tr -d '\000' <"${2:-/dev/null}" >"$message"
  if ! iconv -f UTF-8 -t UTF-8 "$message" >/dev/null 2>&1; then
    iconv -f ISO-8859-1 -t UTF-8 "$message" >"$message.utf8"
    mv "$message.utf8" "$message"
  fi
  grep -q '[^[:space:]]' "$message" || echo "No comment." >"$message"
  result=0
  run on "$1" commit -q --logfile "$message" || result=$?
  rm -f "$message"
  return $result
}

# begin_delivery: from a commit on until it is in the archive, a run that is killed leaves word of it.
begin_delivery() {
  [ -z "$remote" ] || printf '%s\n' "$$ $base" >"$top/.hg/veldra-delivery"
}

end_delivery() {
  rm -f "$top/.hg/veldra-delivery"
}

# was_late: whether somebody was quicker with a push.
was_late() {
  case $answer in
    *'new remote head'* | *'repository changed while'* | *'push creates new'*) ;;
    *) return 1 ;;
  esac
}

# tag_and_push: brings new commits and the label to the archive.
tag_and_push() {
  [ -z "$label" ] || run hg tag -q -f -m "Label $label" -- "$label" || return
  [ -n "$remote" ] || return 0
  result=0
  run hg push -q -r . || result=$?
  # 1: there was nothing to push.
  [ "$result" -le 1 ]
}

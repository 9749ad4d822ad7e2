# Sourced by the helpers that bring something into the archive.

# check_label UNITS: a label that one of the files has already stays where it is.
check_label() {
  [ -n "$label" ] || return 0
  case $label in
    *[!A-Za-z0-9_-]* | [!A-Za-z]* | BASE | HEAD)
      fail "'$label' cannot be a label in CVS: it takes letters, digits, - and _, and a letter first."
      ;;
  esac
  ! on "$1" log -h -- 2>/dev/null | grep -q "^	$label: " ||
    fail "The label '$label' exists already for an older revision. Choose another one."
}

# commit UNITS COMMENTFILE: as `run`. CVS commits file by file: after a failure the files that made it
# are named, and the rest stays as it was.
commit() {
  run on "$1" commit -F "${2:-/dev/null}" -- && return
  reason=$answer
  left=$(state_of "$1" | sed 's/^..//')
  lines "$1" >"$work/all"
  relative "$1" | paste - "$work/all" | while IFS='	' read -r file unit; do
    printf '%s\n' "$left" | grep -q -x -F -e "$file" || printf 'done: %s\n' "$unit"
  done >"$work/done"
  answer=$reason
  return 1
}

# refuse: says why a commit failed; beside files that are done the reason goes to the same output.
refuse() {
  case $answer in
    *'Up-to-date check failed'*)
      answer="$pack: The archive has a newer revision. Fetch first, then do it again.$newline$answer"
      ;;
  esac
  [ -s "$work/done" ] || give_up
  cat "$work/done"
  show
  exit 1
}

attach_label() {
  [ -z "$label" ] || run on "$1" tag -- "$label" || give_up
}

open_work

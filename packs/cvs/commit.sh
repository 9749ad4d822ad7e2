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

# without_keywords: the input with keywords that stand for nothing yet.
without_keywords() {
  LC_ALL=C sed 's/\$\([A-Z][A-Za-z]*\):[^$]*\$/$\1$/g'
}

# know_own: a commit that was killed may have made revisions that this folder does not know of. True
# when it does now, and nothing else keeps the files from being committed.
know_own() {
  printf '%s\n' "$answer" | sed -n "s/.*Up-to-date check failed for .\(.*\)'$/\1/p" >"$work/newer"
  [ -s "$work/newer" ] || return
  while IFS= read -r file; do
    without_keywords <"$file" >"$work/mine"
    command cvs -f -Q update -p -A -- "$file" 2>/dev/null | without_keywords |
      cmp -s - "$work/mine" || return
  done <"$work/newer"
  while IFS= read -r file; do bring_clean "$file" -A && chmod u+w -- "$file"; done <"$work/newer"
}

# commit UNITS COMMENTFILE: as `run`. CVS commits file by file: after a failure the files that made it
# are named, which have another revision now or are gone from the records; the rest stays as it was.
commit() {
  folders_of "$1" | revisions | sort >"$work/before"
  run on "$1" commit -F "${2:-/dev/null}" -- && return
  know_own && run on "$1" commit -F "${2:-/dev/null}" -- && return
  reason=$answer
  folders_of "$1" | revisions | sort | comm -23 "$work/before" - | cut -f 1 >"$work/moved-on"
  lines "$1" >"$work/all"
  relative "$1" | paste - "$work/all" | awk -F '\t' '
    FILENAME == ARGV[1] { movedOn[$0]; next }
    $1 in movedOn { print "done: " $2 }
  ' "$work/moved-on" - >"$work/done"
  answer=$reason
  return 1
}

# refuse: says why a commit failed, beside the names of the files that are done.
refuse() {
  case $answer in
    *'Up-to-date check failed'*)
      answer="$pack: The archive has a newer revision. Fetch first, then do it again.$newline$answer"
      ;;
  esac
  cat "$work/done"
  give_up
}

attach_label() {
  [ -z "$label" ] || run on "$1" tag -- "$label" || give_up
}

open_work
: >"$work/done"

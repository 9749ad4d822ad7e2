# fetch.sh UNITS [--to=FILE] [LABEL]: merges what is new in the archive into the files, or brings the
# revision that a label names: a tag or a number. With --to the revision of a single unit goes there,
# and nothing here changes.
. "${0%/*}/common.sh"

read_fetch "$@"

# has_revision FILE: cvs itself would remove a file that lacks the tag.
has_revision() {
  case $wanted in
    [0-9]*) cvs log -N -r"$wanted" -- "$1" | grep -q "^revision $wanted\$" ;;
    *) cvs log -h -- "$1" | grep -q "^	$wanted: " ;;
  esac
}

open_folder "$units"
if [ -n "$to" ]; then
  file=$(relative "$units")
  [ -z "$wanted" ] || has_revision "$file" ||
    fail "There is no label or revision '$wanted' of '$file' in the archive."
  # Without a tag: the newest revision, whatever the folder holds.
  sticky=-A
  [ -z "$wanted" ] || sticky=-r$wanted
  cvs update -p "$sticky" -- "$file" >"$to" 2>"$to.errors" || {
    cat "$to.errors" >&2
    rm -f -- "$to" "$to.errors"
    exit 1
  }
  rm -f -- "$to.errors"
  exit
fi
if [ -z "$wanted" ]; then
  bring_newest "$units"
  exit
fi
in_archive "$units"
changed=$(state_of "$units" | sed -n 's/^[MC] //p')
[ -z "$changed" ] ||
  fail "'${changed%%"$newline"*}' has local changes; check it in, or undo them first."
relative "$units" | while IFS= read -r file; do
  has_revision "$file" || fail "There is no label or revision '$wanted' of '$file' in the archive."
done
on "$units" update -r "$wanted" --

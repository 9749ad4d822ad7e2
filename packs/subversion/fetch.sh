# fetch.sh UNITS [--to=FILE] [LABEL]: brings the newest revision, or that of a label: a number, a date in
# braces, or the name of one. Local changes are merged, never overwritten. With --to the revision of a
# single unit goes there, and the file here is left alone.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

read_fetch "$@"
revision=${wanted:-HEAD}

number=$(revision_of "$revision")
[ -n "$number" ] || fail "There is no label or revision '$revision' in the archive."
if [ -n "$to" ]; then
  svn cat --revision "$number" -- "$units@" >"$to"
  exit
fi
name_targets "$units"
on_targets update --parents --revision "$number" || exit
# svn is content with files that it does not know.
stranger=$(on_targets status --depth empty 2>&1 |
  sed -n "s/^?       //p; s/^svn: warning: W155010: The node '\(.*\)' was not found.*/\1/p" | head -n 1)
[ -z "$stranger" ] || fail "'$stranger' is not in the archive; add it first."

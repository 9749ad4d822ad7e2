# fetch.sh UNITS [LABEL]: brings the newest revision, or that of a label: a number, a date in braces, or
# the name of one. Local changes are merged, never overwritten.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

name_targets "$1"
revision=${2:-HEAD}
number=$(revision_of "$revision") && [ -n "$number" ] ||
  fail "There is no label or revision '$revision' in the archive."
tr '\n' '\000' <"$targets" |
  xargs -0 svn --non-interactive update --parents --revision "$number" --

# list.sh: a line a file: newest revision, editors, RW while there is one, path below this folder; with
# tabs between.
. "${0%/*}/common.sh"

open_folder
module=$(cat CVS/Repository)
editors=$(mktemp "${TMPDIR:-/tmp}/veldra-cm-$$-XXXXXX")
trap 'rm -f "$editors"' EXIT
cvs editors >"$editors" 2>/dev/null || :
{ cvs rls -e -R -- "$module" || printf '\001\n'; } |
  awk -v module="$module" -f "${0%/*}/list.awk" "$editors" -

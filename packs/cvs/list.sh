# list.sh [--here]: a line a file: newest revision, editors, RW while there is one, path below this folder;
# with tabs between. --here lists what the folder came by, without asking the archive.
. "${0%/*}/common.sh"

if [ "${1:-}" = --here ]; then
  find . -type d -name CVS | sed 's|/CVS$||' | revisions | awk -F '\t' '{ print $2 "\t\tRO\t" $1 }'
  exit
fi
open_folder
module=$(cat CVS/Repository)
editors=$(scratch)
trap 'rm -f "$editors"' EXIT
cvs editors >"$editors" 2>/dev/null || :
{ cvs rls -e -R -- "$module" || printf '\001\n'; } |
  awk -v module="$module" -f "${0%/*}/list.awk" "$editors" -

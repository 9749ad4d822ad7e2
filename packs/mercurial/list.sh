# list.sh [--here]: a line a file: newest commit that changed it, nothing, RO, path below this folder;
# with tabs between. --here lists what the folder came by, without asking the archive.
. "${0%/*}/common.sh"

open_repository
if [ "${1:-}" = --here ]; then
  state=.
else
  receive || give_up
  state=${tip:-$base}
fi
prefix=$(pwd -P)
prefix=${prefix#"$top"}
{
  hg files -r "$state" -T '{path}\n' -- "$PWD" || :
  echo
  hg log -r "reverse(::$state)" -T '{short(node)}\n{files % "\t{file}\n"}'
} | awk -v prefix="${prefix#/}" -f "${0%/*}/list.awk"

# list.sh: a line a file: newest commit that changed it, nothing, RO, path below this folder; with
# tabs between.
. "${0%/*}/common.sh"

open_repository
receive || give_up
prefix=$(pwd -P)
prefix=${prefix#"$top"}
state=${tip:-$base}
{
  hg files -r "$state" -T '{path}\n' -- "$PWD" || :
  echo
  hg log -r "reverse(::$state)" -T '{short(node)}\n{files % "\t{file}\n"}'
} | awk -v prefix="${prefix#/}" -f "${0%/*}/list.awk"

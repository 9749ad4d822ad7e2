# list.sh: a record a file, each with a zero byte behind it: mode, kind and object, then the holder of
# a lock where there is one, a tab, the path below this folder.
. "${0%/*}/common.sh"
. "${0%/*}/locks.sh"

open_repository
receive || give_up
[ -n "$tip" ] || exit 0
if has_locks; then
  list=$(mktemp "${TMPDIR:-/tmp}/veldra-cm-$$-XXXXXX")
  trap 'rm -f "$list"' EXIT
  holders >"$list"
  git ls-tree -r -z --abbrev=12 "$tip" | tr '\n\000' '\001\n' |
    awk -v prefix="$(git rev-parse --show-prefix)" -f "${0%/*}/list.awk" "$list" - |
    tr '\n\001' '\000\n'
else
  exec git ls-tree -r -z --abbrev=12 "$tip"
fi

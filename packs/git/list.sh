# list.sh [--here]: a record a file, each with a zero byte behind it: mode, kind and object, then the
# holder of a lock where there is one, a tab, the path below this folder. --here lists what the folder
# came by, without asking the archive.
. "${0%/*}/common.sh"
. "${0%/*}/locks.sh"

if [ "${1:-}" = --here ]; then
  git ls-files --stage -z --abbrev=12 | tr '\n\000' '\001\n' |
    sed 's/^\([0-7]*\) \([0-9a-f]*\) [0-3]/\1 blob \2/' | tr '\n\001' '\000\n'
  exit
fi

open_repository
receive || give_up
[ -n "$tip" ] || exit 0
if has_locks; then
  list=$(scratch)
  trap 'rm -f "$list"' EXIT
  holders >"$list"
  git ls-tree -r -z --abbrev=12 "$tip" | tr '\n\000' '\001\n' |
    awk -v prefix="$(git rev-parse --show-prefix)" -f "${0%/*}/list.awk" "$list" - |
    tr '\n\001' '\000\n'
else
  exec git ls-tree -r -z --abbrev=12 "$tip"
fi

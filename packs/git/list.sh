# list.sh [--here]: a record a file, each with a zero byte behind it: mode, kind and object, then the
# holder of a lock where there is one, a tab, the path below this folder. --here lists what the folder
# came by, without asking the archive: mode, object and stage, a tab, the path.
. "${0%/*}/common.sh"
. "${0%/*}/locks.sh"

[ "${1:-}" != --here ] || exec git ls-files --stage -z

# begin_listing: mostly the archive holds what it held when it was asked last, so that is listed while
# it is asked again. Sets $begun to that commit, and $branch.
begun=
begin_listing() {
  answer=$(git rev-parse '@{upstream}^{commit}' --symbolic-full-name HEAD 2>/dev/null) || return 0
  place=${TMPDIR:-/tmp}/veldra-cm-$$-listed
  # What lies there already is not ours.
  (umask 077 && set -C && : >"$place") 2>/dev/null || return 0
  exec 3>"$place" 4<"$place"
  rm -f -- "$place" &
  begun=${answer%%"$newline"*}
  branch=${answer#*"$newline"}
  git ls-tree -r -z "$begun" >&3 2>/dev/null &
  lister=$!
}

# is_unchanged: whether the archive still holds what is being listed.
is_unchanged() {
  [ -n "$begun" ] && [ -n "$remote" ] && [ -z "${target##refs/heads/*}" ] || return
  run git ls-remote -q --heads -- "$remote" "$target" || give_up
  received=yes
  case $newline$answer$newline in
    *"$newline$begun	$target$newline"*) ;;
    *) return 1 ;;
  esac
}

begin_listing
open_repository
if is_unchanged; then
  tip=$begun
else
  receive || give_up
  [ -n "$tip" ] || exit 0
fi
set -- git ls-tree -r -z "$tip"
if [ -n "$begun" ] && wait "$lister" && [ "$begun" = "$tip" ]; then
  exec <&4
  set -- cat
fi
if has_locks; then
  list=$(scratch)
  trap 'rm -f "$list"' EXIT
  holders >"$list"
  "$@" | tr '\n\000' '\001\n' |
    awk -v prefix="$(git rev-parse --show-prefix)" -f "${0%/*}/list.awk" "$list" - |
    tr '\n\001' '\000\n'
else
  exec "$@"
fi

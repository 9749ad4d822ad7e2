# list.sh [--here]: a record a file, each with a zero byte behind it: mode, kind and object, then the
# holder of a lock where there is one, a tab, the path below this folder. After a record "again" all
# begins anew. --here lists what the folder came by, without asking the archive: mode, object and
# stage, a tab, the path.
. "${0%/*}/common.sh"
. "${0%/*}/locks.sh"

[ "${1:-}" != --here ] || exec git ls-files --stage -z

# look_up REF: sets $commit to what git has noted for a reference, without starting git; empty where
# that is not quickly seen.
look_up() {
  commit=
  if [ -f ".git/$1" ]; then
    read -r commit <".git/$1" || :
  elif [ -f .git/packed-refs ]; then
    lines=0
    while [ "$((lines += 1))" -lt 50 ] && read -r commit name; do
      [ "${name:-}" != "$1" ] || break
      commit=
    done <.git/packed-refs
  fi
  case $commit in
    *[!0-9a-f]*) commit= ;;
  esac
}

# begin_listing: mostly the archive holds what it held when it was asked last, so that is listed while
# it is asked again. Sets $begun to that commit, and $branch.
begun=
begin_listing() {
  head=
  [ ! -f .git/HEAD ] || read -r head <.git/HEAD || :
  look_up "refs/remotes/origin/${head#ref: refs/heads/}"
  if [ -n "$commit" ]; then
    begun=$commit branch=${head#ref: }
  else
    answer=$(git rev-parse '@{upstream}^{commit}' --symbolic-full-name HEAD 2>/dev/null) || return 0
    begun=${answer%%"$newline"*} branch=${answer#*"$newline"}
  fi
  git ls-tree -r -z "$begun" 2>/dev/null &
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
fi
if [ -n "$begun" ]; then
  ! wait "$lister" || [ "$begun" != "$tip" ] || has_locks || exit 0
  printf 'again\000'
fi
[ -n "$tip" ] || exit 0
if has_locks; then
  list=$(scratch)
  trap 'rm -f "$list"' EXIT
  holders >"$list"
  git ls-tree -r -z "$tip" | tr '\n\000' '\001\n' |
    awk -v prefix="$(git rev-parse --show-prefix)" -f "${0%/*}/list.awk" "$list" - |
    tr '\n\001' '\000\n'
else
  exec git ls-tree -r -z "$tip"
fi

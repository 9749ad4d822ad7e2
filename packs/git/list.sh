# list.sh [--here]: a record a file, each with a zero byte behind it: mode, kind and object, a tab, the
# path below this folder; before that "by", the holder and a byte 2 where somebody holds its lock. After
# a record "again" all begins anew. --here lists what the folder came by, without asking the archive:
# mode, object and stage, a tab, the path.
. "${0%/*}/common.sh"
. "${0%/*}/locks.sh"

[ "${1:-}" != --here ] || exec git ls-files --stage -z

# look_up PLACE REF: sets $commit to what a repository has noted for a reference, without starting git;
# empty where that is not quickly seen.
look_up() {
  commit=
  if [ -f "$1/$2" ]; then
    read -r commit <"$1/$2" || :
  elif [ -f "$1/packed-refs" ]; then
    lines=0
    while [ "$((lines += 1))" -lt 50 ] && read -r commit name; do
      [ "${name:-}" != "$2" ] || break
      commit=
    done <"$1/packed-refs"
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
  look_up .git "refs/remotes/origin/${head#ref: refs/heads/}"
  if [ -n "$commit" ]; then
    begun=$commit branch=${head#ref: }
  else
    answer=$(git rev-parse '@{upstream}^{commit}' --symbolic-full-name HEAD 2>/dev/null) || return 0
    begun=${answer%%"$newline"*} branch=${answer#*"$newline"}
  fi
  git ls-tree -r -z "$begun" 2>/dev/null &
  lister=$!
}

# looks_unchanged: whether an archive on this machine is seen to hold what is being listed. No git is
# needed for that where no other address stands for the folder.
looks_unchanged() {
  case $settings in
    *"remote.$remote.url "*"remote.$remote.url "* | *".insteadof "*) return 1 ;;
  esac
  setting "remote.$remote.url"
  case $value in
    /*) look_up "$value" "$target" ;;
    *) return 1 ;;
  esac
  [ "$commit" = "$begun" ]
}

# is_unchanged: whether the archive still holds what is being listed.
is_unchanged() {
  [ -n "$begun" ] && [ -n "$remote" ] && [ -z "${target##refs/heads/*}" ] || return
  if looks_unchanged; then
    received=yes
    return
  fi
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

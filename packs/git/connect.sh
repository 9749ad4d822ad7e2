# connect.sh ARCHIVE DIRECTORY: makes the directory a clone of the archive; the files that lie there
# are kept. A clone of the archive, or a folder in one, is fine as it is. When the archive is the
# directory itself, it becomes a repository without another one to push to.
. "${0%/*}/common.sh"
. "${0%/*}/newest.sh"
. "${0%/*}/locks.sh"

archive=$1
cd -- "$2"
here=$(pwd -P)

# is_clone_of ARCHIVE
is_clone_of() {
  top=$(git rev-parse --show-toplevel 2>/dev/null) || return
  [ "$top" != "$(real "$1")" ] || return 0
  git config --get-regexp '^remote\..*\.url$' | while read -r _ url; do
    [ "$(real "$url")" != "$(real "$1")" ] || echo yes
  done | grep -q yes
}

clone() {
  silence_ssh
  new=$(scratch_in "$here" -d)
  trap 'rm -rf "$new"' EXIT
  run git clone -q --no-checkout -- "$archive" "$new/it" || give_up
  mv "$new/it/.git" "$here/.git"
  rm -rf "$new"
  trap - EXIT
}

if is_clone_of "$archive"; then
  :
elif [ -e "$here/.git" ]; then
  fail "'$here' is already a repository of its own, connected to \
'$(git config remote.origin.url || echo nothing)'. Connect a fresh folder, or set the archive to that."
elif [ "$here" = "$(real "$archive")" ]; then
  git init -q
else
  clone
fi

read_settings
open_repository
receive || give_up
if [ "$(git config veldra.connected || :)" != true ]; then
  [ -z "$tip" ] || [ -e "$(git rev-parse --git-path index)" ] || git reset -q "$tip"
  settle
  git config veldra.connected true
fi
find_locks
printf 'Archive Path: %s\n' "$archive"

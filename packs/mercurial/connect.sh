# connect.sh ARCHIVE DIRECTORY: makes the directory a clone of the archive; the files that lie there
# are kept. A clone of the archive, or a folder in one, is fine as it is. When the archive is the
# directory itself, it becomes a repository without another one to push to.
. "${0%/*}/common.sh"
. "${0%/*}/newest.sh"

archive=$1
cd -- "$2"
here=$(pwd -P)

# is_clone: of the archive, or the archive itself.
is_clone() {
  find_top || return
  for place in "$top" "$(remote_of "$top")"; do
    [ "$(real "$place")" != "$(real "$archive")" ] || return 0
  done
  return 1
}

clone() {
  new=$(scratch_in "$here" -d)
  trap 'rm -rf "$new"' EXIT
  run hg clone -q --noupdate -- "$archive" "$new/it" || give_up
  mv "$new/it/.hg" "$here/.hg"
  rm -rf "$new"
  trap - EXIT
}

if is_clone; then
  :
elif [ -e "$here/.hg" ]; then
  fail "'$here' is already a repository of its own, connected to \
'$(remote_of "$here")'. Connect a fresh folder, or set the archive to that."
elif [ "$here" = "$(real "$archive")" ]; then
  hg init
else
  clone
fi

open_repository
receive || give_up
case $base in
  *[!0]*) [ -e "$top/.hg/veldra-connected" ] || set_modes ;;
  *) [ -z "$tip" ] || settle ;;
esac
: >"$top/.hg/veldra-connected"
printf 'Archive Path: %s\n' "$archive"

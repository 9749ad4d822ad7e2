# Sourced by the helpers that are told an archive: a repository, and the module in it. Two slashes
# stand between both; in a local path they may be one.

# find_place ARCHIVE: sets $root and $module.
find_place() {
  module=model
  case $1 in
    '') fail "No archive is set." ;;
    :*//* | *:*//*)
      root=${1%//*}
      module=${1##*//}
      ;;
    :* | *:*)
      fail "The archive '$1' names no module. Two slashes go before it: ${1%/*}//${1##*/}"
      ;;
    *)
      root=$1
      until [ -d "$root/CVSROOT" ]; do
        root=${root%/*}
        [ -n "$root" ] || break
      done
      root=${root:-$1}
      [ "$root" = "$1" ] || module=${1#"$root/"}
      ;;
  esac
}

# is_remote
is_remote() {
  case $root in
    *:*) ;;
    *) return 1 ;;
  esac
}

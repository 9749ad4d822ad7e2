# svn.sh ARGUMENT...: svn itself, with what common.sh does for it.
. "${0%/*}/common.sh"

svn "$@"

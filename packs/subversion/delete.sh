# delete.sh PATH [COMMENTFILE]: removes a file, or a directory with everything in it, from the
# archive. What is changed, or not in the archive, is never removed.
. "${0%/*}/common.sh"
. "${0%/*}/tree.sh"

target=$1@ comment=$2

[ ! -d "$1" ] || make_current "$1"
svn delete --quiet -- "$target" || exit
depth=infinity
commit "$comment" -- "$target" && show && exit
svn revert --quiet --recursive -- "$target"
give_up

# checkin.sh FILE@ [COMMENTFILE]: commits a file and gives its lock back.
. "${0%/*}/common.sh"

target=$1
commit "$2" -- "$target" || give_up
if [ -n "$answer" ]; then
  show
  exit
fi
# A commit that finds nothing to send leaves the lock as it is.
run svn unlock -- "$target" && show && exit
case $answer in
  *E195013:*) printf "'%s' is unchanged.\n" "${target%@}" ;;
  *) give_up ;;
esac

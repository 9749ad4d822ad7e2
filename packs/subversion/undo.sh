# undo.sh FILE@: drops local changes and gives the lock back.
. "${0%/*}/common.sh"

svn revert -- "$1" || exit
run svn unlock -- "$1" && show && exit
case $answer in
  *E195013:*) ;; # It was not locked.
  # svn has forgotten the broken lock by now.
  *W160040:*) printf 'The lock had been broken by somebody else.\n' ;;
  *) give_up ;;
esac

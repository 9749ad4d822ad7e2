# checkout.sh --locked|--unlocked FILE@ [REVISION]: brings a file from the archive, with or without
# a lock.
. "${0%/*}/common.sh"

mode=$1 target=$2 revision=$3

if [ "$mode" = --unlocked ]; then
  svn update --parents --revision "${revision:-HEAD}" -- "$target"
  exit
fi
case $revision in
  '' | HEAD) ;;
  *) fail "Only the newest revision can be checked out; fetch revision '$revision' instead." ;;
esac

run svn lock -- "$target" && show && exit
case $answer in
  # The working copy is behind the archive, or does not have the file yet.
  *W160042:* | *E160042:* | *E155010:* | *E155007:*)
    svn update --parents -- "$target" && svn lock -- "$target"
    ;;
  *) give_up ;;
esac

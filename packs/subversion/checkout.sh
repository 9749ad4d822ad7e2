# checkout.sh --locked|--unlocked FILE [LABEL]: brings a file from the archive, with or without a lock.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

mode=$1 target=$2@ revision=${3:-HEAD}

if [ "$mode" = --unlocked ]; then
  number=$(revision_of "$revision")
  [ -n "$number" ] || fail "There is no label or revision '$revision' in the archive."
  svn update --parents --revision "$number" -- "$target"
  exit
fi
[ "$revision" = HEAD ] ||
  fail "Only the newest revision can be checked out; fetch revision '$revision' instead."

run svn lock -- "$target" && show && exit
case $answer in
  # The working copy is behind the archive, or does not have the file yet.
  *W160042:* | *E160042:* | *E155010:* | *E155007:*)
    svn update --parents -- "$target" && svn lock -- "$target"
    ;;
  *) give_up ;;
esac

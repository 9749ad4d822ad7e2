# checkout.sh --locked|--unlocked UNITS [REVISION]: brings files from the archive, with or without a
# lock.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

mode=$1 revision=${3:-HEAD}
name_targets "$2"

update() {
  tr '\n' '\000' <"$targets" | xargs -0 svn --non-interactive update --parents --revision "$1" --
}

if [ "$mode" = --unlocked ]; then
  number=$(revision_of "$revision") && [ -n "$number" ] ||
    fail "There is no label or revision '$revision' in the archive."
  update "$number"
  exit
fi
[ "$revision" = HEAD ] ||
  fail "Only the newest revision can be checked out; fetch revision '$revision' instead."

run svn lock --targets "$targets" && show && exit
# Of several files some may be locked now.
held | sed 's/^/done: /; s/@$//' >"$work/done"
case $answer in
  # The working copy is behind the archive, or does not have the file yet.
  *W160042:* | *E160042:* | *E155010:* | *E155007:*)
    if [ "$(wc -l <"$targets")" -eq 1 ]; then
      update HEAD && svn lock --targets "$targets"
      exit
    fi
    ;;
esac
[ -s "$work/done" ] || give_up
cat "$work/done"
show
exit 1

# checkout.sh --locked|--unlocked|--lock UNITS [LABEL]: brings files from the archive, with or without
# locks. --lock leaves their content as it is. Files that are locked in this folder already are fine. Of
# several files that cannot all be locked, those that are get a line "done: PATH"; the caller then tries
# the others one by one.
. "${0%/*}/common.sh"

mode=$1 units=$2 revision=${3:-HEAD}

. "${0%/*}/labels.sh"
name_targets "$units"

# lock: what svn complains about is kept.
lock() {
  svn lock --targets "$targets" 2>"$work/refused"
}

# locked_here: those of $targets that are; a lock that somebody has taken away does not count.
locked_here() {
  on_targets status --show-updates --depth empty | sed -n 's/^.\{5\}K.\{15\}//p'
}

if [ "$mode" = --unlocked ]; then
  number=$(revision_of "$revision")
  [ -n "$number" ] || fail "There is no label or revision '$revision' in the archive."
  update "$number"
  exit
fi
[ "$revision" = HEAD ] ||
  fail "Only the newest revision can be checked out; fetch revision '$revision' instead."

lock && exit
case "$mode $units $(cat "$work/refused")" in
  '--lock '* | '--locked @'*) ;;
  # The working copy is behind the archive, or does not have the file yet.
  *W160042:* | *E160042:* | *E155010:* | *E155007:*)
    update HEAD && svn lock --targets "$targets"
    exit
    ;;
esac
locked_here >"$work/locked" 2>/dev/null
[ "$(wc -l <"$work/locked")" -lt "$(wc -l <"$targets")" ] || exit 0
tell "done" "$work/locked"
cat "$work/refused" >&2
exit 1

# checkout.sh --locked|--unlocked UNITS [LABEL]: brings files from the archive, with or without locks. Of
# several files that cannot all be locked, those that are get a line "done: PATH"; the caller then
# tries the others one by one.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

mode=$1 units=$2 revision=${3:-HEAD}
name_targets "$units"

# update REVISION
update() {
  tr '\n' '\000' <"$targets" |
    xargs -0 sh "${0%/*}/svn.sh" update --parents --revision "$1" --
}

# lock: what svn complains about comes behind what it has done.
lock() {
  svn lock --targets "$targets" 2>"$work/refused"
}

if [ "$mode" = --unlocked ]; then
  number=$(revision_of "$revision")
  [ -n "$number" ] || fail "There is no label or revision '$revision' in the archive."
  update "$number"
  exit
fi
[ "$revision" = HEAD ] ||
  fail "Only the newest revision can be checked out; fetch revision '$revision' instead."

answer=$(lock) && show && exit
printf '%s\n' "$answer" | sed -n "s/^'\(.*\)' locked by user '[^']*'\.\$/\1/p" >"$work/locked"
tell "done" "$work/locked"
case $units$(cat "$work/refused") in
  @*) ;;
  # The working copy is behind the archive, or does not have the file yet.
  *W160042:* | *E160042:* | *E155010:* | *E155007:*)
    update HEAD && svn lock --targets "$targets"
    exit
    ;;
esac
cat "$work/refused" >&2
exit 1

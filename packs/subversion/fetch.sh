# fetch.sh UNITS [--to=FILE] [LABEL]: brings the newest revision, or that of a label: a number, a date in
# braces, or the name of one. Local changes are merged, never overwritten. With --to the revision of a
# single unit goes there, and the file here is left alone.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

# lacks REVISION TARGETS: whether the archive does not have one of them there; other failures do not count.
lacks() {
  tr '\n' '\000' <"$2" | xargs -0 sh "${0%/*}/svn.sh" info --revision "$1" -- 2>&1 >/dev/null |
    grep -q ' non-existent in revision '
}

# lacking REVISION: the first of $targets that the archive does not have there. svn would take it away.
lacking() {
  sed "s/\$/$1/" "$targets" >"$work/then"
  lacks "$1" "$work/then" || return 0
  while IFS= read -r target; do
    printf '%s\n' "$target" >"$work/one"
    ! lacks "$1" "$work/one" || { printf '%s\n' "${target%@*}"; return; }
  done <"$work/then"
}

read_fetch "$@"
revision=${wanted:-HEAD}

number=$(revision_of "$revision")
[ -n "$number" ] || fail "There is no label or revision '$revision' in the archive."
if [ -n "$to" ]; then
  svn cat --revision "$number" -- "$units@" >"$to"
  exit
fi

name_targets "$units"
case $number in
  HEAD | BASE | COMMITTED | PREV) ;;
  *)
    later=$(lacking "$number")
    [ -z "$later" ] || fail "'$later' is not in '$revision': it was added, moved or renamed later."
    ;;
esac
update "$number"
# svn is content with files that it does not know.
stranger=$(on_targets status --depth empty 2>&1 |
  sed -n "s/^?       //p; s/^svn: warning: W155010: The node '\(.*\)' was not found.*/\1/p" | head -n 1)
[ -z "$stranger" ] || fail "'$stranger' is not in the archive; add it first."
refuse_gone

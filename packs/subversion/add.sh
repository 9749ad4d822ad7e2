# add.sh KIND UNITS [--label=LABEL] [COMMENTFILE]: puts files under control, together with the
# directories above them that are not yet. KIND is "text" for files whose keywords are expanded,
# "plain" for those whose bytes stay.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

kind=$1
name_targets "$2"
shift 2
read_options "$@"
check_label
properties='svn:needs-lock=*'
[ "$kind" = plain ] || properties="$properties;svn:keywords=Id Revision"

# One line a path that is new, the path from column 11 on. Properties come with the add: setting
# them by commands of their own would double the number of processes.
schedule() {
  svn add --force --parents --config-option config:miscellany:enable-auto-props=yes \
    --config-option "config:auto-props:*=$properties" --targets "$targets"
}

# The same lines for what an interrupted add left behind.
scheduled_before() {
  while read -r path; do
    path=${path%@}
    while state=$(svn status --depth empty -- "$path@") && [ "${state#A}" != "$state" ]; do
      printf 'A         %s\n' "$path"
      path=${path%/*}
    done
  done <"$targets" | sort -u
}

# add_and_commit: as `commit`; after a failure nothing is left scheduled.
add_and_commit() {
  schedule >"$work/added" || exit
  [ -s "$work/added" ] || scheduled_before >"$work/added"
  [ -s "$work/added" ] || fail "'$(sed '1s/@$//;q' "$targets")' is in the archive already."
  sed 's/^..........//; s/$/@/' "$work/added" >"$work/new"
  # Bytes that look like a keyword may be anything in a binary file.
  if [ "$kind" = text ] && sed -n 's/^A  (bin)  \(.*\)/\1@/p' "$work/added" >"$work/binary" &&
    [ -s "$work/binary" ]; then
    svn propdel --quiet svn:keywords --targets "$work/binary" || exit
  fi
  commit "$comment" --targets "$work/new" && return
  reason=$answer
  # The files stay.
  svn revert --quiet --recursive --targets "$work/new"
  answer=$reason
  return 1
}

if ! add_and_commit; then
  case $answer in
    *E155011:* | *E160020:*)
      # Somebody else has added the directory. It alone is taken over, its files are not.
      [ "$(wc -l <"$targets")" -eq 1 ] && [ "$(wc -l <"$work/new")" -gt 1 ] || give_up
      directory=$(sed 's|/[^/]*$||' "$targets")
      svn update --quiet --force --parents --depth empty -- "$directory@" && add_and_commit || give_up
      ;;
    *) give_up ;;
  esac
fi
show
attach_label

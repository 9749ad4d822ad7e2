# add.sh KIND FILE@ [COMMENTFILE]: puts a file under control, together with the directories above it
# that are not yet. KIND is "text" for a file whose keywords are expanded, "plain" for one whose
# bytes stay.
. "${0%/*}/common.sh"
. "${0%/*}/schedule.sh"

kind=$1 target=$2 comment=$3

# The same lines for what an interrupted add left behind.
scheduled_before() {
  path=${target%@}
  while state=$(svn status --depth empty -- "$path@") && [ "${state#A}" != "$state" ]; do
    printf 'A         %s\n' "$path"
    path=${path%/*}
  done
}

set -f
IFS='
'
# add_and_commit: as `commit`; after a failure nothing is left scheduled.
add_and_commit() {
  added=$(schedule "$kind" -- "$target") || exit
  [ -n "$added" ] || added=$(scheduled_before)
  [ -n "$added" ] || fail "'${target%@}' is in the archive already."
  set --
  for line in $added; do set -- "$@" "${line#??????????}@"; done
  case $kind$added in
    # Bytes that look like a keyword may be anything in a binary file.
    text*'A  (bin)'*) svn propdel --quiet svn:keywords -- "$target" || exit ;;
  esac
  commit "$comment" -- "$@" && return
  new_directories=$(($# - 1))
  # From the topmost new directory down; the files stay.
  svn revert --quiet --recursive -- "$1"
  return 1
}

add_and_commit && show && exit
case $new_directories$answer in
  0*) ;;
  *E155011:* | *E160020:*)
    # Somebody else has added the directory. It alone is taken over, its files are not.
    directory=${target%/*}
    svn update --quiet --force --parents --depth empty -- "$directory@" &&
      add_and_commit && show && exit
    ;;
esac
give_up

# Sourced by the helpers that move or delete: whole directories, and ways back.

# not_held FILE: fails, and names who holds the lock of the file in another place.
not_held() {
  holder=$(svn info -- "$(svn info --show-item url -- "$1@")@" | sed -n 's/^Lock Owner: //p')
  [ -z "$holder" ] || fail "'$1' is locked by $holder in another place."
}

# make_current DIRECTORY [FILE]: brings the whole directory to one revision, which svn needs before
# it moves or removes it. Changes of others are not taken over unseen; changes of the user that
# would go into the archive by the way, FILE aside, are in the way, too.
make_current() {
  state=$(svn status --show-updates -- "$1@") || exit
  newer=$(printf '%s\n' "$state" | sed -n '/^........\*/ { s/^.\{21\}//p; q; }')
  [ -z "$newer" ] || fail "Somebody has changed '$newer' meanwhile; fetch it first."
  held=$(printf '%s\n' "$state" | sed -n '/^.\{5\}[OT]/ { s/^.\{21\}//p; q; }')
  [ -z "$held" ] || not_held "$held"
  changed=$(printf '%s\n' "$state" | sed -n '/^[ACDMR!~]/ s/^.\{21\}//p; /^ [CM]/ s/^.\{21\}//p' |
    grep -v -x -F -e "$2" | head -n 1)
  [ -z "$changed" ] || fail "'$changed' has changes; check it in, or undo them first."
  svn update --quiet -- "$1@" || exit
}

# new_parents PATH: sets $new_parents to the directories above the path that are only scheduled, one
# a line, the topmost last.
new_parents() {
  path=${1%/*}
  new_parents=
  while state=$(svn status --depth empty -- "$path@") && [ "${state#A}" != "$state" ]; do
    new_parents="$new_parents$path@$newline"
    path=${path%/*}
  done
}

# revert_new PATH: takes back what is scheduled at the path and above it, without files.
revert_new() {
  svn revert --quiet --recursive -- ${new_parents:-"$1@"}
}

# remove_new_parents: for directories that are empty by now.
remove_new_parents() {
  for parent in $new_parents; do rmdir -- "${parent%@}"; done 2>/dev/null
}

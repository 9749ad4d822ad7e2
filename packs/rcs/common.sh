# Sourced by the helpers beside it.
#
# They name a file by its archive file ("...,v") and the directory that it is worked on in, which ends
# with a slash. The first "/./" in a place of the archive tells where the archive itself ends. The tools
# print no translated texts, and names and contents are bytes to them. Only what ends in ",v" is an archive file: by default so is everything below any directory "RCS".
. "${0%/*}/../common/leftovers.sh"
export LC_ALL=C RCSINIT=-x,v

newline='
'

fail() {
  printf 'rcs archive: %s\n' "$1" >&2
  exit 1
}

for program in ci co rcs rcsdiff rlog; do
  command -v "$program" >/dev/null || fail "The program '$program' is not installed or not in PATH."
done

# find_archive PLACE: sets $place, without the mark in it. Fails when there is no archive: a disk that is
# away must not look like an empty one.
find_archive() {
  place=$1
  case $1 in
    */./*)
      root=${1%%/./*}
      place=$root/${1#*/./}
      [ -d "$root" ] || fail "The archive '$root' is not a directory."
      ;;
  esac
}

# in_archive: fails unless $archived exists.
in_archive() {
  [ -f "$archived" ] || fail "'$archived' does not exist; the file is not in the archive."
}

# newest: the newest revision of $archived.
newest() {
  sed -n '1s/^head[[:space:]]*\(.*\);.*/\1/p' "$archived"
}

# works_elsewhere PROCESS: who works on an archive file has the file open that tells so.
works_elsewhere() {
  for open in "$1"/fd/*; do
    [ ! "$open" -ef "$lock" ] || return 1
  done
}

# name_files ARCHIVEFILE DIRECTORY: sets $archived and $working.
name_files() {
  find_archive "$1"
  archived=$place
  working=${archived##*/}
  working=$2${working%,v}
  case $working in
    *,v) fail "RCS takes every name that ends in ',v' for an archive file; rename '$working'." ;;
  esac
  # Who works on an archive file holds it by a file of such a name; a killed process leaves that.
  semaphore=${archived%/*}/,${working##*/},
  [ ! -e "$semaphore" ] || clear_lock "$semaphore" '' ci co rcs rcsclean
}

# is_archived: whether $working has the content of a revision; mostly of the newest.
is_archived() {
  ! rcsdiff -q "$archived" "$working" >/dev/null 2>&1 || return 0
  for revision in $(rlog "$archived" | sed -n 's/^revision \([0-9.]*\).*/\1/p'); do
    ! rcsdiff -q "-r$revision" "$archived" "$working" >/dev/null 2>&1 || return 0
  done
  return 1
}

# lockers ARCHIVEFILE: who holds locks, one a line.
lockers() {
  rlog -h "$1" | sed -n '/^locks:/,/^access list:/ s/^\t\([^:]*\):.*/\1/p'
}

# user: the name that the RCS tools take for the user's.
user() {
  printf '%s\n' "${LOGNAME:-${USER:-$(id -un)}}"
}

# holds_lock: whether the user holds $archived.
holds_lock() {
  lockers "$archived" | grep -q -x -F -e "$(user)"
}

# is_checked_out: whether the user holds $archived, and may write $working.
is_checked_out() {
  [ -n "$(find "$working" -maxdepth 0 -type f -perm -u+w 2>/dev/null)" ] &&
    holds_lock
}

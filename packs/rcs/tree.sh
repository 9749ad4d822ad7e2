# Sourced by the helpers that move or delete. An archive file is found by the directory that the
# archive files of the model lie below and the model's own directory.

# archived_of ROOT MODEL FILE: the archive file of a file of the model.
archived_of() {
  place=${3%/*}
  printf '%s/RCS/%s,v\n' "$1${place#"$2"}" "${3##*/}"
}

# not_held_by_others ARCHIVEFILE
not_held_by_others() {
  other=$(lockers "$1" | grep -v -x -F -e "$(user)" | head -n 1)
  [ -z "$other" ] || fail "'$1' is locked by $other."
}

# archive_files DIRECTORY: every archive file below it that is in use, one a line.
archive_files() {
  find "$1" -path '*/RCS/*,v' -type f ! -path '*/RCS/Attic/*' | sort
}

# check_in_held ARCHIVEFILE WORKING/ COMMENTFILE: what the user has checked out goes in, and so does
# a comment.
check_in_held() {
  name_files "$1" "$2"
  if [ -n "$(lockers "$archived")" ]; then
    check_in "$3" -u
  elif [ -f "$3" ] && [ -s "$3" ]; then
    co -q -l "$archived" "$working" && check_in "$3" -f -u
  fi
}

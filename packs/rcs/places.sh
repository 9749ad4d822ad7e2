# Sourced by the helpers that delete and move; they are told the archive's directory and that of the
# project, and find archive files by the paths of files.

# name_places ARCHIVE PROJECT: sets $archive and $project. Where keywords are not replaced, only an archive
# beside the files can be found.
name_places() {
  archive=$1 project=${2%/}
  case $archive in
    .) archive=$project ;;
    '$'*)
      archive=$PWD project=$PWD
      [ -d "$path/RCS" ] || fail "The archive of '$path' is not known here; delete its package instead."
      ;;
  esac
}

# archive_directory DIRECTORY: where the archive keeps what belongs to a directory of the project.
archive_directory() {
  case $1 in
    "$project") printf '%s\n' "$archive" ;;
    "$project"/*) printf '%s/%s\n' "$archive" "${1#"$project"/}" ;;
    *) fail "'$1' lies outside the project." ;;
  esac
}

# archive_file FILE
archive_file() {
  printf '%s/RCS/%s,v\n' "$(archive_directory "${1%/*}")" "${1##*/}"
}

# archive_files DIRECTORY: the archive files of all that is below it.
archive_files() {
  find "$1" -path "*/RCS/*,v" ! -path "*/RCS/*/*" -type f
}

# working_file ARCHIVEFILE PLACE DIRECTORY: where a file is worked on, when the place in the archive
# belongs to the directory.
working_file() {
  printf '%s\n' "$3/${1#"$2"/}" | sed 's|RCS/\([^/]*\),v$|\1|'
}

# refuse_held ARCHIVEFILE...: fails when somebody else has locked one of them.
refuse_held() {
  me=${LOGNAME:-${USER:-$(id -un)}}
  for archived do
    holder=$(rlog -h "$archived" | awk -v me="$me" '
      /^access list:/ { exit }
      inLocks { sub(/:$/, "", $1); if ($1 != me) { print $1; exit } }
      /^locks:/ { inLocks = 1 }')
    [ -z "$holder" ] || fail "revision of '$archived' locked by $holder; it stays where it is."
  done
}

# is_unchanged ARCHIVEFILE FILE: whether the file is as in the archive, or not there at all.
is_unchanged() {
  [ ! -e "$2" ] || rcsdiff -q "$1" "$2" >/dev/null 2>&1
}

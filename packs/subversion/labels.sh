# Sourced by the helpers that know labels.
#
# A label names a revision. Where the archive is a folder "trunk", it is a copy of that in the folder
# "tags" beside it. Elsewhere it is a property of the archive's folder that holds the number, because
# a copy within the archive would be part of what it lists.

# find_archive: sets $archive, and $tags where labels are copies.
find_archive() {
  archive=$(svn info --show-item url .) || exit
  tags=
  case $archive in
    */trunk) tags=${archive%/trunk}/tags ;;
  esac
}

# revision_of LABEL: its number; what svn itself knows as a revision stays.
revision_of() {
  case $1 in
    HEAD | BASE | COMMITTED | PREV | '{'*'}') printf '%s\n' "$1" ;;
    *[!0-9]*)
      find_archive
      if [ -n "$tags" ]; then
        svn info --no-newline --show-item last-changed-revision -- "$tags/$1@" 2>/dev/null
      else
        svn propget --no-newline "veldra:label:$1" -- "$archive@HEAD" 2>/dev/null
      fi
      ;;
    *) printf '%s\n' "$1" ;;
  esac
}

# check_label: a name that svn cannot keep, or that means a number already, is refused.
check_label() {
  case $label in
    '') return ;;
    HEAD | BASE | COMMITTED | PREV | *[!A-Za-z0-9._-]* | [!A-Za-z]*)
      fail "'$label' cannot be a label: it takes letters, digits, dots, - and _, and a letter first."
      ;;
  esac
}

# attach_label: to the newest revision of the archive. A label that is there already moves along.
attach_label() {
  [ -n "$label" ] || return 0
  find_archive
  if [ -n "$tags" ]; then
    run svn mkdir --quiet --parents -m 'Make room for labels.' -- "$tags@" || :
    run svn delete --quiet -m "Move the label $label." -- "$tags/$label@" || :
    run svn copy --quiet -m "Label $label" -- "$archive@HEAD" "$tags/$label" || give_up
  else
    number=$(svn info --show-item revision -r HEAD -- "$archive@") || exit
    run svnmucc --non-interactive -m "Label $label" \
      propset "veldra:label:$label" "$number" "$archive" || give_up
  fi
}

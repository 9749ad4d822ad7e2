# delete.sh UNITS|DIRECTORY [COMMENTFILE]: takes files, or all below a directory, out of the archive and
# of this folder. Changed files are refused, and those that somebody else edits.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"
. "${0%/*}/folders.sh"

units=$1
shift
read_options "$@"
open_folder "$units"
folder=
if [ -d "$units" ]; then
  folder=$(relative "$units")
  controlled "./$folder" | sed "s|^\./|$PWD/|" >"$work/files"
  units=@$work/files
  refuse_strangers "$(find "./$folder" -type f ! -path '*/CVS/*' | sed "s|^\./|$PWD/|" |
    grep -v -x -F -f "$work/files")"
fi
in_archive "$units"
refuse_older "$units"
changed=$(state_of "$units" | sed -n '1s/^..//p')
[ -z "$changed" ] || fail "'$changed' has local changes, or newer ones in the archive; \
check it in, undo them, or fetch first."
refuse_edited "$units"
run on "$units" remove -f -- || give_up
if commit "$units" "$comment"; then
  [ -z "$folder" ] || drop_empty "./$folder"
  show
  exit
fi
# Bringing it back ends the removal of a file that has not been committed.
state_of "$units" | sed -n 's/^R //p' | tr '\n' '\000' | xargs -0 -r cvs -f -Q add -- || :
refuse

# add.sh KIND UNITS [--label=LABEL] [COMMENTFILE]: puts files under control, together with the
# directories above them that are not yet. KIND is "text" for files whose keywords are expanded,
# "plain" for those whose bytes stay.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"
. "${0%/*}/folders.sh"

kind=$1 units=$2
shift 2
read_options "$@"

# Bytes that look like a keyword may be anything in a binary file.
binary() {
  relative "$units" | tr '\n' '\000' | LC_ALL=C xargs -0 grep -L -I -e '' -- || :
}

# An added file that is not committed is no longer scheduled; the file stays.
take_back() {
  state_of "$units" | sed -n 's/^A //p' | while IFS= read -r file; do
    ln -- "$file" "$file.veldra-kept" && cvs remove -f -- "$file" >/dev/null 2>&1
    mv -f -- "$file.veldra-kept" "$file"
  done
}

open_folder "$units"
relative "$units" | while IFS= read -r file; do
  [ -f "$file" ] || fail "'$file' is not a file."
  ! entries "$(dirname -- "$file")" | grep -q -F "/${file##*/}/" ||
    fail "'$file' is in the archive already."
done
relative "$units" | add_folders
if [ "$kind" = text ]; then binary; else relative "$units"; fi >"$work/plain"
{
  relative "$units" | grep -v -x -F -f "$work/plain" | add_files -kkv && add_files -kb <"$work/plain" &&
    commit "$units" "$comment"
} || {
  take_back
  refuse
}
attach_label "$units"

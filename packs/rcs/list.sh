# list.sh DIRECTORY: a line a file: newest revision, holders of locks, RW while it is held, path;
# with tabs between.
. "${0%/*}/common.sh"

find_archive "$1/./"
# A name with a line end cannot be told from two lines of the answer.
(
  cd "$1" &&
    find . -path '*/RCS/*,v' -type f ! -path '*/RCS/*/*' ! -path "*$newline*" -print0 | sort -z | xargs -0 -r rlog -h
) | awk -f "${0%/*}/list.awk"

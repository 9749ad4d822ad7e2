# list.sh DIRECTORY [--here]: a line a file: newest revision, holders of locks, RW while it is held, path;
# with tabs between. --here leaves out those that are not the same in this folder.
. "${0%/*}/common.sh"
. "${0%/*}/tree.sh"

# same_here ARCHIVE: of the lines on the input. RCS remembers nothing of what it has brought.
same_here() {
  while IFS= read -r line; do
    file=${line##*	}
    ! rcsdiff -q "$(archived_of "$1" '' "/$file")" "$PWD/$file" >/dev/null 2>&1 || printf '%s\n' "$line"
  done
}

find_archive "$1/./"
# A name with a line end cannot be told from two lines of the answer.
(
  cd "$1" &&
    find . -path '*/RCS/*,v' -type f ! -path '*/RCS/*/*' ! -path "*$newline*" -print0 | sort -z | xargs -0 -r rlog -h
) | awk -f "${0%/*}/list.awk" | if [ "${2:-}" = --here ]; then same_here "$1"; else cat; fi

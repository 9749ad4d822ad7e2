# Sourced by the helpers that check in: comments of any length and content.
#
# ci takes a comment as an argument, whose length the system limits, or as its input, which a line
# with a single dot ends, and always drops blanks and empty lines at both ends. A comment that would
# suffer is therefore put into the archive file afterwards, in place of a mark.

longest_argument=100000

# check_in COMMENTFILE OPTION...: checks $working in to $archived.
check_in() {
  comment=$1
  shift
  if [ -z "$comment" ] || [ ! -s "$comment" ]; then
    ci -q "$@" "$archived" "$working" </dev/null
  elif fits_as_argument "$comment"; then
    ci -q "$@" -m"$text" "$archived" "$working"
  else
    mark=veldra-comment-$$-$(date +%s)
    ci -q "$@" -m"$mark" "$archived" "$working" && replace_mark
  fi
}

# fits_as_argument COMMENTFILE: sets $text without the last line end, which RCS always adds.
fits_as_argument() {
  size=$(wc -c <"$1")
  [ "$size" -le "$longest_argument" ] || return
  text=$(cat "$1" && printf .)
  text=${text%.}
  # Shorter: a zero byte was lost.
  [ "${#text}" -eq "$size" ] || return
  text=${text%"$newline"}
  case $text in
    '' | [[:space:]]* | *[[:space:]]) return 1 ;;
  esac
}

# replace_mark: follows the protocol of the RCS tools. Who creates ",name," beside the archive file
# holds it; the new content is written there and renamed over the old.
replace_mark() {
  offset=$(grep -a -b -o -F -m 1 "@$mark" "$archived")
  # An unchanged file leaves no revision and so no mark.
  [ -n "$offset" ] || return 0
  offset=${offset%%:*}
  if ! (set -C && : >"$semaphore") 2>/dev/null; then
    comment_lost "Another command is using the archive file."
  fi
  trap 'rm -f "$semaphore"' EXIT
  trap 'exit 1' HUP INT TERM
  if ! { cp -p "$archived" "$semaphore" && chmod u+w "$semaphore" && with_comment >"$semaphore" &&
    chmod a-w "$semaphore" && mv -f "$semaphore" "$archived"; }; then
    comment_lost "The archive file cannot be written."
  fi
  trap - EXIT HUP INT TERM
}

# The archive file with the comment in place of the mark; an at sign is written twice in there.
with_comment() {
  head -c "$((offset + 1))" "$archived" || return
  sed 's/@/@@/g' "$comment" || return
  rest=$((offset + 2 + ${#mark}))
  # A line end follows the mark.
  [ -n "$(tail -c 1 "$comment")" ] || rest=$((rest + 1))
  tail -c "+$rest" "$archived"
}

comment_lost() {
  fail "$1 '$working' is checked in, but its comment reads '$mark'. \
Set it with rcs -mREVISION:COMMENT."
}

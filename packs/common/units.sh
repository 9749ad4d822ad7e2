# Sourced by the helpers of several packs: messages, the units of a command, modes of files. The pack
# sets $pack, the word before its own messages.
#
# UNITS of a helper is the path of one file, or "@" and the path of a list with a path a line.
. "${0%/*}/../common/options.sh"
set -eu

# English texts, because answers are read. LANGUAGE would win over the locale's language.
export LC_ALL=C.UTF-8 LANGUAGE=

newline='
'

fail() {
  printf '%s: %s\n' "$pack" "$1" >&2
  exit 1
}

# needs PROGRAM...
needs() {
  for program do
    command -v "$program" >/dev/null ||
      fail "The program '$program' is not installed or not in PATH."
  done
}

# run COMMAND...: keeps all that it prints in $answer, so that the caller can look before it shows.
run() {
  answer=$("$@" 2>&1)
}

show() {
  [ -z "$answer" ] || printf '%s\n' "$answer"
}

give_up() {
  show >&2
  exit 1
}

# refuse_strangers FILES: for whole directories; a line a file that is not under control, and would be
# lost.
refuse_strangers() {
  [ -z "$1" ] ||
    fail "'${1%%"$newline"*}' is not in the archive; add it first, or take it out of the folder."
}

# refuse_stranger FILE: fails about one that is not under control; bringing the newest state may have taken
# it away.
refuse_stranger() {
  [ -e "$1" ] || fail "'$1' is no longer in the archive, and so no longer here."
  fail "'$1' is not in the archive; add it first."
}

# each UNITS: the paths, each with a zero byte behind it.
each() {
  case $1 in
    @*) tr '\n' '\000' <"${1#@}" ;;
    *) printf '%s\000' "$1" ;;
  esac
}

# lines UNITS: the same, a line a path; no name that the module knows has a line end.
lines() {
  each "$1" | tr '\000' '\n'
}

# about UNITS COMMAND...: the command with the paths at its end.
about() {
  paths=$1
  shift
  each "$paths" | xargs -0 "$@" --
}

# relative UNITS: the paths below this folder, a line a path.
relative() {
  lines "$1" | A=$PWD/ B=$(pwd -P)/ awk '
    index($0, ENVIRON["A"]) == 1 { print substr($0, length(ENVIRON["A"]) + 1); next }
    index($0, ENVIRON["B"]) == 1 { print substr($0, length(ENVIRON["B"]) + 1); next }
    { print }'
}

# real PLACE: a local place without links; an address without the name of its user.
real() {
  (cd -- "$1" 2>/dev/null && pwd -P) || printf '%s\n' "$1" |
    sed 's|^\([a-z+]*://\)[^/@]*@|\1|; s|^\(:[a-z]*:\)[^/@]*@|\1|; s|^[^/@:]*@\([^/]*:\)|\1|'
}

# scratch [-d]: makes a file or a folder that goes with the helper. When the helper is killed, the next
# run of the program removes it.
scratch() {
  mktemp "$@" "${TMPDIR:-/tmp}/veldra-cm-$$-XXXXXX"
}

# scratch_in FOLDER [-d]: the same in a folder of the project.
scratch_in() {
  mktemp ${2:+"$2"} "$1/.veldra-cm-$$-XXXXXX.tmp"
}

# open_work: makes sure that there is $work, a folder that goes with the helper.
open_work() {
  [ -z "${work:-}" ] || return 0
  work=$(scratch -d)
  trap 'rm -rf "$work"' EXIT
}

# tell_unchanged UNITS: names those that a check-in makes no revision of. The paths that have changed,
# relative to this folder, are on the input.
tell_unchanged() {
  open_work
  cat >"$work/changed-units"
  lines "$1" >"$work/named-units"
  relative "$1" | NAMED=$work/named-units awk '
    FILENAME == ARGV[1] { changed[$0]; next }
    { getline named <ENVIRON["NAMED"]; if (!($0 in changed)) print "unchanged: " named }
  ' "$work/changed-units" -
}

# login: the name of who is at work, for tools that are told no other.
login() {
  printf '%s\n' "${LOGNAME:-${USER:-$(id -un)}}"
}

make_read_only() {
  about "$1" chmod a-w
}

# writable: of the paths on the input, those that their owner may write.
writable() {
  xargs -0 -r sh -c 'for f do set -- "$@" "./$f"; shift; done
    find "$@" -maxdepth 0 -type f -perm -u+w -print0 2>/dev/null || :' sh
}

# replace FILE COMMAND...: puts what the command prints in the file's place, read-only, in one step.
replace() {
  file=$1
  shift
  mkdir -p -- "${file%/*}"
  new=$(scratch_in "${file%/*}")
  "$@" >"$new" && chmod 444 "$new" && mv -f -- "$new" "$file" && return
  rm -f -- "$new"
  return 1
}

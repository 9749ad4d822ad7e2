# Sourced by the helpers beside it: the surroundings of svn, messages, addresses, commits.
. "${0%/*}/../common/options.sh"

# English texts whatever the user's language is, because answers are read; file names in UTF-8.
# LANGUAGE would win over the locale's language even here.
LC_ALL=C.UTF-8
LANGUAGE=
export LC_ALL LANGUAGE

newline='
'

fail() {
  printf 'subversion: %s\n' "$1" >&2
  exit 1
}

for program in svn svnadmin; do
  command -v "$program" >/dev/null || fail "The program '$program' is not installed or not in PATH."
done

# in_use WORKINGCOPY: whether some process has its records open, so that it is not ours to repair.
in_use() {
  # shellcheck disable=SC2010  # only the targets of the links matter
  ls -l /proc/[0-9]*/fd 2>/dev/null | grep -q -F " $1/.svn/"
}

# repair: makes good what a killed svn left behind; one that still runs gets five seconds to end.
# True when it is worth another try.
repair() {
  [ -d /proc/self/fd ] || return
  top=$(command svn info --non-interactive --show-item wc-root --no-newline . 2>/dev/null) || return
  patience=50
  while in_use "$top"; do
    [ $((patience -= 1)) -gt 0 ] || return
    sleep 0.1
  done
  command svn cleanup --non-interactive "$top" >/dev/null 2>&1
}

# svn ARGUMENT...: a former command may have been killed in the middle; then its records are put in
# order, and the same is tried once more. What svn complains about is kept aside for that.
svn() {
  { complaint=$(command svn --non-interactive "$@" 2>&1 >&3 3>&-); } 3>&1
  svn_end=$?
  case $svn_end$complaint in
    0*) ;;
    *E155004:* | *E155037:* | *E155009:*)
      if repair; then
        command svn --non-interactive "$@"
        return
      fi
      ;;
  esac
  [ -z "$complaint" ] || printf '%s\n' "$complaint" >&2
  return "$svn_end"
}

# refuse_commit: as `give_up`, with the reason first where svn tells it late.
refuse_commit() {
  case $answer in
    *E155011:* | *E160028:* | *E160024:*)
      answer="subversion: The archive has a newer revision. Fetch first, then do it again.$newline$answer"
      ;;
  esac
  give_up
}

# absolute_path PATH
absolute_path() {
  case $1 in
    /*) printf '%s\n' "$1" ;;
    *) printf '%s\n' "$PWD/$1" ;;
  esac
}

# archive_url ARCHIVE: an address stays as it is, a local path becomes one. Only what svn would take
# for part of the address, and what a command template would, is encoded here; svn encodes the rest
# itself.
archive_url() {
  case $1 in
    '') fail "No archive is set." ;;
    *://*) printf '%s\n' "$1" ;;
    *)
      path=$(absolute_path "$1")
      case $path in
        *[%#?\ \$\(\)]*)
          path=$(printf '%s\n' "$path" |
            sed 's/%/%25/g; s/#/%23/g; s/?/%3F/g; s/ /%20/g; s/\$/%24/g; s/(/%28/g; s/)/%29/g')
          ;;
      esac
      printf 'file://%s\n' "$path"
      ;;
  esac
}

# temporary_file [-d]: makes one, or a folder; when this script is killed, the next run of the program removes it.
temporary_file() {
  mktemp "$@" "${TMPDIR:-/tmp}/veldra-cm-$$-XXXXXX"
}

# run COMMAND...: keeps all that it prints in $answer, so that the caller can look before it shows.
run() {
  answer=$("$@" 2>&1)
}

show() {
  [ -z "$answer" ] || printf '%s\n' "$answer"
}

# give_up: tells the reason, without the progress that svn has told before it.
give_up() {
  reason=$(printf '%s\n' "$answer" | sed -n '/^svn[a-z]*: \|^subversion: /,$p')
  answer=${reason:-$answer}
  show >&2
  exit 1
}

# name_targets UNITS: sets $targets to a file with the paths as svn wants them, a line a path. UNITS is
# the path of one file, or "@" and the path of a list. $work goes with the helper.
name_targets() {
  work=$(temporary_file -d) || exit
  trap 'rm -rf "$work"' EXIT
  targets=$work/targets
  case $1 in
    @*) sed 's/$/@/' "${1#@}" ;;
    *) printf '%s@\n' "$1" ;;
  esac >"$targets"
}

# tell WORD PATHS|-v PATHS: names those of $targets, each after the word, that are among the paths, which
# svn prints relative to this folder; with -v the others.
tell() {
  word=$1 others=
  shift
  if [ "$1" = -v ]; then
    others=1
    shift
  fi
  A=$PWD/ B=$(pwd -P)/ W="$word: " V=$others awk '
    FILENAME == ARGV[1] { named[$0]; next }
    {
      full = path = substr($0, 1, length($0) - 1)
      if (index(path, ENVIRON["A"]) == 1) path = substr(path, length(ENVIRON["A"]) + 1)
      else if (index(path, ENVIRON["B"]) == 1) path = substr(path, length(ENVIRON["B"]) + 1)
      if ((path in named || full in named) != (ENVIRON["V"] != "")) print ENVIRON["W"] full
    }' "$1" "$targets"
}

# on_targets COMMAND...: for commands of svn that take no list.
on_targets() {
  tr '\n' '\000' <"$targets" | xargs -0 sh "${0%/*}/svn.sh" "$@" --
}

# update REVISION: brings $targets. Conflicts are no success, although svn goes on beside them.
update() {
  run on_targets update --parents --revision "$1" || give_up
  case $answer in
    *' conflicts: '[1-9]*)
      answer="subversion: Changes here and in the archive do not fit together.$newline$answer"
      give_up
      ;;
  esac
  show
}

# refuse_gone: fails, naming one, when $targets have been taken away.
refuse_gone() {
  gone=$(while IFS= read -r target; do [ -e "${target%@}" ] || printf '%s\n' "${target%@}"; done <"$targets" |
    head -n 1)
  [ -z "$gone" ] || fail "'$gone' is no longer in the archive, and so no longer here."
}

# held: those of $targets that this folder holds a lock of; the sixth column of a status tells.
held() {
  on_targets status --depth empty |
    sed -n 's/^.....K. \(.*\)/\1@/p'
}

# give_locks: those that this folder holds. One that somebody has broken is no failure.
give_locks() {
  held >"$work/held"
  [ -s "$work/held" ] || return 0
  run svn unlock --targets "$work/held" && return
  case $answer in
    # svn has forgotten the broken lock by now.
    *W160040:*) answer='A lock had been broken by somebody else.' ;;
    *) return 1 ;;
  esac
}

# svn_commit ENCODING COMMENTFILE TARGET...: the targets as svn takes them, "-- FILE@..." or
# "--targets LIST".
svn_commit() {
  encoding=$1 file=$2
  shift 2
  svn commit --depth "${depth:-empty}" --force-log --encoding "$encoding" --file "$file" "$@"
}

# commit COMMENTFILE TARGET...: as `run`; a COMMENTFILE that is no file stands for no comment.
# $depth is how far it goes down from each target, just the target itself without it.
#
# A comment in the repository is UTF-8 with single line feeds. One that is not is refused, so the
# second try makes it so: any line end becomes a line feed, and bytes that are no UTF-8 are read as
# ISO 8859-1, which gives every byte a character of the same number.
commit() {
  message=$1
  [ -f "$message" ] || message=/dev/null
  shift
  run svn_commit UTF-8 "$message" "$@" && return
  case $answer in
    *E125005:* | *E135000:*) ;;
    *) return 1 ;;
  esac
  encoding=UTF-8
  iconv -f UTF-8 -t UTF-8 "$message" >/dev/null 2>&1 || encoding=ISO-8859-1
  clean=$(temporary_file) || return
  LC_ALL=C sed "s/$(printf '\r')\$//" "$message" | LC_ALL=C tr '\r' '\n' >"$clean"
  run svn_commit "$encoding" "$clean" "$@"
  result=$?
  rm -f "$clean"
  return $result
}

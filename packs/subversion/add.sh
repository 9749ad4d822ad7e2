# add.sh KIND UNITS [--label=LABEL] [COMMENTFILE]: puts files under control, together with the
# directories above them that are not yet. KIND is "text" for files whose keywords are expanded,
# "plain" for those whose bytes stay.
. "${0%/*}/common.sh"
. "${0%/*}/labels.sh"

kind=$1
name_targets "$2"
shift 2
read_options "$@"
check_label
properties='svn:needs-lock=*'
[ "$kind" = plain ] || properties="$properties;svn:keywords=Id Revision"

# One line a path that is new, the path from column 11 on. Properties come with the add: setting
# them by commands of their own would double the number of processes.
schedule() {
  svn add --force --parents --config-option config:miscellany:enable-auto-props=yes \
    --config-option "config:auto-props:*=$properties" --targets "$targets"
}

# new_paths LINES: those of `schedule` as targets. In a list of them svn drops blanks that a line begins
# with.
new_paths() {
  sed 's/^..........//; s|^[^/]|./&|; s/$/@/' "$1"
}

# left_over: the same lines for those of $targets that `svn add` has passed over because an interrupted
# one has left them behind, and for the directories above them.
left_over() {
  sed 's/^..........//' "$work/added" >"$work/paths"
  tell passed -v "$work/paths" | sed 's/^passed: //; s/$/@/' >"$work/passed"
  [ -s "$work/passed" ] || return 0
  tr '\n' '\000' <"$work/passed" |
    xargs -0 sh "${0%/*}/svn.sh" status --depth empty -- 2>/dev/null |
    sed -n 's/^A.......//p' | while IFS= read -r path; do
      printf 'A         %s\n' "$path"
      while [ "$path" != "${path%/*}" ] && path=${path%/*} &&
        state=$(svn status --depth empty -- "$path@") && [ "${state#A}" != "$state" ]; do
        printf 'A         %s\n' "$path"
      done
    done | sort -u
}

# take_back: nothing stays scheduled; the files stay. What lies in a directory goes with it, and by itself
# it would be unknown then.
take_back() {
  new_paths "$work/added" | awk '{
    path = substr($0, 1, length($0) - 1)
    for (above = path; sub("/[^/]*$", "", above);) if (above in taken) next
    taken[path]
    print
  }' >"$work/tops"
  [ ! -s "$work/tops" ] || svn revert --quiet --recursive --targets "$work/tops"
}

# give_nothing: ends without anything scheduled.
give_nothing() {
  take_back
  exit 1
}

# keep_bytes: what looks like a keyword in a binary file may be anything.
keep_bytes() {
  grep '^A  (bin)  ' "$work/added" >"$work/binary" || return 0
  new_paths "$work/binary" | tr '\n' '\000' |
    xargs -0 sh "${0%/*}/svn.sh" propdel --quiet svn:keywords --
}

# add_and_commit: as `commit`; after a failure nothing is left scheduled.
add_and_commit() {
  schedule >"$work/added" || give_nothing
  left_over >"$work/left"
  if [ -s "$work/left" ]; then
    # Nobody knows with which properties, so all are added afresh.
    cat "$work/left" >>"$work/added"
    take_back
    schedule >"$work/added" || give_nothing
  fi
  [ -s "$work/added" ] || fail "'$(sed '1s/@$//;q' "$targets")' is in the archive already."
  [ "$kind" = plain ] || keep_bytes || give_nothing
  new_paths "$work/added" >"$work/new"
  commit "$comment" --targets "$work/new" && return
  reason=$answer
  take_back
  answer=$reason
  return 1
}

# take_directory PATH: makes the directory part of this working copy. It alone is taken over, its files
# are not.
take_directory() {
  svn update --quiet --force --parents --depth empty -- "$1@"
}

# add_directories: the new directories alone, from a working copy of their own. A directory that svn adds
# it reads, and it gives up when any file in there has a name that is no UTF-8.
add_directories() {
  apart=$work/apart
  url=$(svn info --show-item url .) && svn checkout --quiet --depth empty -- "$url@" "$apart" || return
  while IFS= read -r path; do
    path=${path%@}
    path=${path#./}
    path=${path#"$PWD/"}
    path=${path#"$(pwd -P)/"}
    [ ! -d "$path" ] || printf '%s\n' "$path"
  done <"$work/new" >"$work/directories"
  [ -s "$work/directories" ] || return
  while IFS= read -r path; do
    case $path in
      */*) svn update --quiet --parents --depth empty -- "$apart/${path%/*}@" ;;
    esac
    mkdir "$apart/$path" && svn add --quiet --depth empty -- "$apart/$path@" || return
  done <"$work/directories"
  depth=infinity
  commit "$comment" -- "$apart@" || return
  depth=
  while IFS= read -r path; do take_directory "$path" || return; done <"$work/directories"
}

if ! add_and_commit; then
  case $answer in
    *E155011:* | *E160020:*)
      # Somebody else has added the directory.
      if [ "$(wc -l <"$targets")" -gt 1 ] || [ "$(wc -l <"$work/new")" -eq 1 ]; then give_up; fi
      take_directory "$(sed 's|/[^/]*$||' "$targets")" || exit
      add_and_commit || give_up
      ;;
    *E000022:*)
      reason=$answer
      add_directories || { answer=$reason; give_up; }
      add_and_commit || give_up
      ;;
    *) give_up ;;
  esac
fi
show
attach_label

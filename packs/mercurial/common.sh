# Sourced by the helpers beside it: the surroundings of hg, units, the archive.
pack='mercurial archive'
. "${0%/*}/../common/units.sh"

# No aliases, colours, pagers or translated texts; nobody is there to answer or to edit.
export HGPLAIN=1 HGENCODING=UTF-8 HGEDITOR=:
unset HGPLAINEXCEPT

needs hg

hg() {
  command hg --config ui.interactive=no --config ui.merge=internal:fail \
    --config phases.new-commit=draft ${ssh:+--config "ui.ssh=$ssh"} "$@"
}
ssh=

# find_top: sets $top to the folder of the repository that this folder is in; false without one.
find_top() {
  top=$(pwd -P)
  until [ -d "$top/.hg" ]; do
    [ -n "$top" ] || return
    top=${top%/*}
  done
}

# on UNITS COMMAND...: an hg command about these files. Their absolute paths are never taken for
# patterns.
on() {
  case $1 in
    @*) files=listfile:${1#@} ;;
    *) files=$1 ;;
  esac
  shift
  hg "$@" -- "$files"
}

# remote_of REPOSITORY: where it was cloned from. Every start of hg costs time, so its file is read.
remote_of() {
  sed -n '/^\[paths\]/,/^\[/s/^default *= *//p' "$1/.hg/hgrc" 2>/dev/null
}

# recover REPOSITORY: takes back what a killed hg has begun; one that is at work is waited for. Locks of
# dead processes hg knows by itself.
recover() {
  [ ! -e "$1/.hg/store/journal" ] || hg -R "$1" recover --quiet >/dev/null 2>&1 || :
}

# open_repository: sets $remote; empty when the folder is the archive itself.
open_repository() {
  find_top || fail "The folder is not connected to an archive; connect it first."
  remote=$(remote_of "$top")
  case $remote in
    # An ssh that may not ask fails at once instead of waiting.
    ssh://*) ssh="$(hg config ui.ssh || echo ssh) -o BatchMode=yes" ;;
    /*) recover "$remote" ;;
  esac
  recover "$top"
}

# receive: learns what the archive holds; sets $base, the commit of this folder, and $tip, the newest
# one of its branch in the archive, or nothing when the folder has that.
receive() {
  [ -z "$remote" ] || run hg pull -q || return
  commits=$(hg log -r '. + (max(heads(public() and branch(.))) - ::.)' -T '{node}\n')
  base=${commits%%"$newline"*}
  tip=
  [ -z "$remote" ] || tip=${commits#"$base"}
  tip=${tip#"$newline"}
}

# name_user: makes sure that a commit has an author.
name_user() {
  [ -z "${HGUSER:-}${EMAIL:-}" ] && ! hg config ui.username >/dev/null 2>&1 || return 0
  HGUSER=$(login)
  export HGUSER
  printf "hg knows no user name; commits name '%s'. [ui] username = NAME in ~/.hgrc sets one.\n" \
    "$HGUSER"
}

# in_archive UNITS: fails, naming one, unless all of them are under control. Sets $states, a line a
# file with its state before it.
in_archive() {
  states=$(on "$1" status --all 2>/dev/null || :)
  count=$(printf '%s\n' "$states" | grep -c '^[CMR!] ' || :)
  [ "$count" -eq "$(lines "$1" | wc -l)" ] && return
  stranger=$(printf '%s\n' "$states" | grep -m 1 '^[?IA] ' || lines "$1" | sed -n '1s/^/? /p')
  refuse_stranger "${stranger#? }"
}

# is_changed: whether any of the files that `in_archive` has looked at is.
is_changed() {
  printf '%s\n' "$states" | grep -q '^[MR!] '
}

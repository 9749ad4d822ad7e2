# Sourced by the helpers beside it: the surroundings of cvs, units, editors, directories.
pack='cvs archive'
. "${0%/*}/../common/units.sh"
. "${0%/*}/../common/leftovers.sh"

# Files come read-only also where nobody may turn watching on; nobody is there to edit.
export CVSREAD=1 CVSEDITOR=:
unset CVSROOT

needs cvs

# The user's own .cvsrc may change the meaning of any command.
cvs() {
  command cvs -f -q "$@"
}

# on UNITS COMMAND...: a cvs command with the paths at its end, which cvs wants to be relative.
on() {
  paths=$1
  shift
  relative "$paths" | tr '\n' '\000' | xargs -0 cvs -f -q "$@"
}

# open_folder [UNITS]
open_folder() {
  [ -f CVS/Root ] || fail "The folder is not connected to an archive; connect it first."
  clear_locks ${1:+"$1"}
}

# place_of ROOT: sets $root to the folder of an archive on this machine; to the whole text where it is
# somewhere else.
place_of() {
  root=${1#:local:} root=${root#:fork:}
}

# works_elsewhere PROCESS: who works in a folder of another archive.
works_elsewhere() (
  IFS= read -r its_root 2>/dev/null <"$1/cwd/CVS/Root" || {
    # It may have ended meanwhile.
    [ ! -e "$1/cwd" ]
    return
  }
  own=$root
  place_of "$its_root"
  [ "$root" != "$own" ]
)

# clear_locks [UNITS]: cvs waits without an end for the locks of killed processes. They lie beside the
# archive files; without UNITS anywhere.
clear_locks() {
  IFS= read -r root <CVS/Root
  IFS= read -r place <CVS/Repository
  place_of "$root"
  case $root$place in
    /*) ;;
    # They are the server's business.
    *) return 0 ;;
  esac
  place=${place#"$root"/}
  {
    find "$root/CVSROOT" -maxdepth 1 -name '#cvs.*.lock' -print0
    if [ $# -gt 0 ]; then
      folders_of "$1" | R=$root/$place/ awk '{ print ENVIRON["R"] $0 }' | tr '\n' '\000' |
        xargs -0 -r sh -c 'find "$@" -maxdepth 1 \( -name "#cvs.*" -o -name ",*," \) -print0' sh
    else
      find "$root/$place" \( -name '#cvs.*' -o -name ',*,' \) -print0
    fi
  } 2>/dev/null | tr '\n\000' '\001\n' | while IFS= read -r lock; do clear_lock "$lock" '' cvs; done
}

# folders_of UNITS: the folders that they lie in, a line a folder.
folders_of() {
  relative "$1" | sed 's|^[^/]*$|./&|; s|/[^/]*$||' | sort -u
}

# revisions: a line a file that cvs knows, in the folders on the input: its path, a tab, and the revision
# that this folder has of it. What cvs has changed last stands in a log behind its records.
revisions() {
  while IFS= read -r folder; do
    cat "$folder/CVS/Entries" "$folder/CVS/Entries.Log" 2>/dev/null | F=$folder/ awk '
      { gone = sub(/^R /, ""); sub(/^A /, "") }
      split($0, part, "/") > 2 && part[1] == "" {
        path = ENVIRON["F"] part[2]
        sub(/^\.\//, "", path)
        if (gone) delete revision[path]; else revision[path] = part[3]
      }
      END { for (path in revision) print path "\t" revision[path] }'
  done
}

# state_of UNITS: a line a file that is not as in the archive: a letter, a blank, the path. M, A and R
# have been changed here, U and P in the archive, C on both sides.
state_of() {
  on "$1" -n update -- 2>/dev/null | grep '^[AMRUPC] ' || :
}

# entries DIRECTORY: the lines that cvs keeps about its files; new ones stand in a log of their own.
entries() {
  cat "$1/CVS/Entries" 2>/dev/null || :
  sed -n 's/^A //p' "$1/CVS/Entries.Log" 2>/dev/null || :
}

# in_archive UNITS: fails, naming one, unless all of them are under control. One that is scheduled to
# be added has the revision 0.
in_archive() {
  relative "$1" | while IFS= read -r file; do
    entries "$(dirname -- "$file")" | grep -F "/${file##*/}/" | grep -q -v "^/${file##*/}/0/" ||
      refuse_stranger "$file"
  done
}

# refuse_older UNITS: fails, naming one, unless this folder has the newest state. cvs would remove a file
# from a label only, or add an old state anew.
refuse_older() {
  relative "$1" | while IFS= read -r file; do
    ! entries "$(dirname -- "$file")" | grep -F "/${file##*/}/" | tail -n 1 | grep -q '/[TD][^/]\{1,\}$' ||
      fail "'$file' has the state of a label here; fetch the newest one first."
  done
}

# is_out: of the paths on the input, a line a path, those of writable files.
is_out() {
  tr '\n' '\000' | writable | tr '\000' '\n' | sed 's|^\./||'
}

# make_folder DIRECTORY: gives a directory that exists in the archive its place here, without bringing
# any file of it, as cvs has no command for that. Records of one that does not exist would be in the way
# of its being added.
make_folder() {
  [ ! -d "$1/CVS" ] || return 0
  make_folder "$(dirname -- "$1")"
  place=$(cat "$(dirname -- "$1")/CVS/Repository")/${1##*/}
  run cvs rls -e -- "$place" || case $answer in
    *'cannot find module'*) fail "'$1' is not in the archive; add it first." ;;
    *) give_up ;;
  esac
  mkdir -p -- "$1/CVS"
  cp CVS/Root "$1/CVS/Root"
  printf '%s\n' "$place" >"$1/CVS/Repository"
  : >"$1/CVS/Entries"
  printf 'A D/%s////\n' "${1##*/}" >>"$(dirname -- "$1")/CVS/Entries.Log"
}

make_folders() {
  relative "$1" | sed -n 's|/[^/]*$||p' | sort -u | while IFS= read -r folder; do
    make_folder "$folder"
  done
}

# bring_clean FILE [OPTION]: in place of what is there; nothing, when it has gone from the archive.
bring_clean() {
  run cvs update -C ${2:+"$2"} -- "$1" || case $answer in
    *'no longer in the repository'*) rm -f -- "$1" && cvs -Q update -- "$1" ;;
    *) give_up ;;
  esac
  drop_backups "$1" CVS/Root
}

# drop_backups FILE SINCE: cvs keeps the former content beside a file; SINCE is an older file.
drop_backups() {
  find "./$(dirname -- "$1")" -maxdepth 1 -type f -name '.#*' -newer "$2" \
    -exec sh -c 'case $2 in */".#$1".*) rm -f -- "$2" ;; esac' sh "${1##*/}" {} \;
}

# bring_newest UNITS: merges what is new in the archive into the files.
bring_newest() {
  make_folders "$1"
  run on "$1" update -A -- || give_up
  in_archive "$1"
  case $newline$answer in
    *"${newline}C "*) give_up ;;
  esac
  show
}

# other_editor UNITS: a file and who edits it beside the user, with a tab between; for the first one.
other_editor() {
  on "$1" editors -- 2>/dev/null | awk -F '\t' -v me="$(login)" '
    $1 != "" { file = $1 }
    $2 != me && !told { print file FS $2; told = 1 }'
}

# refuse_edited UNITS
refuse_edited() {
  other=$(other_editor "$1")
  [ -z "$other" ] || fail "'${other%%"	"*}' is being edited by '${other#*"	"}'."
}

# take UNITS: registers the user as editor, which makes the files writable, unless there is another.
take() {
  refuse_edited "$1"
  # cvs is content when it could serve the last of several files.
  run on "$1" edit -c -- && [ "${answer#*existing editors}" = "$answer" ] && return
  # Somebody else was quicker, or the user edits it already, perhaps in another folder.
  refuse_edited "$1"
  on "$1" edit -f --
}

# give UNITS: takes the user from the editors; what has been changed goes back to what it was when it
# was taken.
give() {
  relative "$1" | while IFS= read -r file; do
    yes | command cvs -f -q unedit -- "$file" >/dev/null
  done
}

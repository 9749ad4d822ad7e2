# Sourced by the helpers of tools whose locks stay when a process is killed.

# works_elsewhere PROCESS: for packs that can tell more of a process than where it works: whether it has
# nothing to do with $lock.
works_elsewhere() {
  return 1
}

# at_work PLACE PROGRAM...: whether a process of such a name works below the place. Somebody else's that
# cannot be looked at may; any other of that kind has ended.
at_work() {
  below=$1
  shift
  for process in /proc/[0-9]*; do
    read -r name 2>/dev/null <"$process/comm" || continue
    for program do
      case $name in
        "$program" | "$program"-*) ;;
        *) continue ;;
      esac
      folder=$(readlink "$process/cwd" 2>/dev/null) || {
        [ -O "$process" ] || [ ! -d "$process" ] || return 0
        break
      }
      case $folder/ in
        "$below"/*) works_elsewhere "$process" || return 0 ;;
      esac
    done
  done
  return 1
}

# is_of_this_machine FILE: false where processes of other machines may have made it.
is_of_this_machine() {
  [ -r /proc/self/comm ] || return
  case $(stat -f -c %T -- "$1" 2>/dev/null) in
    '' | nfs* | smb* | cifs* | afs* | ceph* | fuse* | 9p | v9fs) return 1 ;;
  esac
}

# state_of_lock LOCK
state_of_lock() {
  ls -d -i -l -- "$1" 2>/dev/null
}

# clear_lock LOCK PLACE PROGRAM...: takes it away when no such program can have made it. Who is at work
# gets five seconds.
clear_lock() {
  lock=$1
  shift
  { [ -e "$lock" ] || [ -L "$lock" ]; } && is_of_this_machine "$lock" || return 0
  patience=50
  while at_work "$@" && [ -e "$lock" ] && [ $((patience -= 1)) -gt 0 ]; do sleep 0.1; done
  # Somebody may be about to begin, or work under another name.
  found=$(state_of_lock "$lock") || return 0
  sleep 1
  if [ "$(state_of_lock "$lock")" = "$found" ] && ! at_work "$@"; then
    rm -rf -- "$lock"
    printf "A former command was killed; its lock '%s' is gone now.\n" "${lock##*/}"
  fi
}

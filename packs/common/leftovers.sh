# Sourced by the helpers of tools whose locks stay when a process is killed.

# at_work PROGRAM PLACE: whether a process whose name begins so works below the place. One that cannot
# be looked at may.
at_work() {
  for process in /proc/[0-9]*; do
    read -r name 2>/dev/null <"$process/comm" || continue
    case $name in
      "$1"*) ;;
      *) continue ;;
    esac
    # A process of one's own that cannot be looked at has ended.
    place=$(readlink "$process/cwd" 2>/dev/null) || [ -O "$process" ] || return 0
    case $place/ in
      "$2"/*) return 0 ;;
    esac
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

# clear_lock PROGRAM PLACE LOCK: takes it away when no process of the program can have made it. Who is
# at work gets five seconds.
clear_lock() {
  is_of_this_machine "$2" || return 0
  patience=50
  while at_work "$1" "$2" && [ -e "$3" ] && [ $((patience -= 1)) -gt 0 ]; do sleep 0.1; done
  # Somebody may be about to begin.
  found=$(ls -d -i -- "$3" 2>/dev/null) || return 0
  sleep 0.1
  if [ "$(ls -d -i -- "$3" 2>/dev/null)" = "$found" ] && ! at_work "$1" "$2"; then
    rm -rf -- "$3"
    printf "A former command was killed; its lock '%s' is gone now.\n" "${3##*/}"
  fi
}

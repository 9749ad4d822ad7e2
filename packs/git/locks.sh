# Sourced by the helpers that lock. Git itself has no locks; LFS has them where the server offers
# them, which connect.sh has found out. Elsewhere a file is just made writable.

has_locks() {
  setting veldra.locks
  [ "$value" = true ]
}

# read_locks: turns LFS's answer into a line a lock: path from the top of the repository, tab, holder.
read_locks() {
  sed 's/},{"id"/}\n{"id"/g' |
    sed -n 's/.*"path":"\(\([^"\]\|\\.\)*\)".*"owner":{"name":"\([^"]*\)".*/\1\t\3/p'
}

holders() {
  git lfs locks --json </dev/null | read_locks
}

# others: the same for the locks of other users. The server tells them apart; the name that it has for
# a user is not the one in commits.
others() {
  git lfs locks --verify --json </dev/null | sed 's/.*"theirs"://' | read_locks
}

# take_locks UNITS: of a file that is locked already the user may be the holder.
take_locks() {
  has_locks || return 0
  refuse_locked "$1"
  lines "$1" | while read -r file; do
    run git lfs lock -- "$file" && continue
    reason=$answer
    refuse_locked "$file"
    case $reason in
      *'already created lock'* | *'Lock exists'*) ;;
      *)
        answer=$reason
        give_up
        ;;
    esac
  done
}

# refuse_locked UNITS: fails when somebody else has locked one of them, or something below it.
refuse_locked() {
  has_locks || return 0
  top=$(git rev-parse --show-prefix)
  others | while IFS='	' read -r path holder; do
    relative "$1" | while read -r unit; do
      case $path in
        "$top$unit" | "$top$unit"/*) fail "'$path' is locked by '$holder'." ;;
      esac
    done
  done
}

# give_locks UNITS: a file that nobody has locked is fine.
give_locks() {
  has_locks || return 0
  lines "$1" | while read -r file; do
    run git lfs unlock -- "$file" && continue
    case $answer in
      *'no matching locks found'* | *'Unable to get lock ID'*) ;;
      *) give_up ;;
    esac
  done
}

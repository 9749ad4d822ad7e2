# Sourced by the helpers that lock. Git itself has no locks; LFS has them where the server offers
# them. Elsewhere a file is just made writable.

# find_locks: asks the server whether it offers locks, and remembers what it said.
find_locks() {
  setting "remote.$remote.url"
  case $value in
    http*://* | ssh://* | *@*:*) ;;
    *)
      value=false
      return 0
      ;;
  esac
  value=false
  if git lfs locks --limit 1 </dev/null >/dev/null 2>&1; then value=true; fi
  # Who cannot reach it has learned nothing.
  [ "$value" = true ] || [ -n "$received" ] || return 0
  git config veldra.locks "$value"
  settings="${settings}veldra.locks $value$newline"
}

has_locks() {
  setting veldra.locks
  [ -n "$value" ] || find_locks
  [ "$value" = true ]
}

# read_locks: turns LFS's answer into a line a lock: path from the top of the repository, holder, number;
# with tabs between.
read_locks() {
  sed 's/},{"id"/}\n{"id"/g' |
    sed -n 's/.*"id":"\([^"]*\)","path":"\(\([^"\]\|\\.\)*\)".*"owner":{"name":"\([^"]*\)".*/\2\t\4\t\1/p' |
    sed 's/\\u003c/</g; s/\\u003e/>/g; s/\\u0026/\&/g; s/\\\(["\]\)/\1/g'
}

holders() {
  git lfs locks --json </dev/null | read_locks
}

# ours, others: the same for the locks of the user, and for those of other users. The server tells them
# apart; the name that it has for a user is not the one in commits.
ours() {
  git lfs locks --verify --json </dev/null | sed 's/"theirs":.*//' | read_locks
}

others() {
  git lfs locks --verify --json </dev/null | sed 's/.*"theirs"://' | read_locks
}

# among UNITS: of the locks on the input those of the units, and of what lies below them.
among() {
  relative "$1" >"$work/named"
  TOP=$(git rev-parse --show-prefix) awk -F '\t' '
    FILENAME == ARGV[1] { named[ENVIRON["TOP"] $0]; next }
    {
      path = $1
      while (!(path in named)) if (!sub(/\/[^\/]*$/, "", path)) next
      print
    }' "$work/named" -
}

# take_locks UNITS: of a file that is locked already the user may be the holder.
take_locks() {
  has_locks || return 0
  refuse_locked "$1"
  lines "$1" | while IFS= read -r file; do
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
  open_work
  others | among "$1" | while IFS='	' read -r path holder _; do
    fail "'$path' is locked by '$holder'."
  done
}

# give_locks UNITS: those of the user; files may be gone meanwhile.
give_locks() {
  has_locks || return 0
  open_work
  ours | among "$1" | while IFS='	' read -r _ _ number; do
    run git lfs unlock --id="$number" || give_up
  done
}

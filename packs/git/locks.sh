# Sourced by the helpers that lock. Git itself has no locks; LFS has them where the server offers
# them, which connect.sh has found out. Elsewhere a file is just made writable.

has_locks() {
  [ "$(git config --type=bool veldra.locks || :)" = true ]
}

# holders: a line a lock: path from the top of the repository, tab, holder.
holders() {
  git lfs locks --json </dev/null |
    sed 's/},{"id"/}\n{"id"/g' |
    sed -n 's/.*"path":"\(\([^"\\]\|\\.\)*\)".*"owner":{"name":"\([^"]*\)".*/\1\t\3/p'
}

# take_locks UNITS
take_locks() {
  has_locks || return 0
  lines "$1" | while read -r file; do
    run git lfs lock -- "$file" && continue
    top=$(git rev-parse --show-prefix)
    holder=$(holders | awk -F '\t' -v path="$top$(relative "$file")" '$1 == path { print $2 }')
    [ "$holder" != "$(git config user.name || login)" ] || continue
    [ -z "$holder" ] || fail "'$file' is locked by '$holder'."
    give_up
  done
}

# refuse_locked UNITS: fails when somebody else has locked one of them, or something below it.
refuse_locked() {
  has_locks || return 0
  me=$(git config user.name || login)
  top=$(git rev-parse --show-prefix)
  holders | grep -v "	$me\$" | while IFS='	' read -r path holder; do
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

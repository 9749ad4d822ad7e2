#!/bin/sh
# Puts a copy of a sample model under version control and takes it through add, check-out, edit,
# check-in, history and listing. After each step it asks the tool itself, not the module, whether the
# archive holds what it should.
#   samples/main-job.sh VELDRA-CM SAMPLE FOLDER TOOL
# The tool is Subversion, RCS, or Provider for Subversion through a provider library.
set -eu

veldra_cm=$1
sample=$2
where=$3
tool=$4

mkdir -p "$where"
where=$(mktemp -d "$(cd "$where" && pwd)/$tool-XXXXXX")
model="$where/coffee-machine"
archive="$where/archive"
cp -R "$sample" "$model"
chmod -R u+w "$model"
# Making the project is the first step of the job, so the sample's own stays behind.
rm -f "$model"/*.vdy

show() {
  printf '\n$ veldra-cm'
  for word in "$@"; do
    case "$word" in
      *[!A-Za-z0-9_./=:-]*) printf " '%s'" "$word" ;;
      *) printf ' %s' "$word" ;;
    esac
  done
  printf '\n'
  "$veldra_cm" "$@"
}

fail() {
  printf '\nFAILED: %s\n' "$1" >&2
  exit 1
}

# verify WHAT COMMAND...: the command must succeed.
verify() {
  what=$1
  shift
  "$@" >/dev/null 2>&1 || fail "$what"
  printf '  [ok] %s\n' "$what"
}

contains() { grep -qF -- "$1" "$2"; }
is_writable() { [ -n "$(find "$1" -perm -u+w)" ]; }
is_read_only() { [ -z "$(find "$1" -perm -u+w)" ]; }

# What the tool itself says.
case "$tool" in
  Subversion|Provider)
    # The model is a working copy, so the tool can be asked by the local name.
    svn() { env LC_ALL=C.UTF-8 svn --non-interactive "$@"; }
    archived_files() { svn ls -R "$(svn info --show-item url "$model")" | grep -v '/$'; }
    archived_text() { svn cat -r HEAD "$model/$1"; }
    archived_log() { svn log -r HEAD:1 "$model/$1"; }
    is_locked() { svn info -r HEAD "$model/$1" | grep -q '^Lock Owner:'; }
    ;;
  RCS)
    archived_files() {
      (cd "$archive" && find . -name '*,v') | sed -e 's|^\./||' -e 's|RCS/||' -e 's|,v$||'
    }
    # The place of a file's history: the RCS directory beside its name.
    history_file() {
      case "$1" in
        */*) printf '%s/%s/RCS/%s,v' "$archive" "${1%/*}" "${1##*/}" ;;
        *) printf '%s/RCS/%s,v' "$archive" "$1" ;;
      esac
    }
    archived_text() { co -q -p "$(history_file "$1")"; }
    archived_log() { rlog "$(history_file "$1")"; }
    # Holders stand on lines of their own below "locks:", each after a tab.
    is_locked() { rlog -h "$(history_file "$1")" | sed -n '/^locks:/,/^access/p' | grep -q '^[[:blank:]]'; }
    ;;
esac

unit="Brewing/Water Circuit/Pump.vcmp"
comment='Raise the pump pressure to 15 bar > 9 bar; "Hans" agrees, costs $0 & 100%'

if [ "$tool" = Provider ]; then
  # A registry of its own, so that the user's stays as it is.
  export VELDRA_USER_REGISTRY="$where/registry.toml" VELDRA_MACHINE_REGISTRY="$where/no-registry"
  show init "$model" --name "Coffee Machine"
  show provider install
  show -p "$model" provider use "Veldra Subversion"
  verify "the registry names the library" contains SCCServerPath "$where/registry.toml"
  show -p "$model" connect --archive "$archive"
else
  show init "$model" --name "Coffee Machine" --tool "$tool" --archive "$archive"
fi
verify "the archive exists" test -d "$archive"

show -p "$model" add --all -m "The coffee machine as drawn"
(cd "$model" && find . -type f ! -path '*/.*/*' | sed 's|^\./||' | LC_ALL=C sort) >"$where/in-folder"
archived_files | LC_ALL=C sort >"$where/in-archive"
verify "the archive lists all $(wc -l <"$where/in-folder" | tr -d ' ') files of the folder" \
  cmp "$where/in-folder" "$where/in-archive"
verify "$unit is read-only now" is_read_only "$model/$unit"

show -p "$model" checkout "$unit"
verify "$unit is writable" is_writable "$model/$unit"
verify "the tool knows the lock" is_locked "$unit"

printf '\n(editing %s: 9 bar become 15 bar)\n' "$unit"
sed 's/"value": "9 bar"/"value": "15 bar"/' "$model/$unit" >"$where/edited"
cmp -s "$where/edited" "$model/$unit" && fail "the edit changed nothing"
cat "$where/edited" >"$model/$unit"

printf '%s' "$comment" >"$where/comment"
show -p "$model" checkin "$unit" -F "$where/comment"
archived_text "$unit" >"$where/archived"
archived_log "$unit" >"$where/log"
verify "the archive holds the new pressure" contains '15 bar' "$where/archived"
verify "the comment arrived unchanged" contains "$comment" "$where/log"
verify "$unit is read-only again" is_read_only "$model/$unit"
is_locked "$unit" && fail "the lock is still there"
printf '  [ok] the lock is gone\n'

show -p "$model" history "$unit"
show -p "$model" ls
show -p "$model" status >"$where/status" || fail "status"
sed -n '1,12p' "$where/status"
verify "status knows the unit" contains "$unit" "$where/status"

environment=
if [ "$tool" = Provider ]; then
  environment="
  export VELDRA_USER_REGISTRY='$VELDRA_USER_REGISTRY'"
  svn log -v "file://$archive" >"$where/revisions"
  verify "svn log shows the revisions that were made" contains "$unit" "$where/revisions"
  printf '\n$ svn log file://%s\n' "$archive"
  svn log "file://$archive"
fi

cat <<TEXT

Everything did what it should.

  the model    $model
  the archive  $archive

What to type next:$environment
  $veldra_cm -p $model checkout Brewing/Grinder.vcmp
  $veldra_cm -p $model status
  $veldra_cm -p $model undo Brewing/Grinder.vcmp
  $veldra_cm --help
TEXT

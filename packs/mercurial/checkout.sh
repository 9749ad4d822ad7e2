# checkout.sh --read-write|--read-only|--lock UNITS [LABEL]: brings the newest state and makes the
# files writable. --lock leaves their content as it is, --read-only their mode.
. "${0%/*}/common.sh"
. "${0%/*}/newest.sh"

mode=$1 units=$2 wanted=${3:-}
[ -z "$wanted" ] || fail "Only the newest state can be checked out; fetch '$wanted' instead."
newer_there="The archive has a newer state of the file; fetch it first."
open_repository
# Work goes on without the archive; the check-in will need it.
receive || {
  tip=
  echo 'The archive cannot be reached; the newest state here is taken.'
}
if [ -n "$tip" ] && [ -n "$(on "$units" status --rev . --rev "$tip")" ]; then
  [ "$mode" != --lock ] || fail "$newer_there"
  bring_newest
fi
if [ "$mode" = --lock ]; then
  [ -z "$(older "$units")" ] || fail "$newer_there"
else
  restore "$units"
fi
in_archive "$units"
[ "$mode" = --read-only ] || about "$units" chmod u+w

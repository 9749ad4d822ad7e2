# checkout.sh --read-write|--read-only|--lock UNITS [LABEL]: brings the newest state and makes the
# files writable. --lock leaves their content as it is, --read-only their mode.
. "${0%/*}/common.sh"
. "${0%/*}/newest.sh"
. "${0%/*}/locks.sh"

mode=$1 units=$2 wanted=${3:-}
[ -z "$wanted" ] || fail "Only the newest state can be checked out; fetch '$wanted' instead."
newer_there="The archive has a newer state of the file; fetch it first."
open_repository
# Work goes on without the archive; the check-in will need it.
receive || {
  has_locks && give_up
  printf 'The archive cannot be reached; the newest state here is taken.\n'
}
# In a file that is missing there is nothing to merge.
[ "$mode" = --lock ] || bring_missing "$units"
if is_behind && ! has_content_of "$units" "$tip"; then
  [ "$mode" != --lock ] || fail "$newer_there"
  bring_newest
fi
in_archive "$units"
if [ "$mode" = --lock ]; then
  [ -z "$(older "$units")" ] || fail "$newer_there"
else
  restore "$units"
fi
[ "$mode" != --read-only ] || exit 0
take_locks "$units"
about "$units" chmod u+w

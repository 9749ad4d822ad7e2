# checkout.sh --read-write|--read-only|--lock UNITS [LABEL]: brings the newest revision and registers the
# user as editor. --lock leaves the content as it is, --read-only the mode.
. "${0%/*}/common.sh"

mode=$1 units=$2 wanted=${3:-}
[ -z "$wanted" ] || fail "Only the newest revision can be checked out; fetch '$wanted' instead."
open_folder "$units"
if [ "$mode" = --lock ]; then
  in_archive "$units"
  case $newline$(state_of "$units") in
    *"$newline"[UPC]' '*) fail "The archive has a newer revision of the file; fetch it first." ;;
  esac
else
  bring_newest "$units"
fi
[ "$mode" = --read-only ] || take "$units"

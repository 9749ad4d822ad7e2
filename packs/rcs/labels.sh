# Sourced by the helpers that know labels, which are symbolic names of revisions.
. "${0%/*}/../common/options.sh"

# check_label: refuses one that the file has already, or that RCS cannot keep.
check_label() {
  case $label in
    '') ;;
    *['$,.:;@']* | *[[:space:]]* | *[!!-~]* | [0-9]*)
      fail "'$label' cannot be a label in RCS: no blanks, no \$ , . : ; @ and no digit first."
      ;;
    *)
      bound=$(bound_revision)
      [ -z "$bound" ] || fail "The label '$label' exists already for revision $bound of '$working'. \
Choose another one."
      ;;
  esac
}

# bound_revision: what the label stands for now.
bound_revision() {
  rlog -h "$archived" 2>/dev/null | L="	$label: " awk '
    index($0, ENVIRON["L"]) == 1 { print substr($0, length(ENVIRON["L"]) + 1); exit }'
}

attach_label() {
  [ -z "$label" ] || rcs -q -n"$label:" "$archived"
}

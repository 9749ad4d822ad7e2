# Sourced by the helpers of all packs: what the templates hand to them. It takes nothing else of a pack.

# read_options [--label=LABEL] [COMMENTFILE]: sets $label and $comment.
read_options() {
  label=
  case ${1:-} in
    --label=*)
      label=${1#--label=}
      shift
      ;;
  esac
  comment=${1:-}
  # Where keywords are not replaced, the comment's stands for none.
  [ -f "$comment" ] || comment=
}

# read_fetch UNITS [--to=FILE] [LABEL]: sets $units, $to and $wanted.
read_fetch() {
  units=$1
  shift
  to=
  case ${1:-} in
    --to=*)
      to=${1#--to=}
      shift
      ;;
  esac
  wanted=${1:-}
}

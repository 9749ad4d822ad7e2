# Sourced by the helpers that add.

# schedule KIND TARGET...: one line a path that is new, the path from column 11 on. Properties come
# with the add: setting them by commands of their own would double the number of processes.
schedule() {
  properties='svn:needs-lock=*'
  [ "$1" = plain ] || properties="$properties;svn:keywords=Id Revision"
  shift
  svn add --force --parents --config-option config:miscellany:enable-auto-props=yes \
    --config-option "config:auto-props:*=$properties" "$@"
}

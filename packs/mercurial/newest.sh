# Sourced by the helpers that bring a folder up to date.
. "${0%/*}/../common/newest.sh"

content() {
  hg cat -r "$1" -- "$PWD/$2"
}

merge_texts() {
  diff3 -m "$@"
}

arriving() {
  hg status -n0 --rev . --rev "$tip" -- "$PWD"
}

changed() {
  hg status -mn0 -- "$PWD"
}

# settle: takes $tip for the state of a folder without one. Files that lie there already are kept.
settle() {
  hg debugsetparents "$tip" && hg debugrebuilddirstate && bring_missing && set_modes
}

# set_modes: what has the content of the archive becomes read-only.
set_modes() {
  hg files -0 -- "$PWD" 2>/dev/null | xargs -0 -r chmod -f a-w -- || :
  changed | xargs -0 -r chmod -f u+w -- || :
}

# bring_missing: files that are gone from this folder, read-only.
bring_missing() {
  open_work
  hg status -dn0 -- "$PWD" | sed -z 's|^|./|' >"$work/missing"
  [ -s "$work/missing" ] || return 0
  xargs -0 hg revert -q --no-backup -- <"$work/missing" && xargs -0 chmod a-w -- <"$work/missing"
}

# take_back: undoes what has been committed and scheduled; the files stay as they are.
take_back() {
  [ "$(hg log -r . -T '{node}')" = "$base" ] ||
    hg --config extensions.strip= strip -q --keep --no-backup -r "children($base) and ::."
  hg debugrebuilddirstate
  rm -f "$top/.hg/veldra-delivery"
}

# take_back_undelivered: the same for the commits that a killed run has made and not brought to the
# archive, so that the same command makes them anew. After `receive`.
take_back_undelivered() {
  [ -f "$top/.hg/veldra-delivery" ] || return 0
  read -r process former <"$top/.hg/veldra-delivery"
  ! kill -0 "$process" 2>/dev/null || return 0
  if [ -n "$(hg log -r ". and draft() and children($former)::." -T x 2>/dev/null)" ]; then
    base=$former
    take_back
  fi
  rm -f "$top/.hg/veldra-delivery"
}

# exchange FROM TO: puts the versions of FROM, a folder in $work, in the place of the files that both
# sides have changed, and these into TO.
exchange() {
  mkdir -p "$work/$2"
  number=0
  while IFS= read -r file; do
    number=$((number + 1))
    cp "./$file" "$work/$2/$number"
    cp "$work/$1/$number" "./$file.veldra-merged" && mv -f "./$file.veldra-merged" "./$file"
  done <"$work/both"
}

# bring_newest: moves the whole folder on to $tip. Local changes are merged in, or everything stays
# as it is.
bring_newest() {
  take_back_undelivered
  [ -n "$tip" ] || return 0
  # Of a missing file that arrives, hg would forget that it has it.
  bring_missing
  case $base in
    *[!0]*) ;;
    *)
      settle
      return
      ;;
  esac
  [ -n "$(hg log -r ". and ::$tip" -T '{node}')" ] ||
    fail "This folder has commits that the archive lacks, and the archive has newer ones. \
Bring both together with hg merge."
  begin_update
  # hg leaves a file alone that both sides have changed. What has been merged takes its place before:
  # were it done afterwards, a kill between both would leave a file that takes back what others did.
  exchange merged before
  run hg update -q --merge --tool internal:local -r "$tip" || {
    reason=$answer
    exchange before merged
    answer=$reason
    give_up
  }
  end_update
}

# Files that hold the content of a label are remembered, with a sum of that content, so that they are
# not taken for somebody's work.
remembered() {
  printf '%s\n' "$top/.hg/veldra-fetched"
}

sum_of() {
  printf '%s %s\n' "$(cksum <"$1")" "$1"
}

is_fetched() {
  sum_of "$1" | grep -q -x -F -f - "$(remembered)" 2>/dev/null
}

# older UNITS: a line a read-only file with the content of a label.
older() {
  [ -s "$(remembered)" ] || return 0
  on "$1" status -mn 2>/dev/null | while IFS= read -r file; do
    file=$(pwd -P)/$file
    [ -n "$(printf '%s\000' "$(relative "$file")" | writable)" ] || ! is_fetched "$file" ||
      printf '%s\n' "$file"
  done
}

# restore_older UNITS: brings the newest state of those.
restore_older() {
  older "$1" | while IFS= read -r file; do
    hg revert -q --no-backup -- "$file" && chmod a-w -- "$file" || return
  done
}

# restore UNITS: the same, and brings back files that are missing.
restore() {
  bring_missing
  restore_older "$1"
}

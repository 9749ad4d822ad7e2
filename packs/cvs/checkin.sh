# checkin.sh UNITS [--label=LABEL] [COMMENTFILE]: commits files, makes them read-only and takes the user
# from their editors. Unchanged files only lose their editor.
. "${0%/*}/common.sh"
. "${0%/*}/commit.sh"

units=$1
shift
read_options "$@"

# give_leftovers: a commit that was killed leaves the user among the editors of what it has brought into
# the archive. Such files are read-only, and yet among those whose former revision cvs keeps here; so are
# those that were moved or deleted while they were edited.
give_leftovers() {
  folders_of "$units" | while IFS= read -r folder; do
    sed -n "s|^B\([^/]*\)/.*|$folder/\1|p" "$folder/CVS/Baserev" 2>/dev/null || :
  done | while IFS= read -r file; do [ ! -e "$file" ] || printf '%s\n' "$file"; done | sort >"$work/edited"
  [ -s "$work/edited" ] || return 0
  is_out <"$work/edited" | sort | comm -23 "$work/edited" - >"$work/read-only"
  [ -s "$work/read-only" ] || return 0
  state_of "@$work/read-only" | sed 's|^..||; s|^\./||' | sort | comm -23 "$work/read-only" - >"$work/left"
  # cvs would bring back what it has kept, and takes nobody from the editors of a file without that.
  while IFS= read -r file; do cp -p -f -- "$file" "${file%/*}/CVS/Base/${file##*/}"; done <"$work/left"
  [ ! -s "$work/left" ] || {
    on "@$work/left" unedit -- >/dev/null
    on "@$work/left" update -C -A -- >/dev/null
    while IFS= read -r file; do drop_backups "$file" "$work/left"; done <"$work/left"
  }
}

open_folder "$units"
in_archive "$units"
check_label "$units"
relative "$units" | is_out | sort >"$work/out"
commit "$units" "$comment" || refuse
show
attach_label "$units"
relative "$units" | is_out | sort >"$work/unchanged"
comm -23 "$work/out" "$work/unchanged" | tell_unchanged "$units"
[ ! -s "$work/unchanged" ] || give "@$work/unchanged"
make_read_only "$units"
give_leftovers

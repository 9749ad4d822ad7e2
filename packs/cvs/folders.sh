# Sourced by the helpers that put directories under control.

# add_folder DIRECTORY: with those above it.
add_folder() {
  [ ! -d "$1/CVS" ] || return 0
  add_folder "$(dirname -- "$1")"
  (cd -- "$(dirname -- "$1")" && command cvs -f -Q add -- "${1##*/}")
}

# add_folders: those of the files on the input.
add_folders() {
  sed -n 's|/[^/]*$||p' | sort -u | while IFS= read -r folder; do add_folder "$folder"; done
}

# add_files OPTION: the files of the input; -kb keeps their bytes, -kkv expands keywords.
add_files() {
  tr '\n' '\000' | xargs -0 -r cvs -f -Q add "$1" --
}

# controlled DIRECTORY: the files below it that are under control.
controlled() {
  find "$1" -type d -name CVS | while IFS= read -r records; do
    folder=${records%/CVS}
    entries "$folder" | sed -n 's|^/\([^/]*\)/.*|\1|p' | while IFS= read -r name; do
      printf '%s/%s\n' "$folder" "$name"
    done
  done
}

# drop_empty DIRECTORY: the records of one without files are of no use.
drop_empty() {
  [ -n "$(find "$1" -type f ! -path '*/CVS/*')" ] || rm -rf -- "$1"
}

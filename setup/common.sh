# Shared by ./run and ./test: where things lie, and how a step is announced.
# Sourced with $top set to the root of the repository.

build="$top/build"

say() { printf '\n\033[1m== %s\033[0m\n' "$1"; }

# configure FOLDER [CMAKE-OPTION...]: quiet unless it fails.
configure() {
  folder=$1
  shift
  mkdir -p "$folder"
  if ! cmake -S "$top" -B "$folder" -G Ninja "$@" >"$folder/configure.log" 2>&1; then
    cat "$folder/configure.log" >&2
    echo "The configuration failed; see the lines above." >&2
    exit 1
  fi
}

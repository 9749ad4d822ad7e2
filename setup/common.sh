# Shared by ./run and ./test: where things lie, and how a step is announced.
# Sourced with $top set to the root of the repository.

build="$top/build"

say() { printf '\n\033[1m== %s\033[0m\n' "$1"; }

# Ten files compiled as one take a quarter of the time.
many_as_one="-DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=10"

# configure FOLDER [CMAKE-OPTION...]: quiet unless it fails.
configure() {
  folder=$1
  shift
  mkdir -p "$folder"
  # shellcheck disable=SC2086  # two options
  if ! cmake -S "$top" -B "$folder" -G Ninja $many_as_one "$@" >"$folder/configure.log" 2>&1; then
    cat "$folder/configure.log" >&2
    echo "The configuration failed; see the lines above." >&2
    exit 1
  fi
}

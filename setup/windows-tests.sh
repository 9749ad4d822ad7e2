#!/bin/sh
# Builds for 64-bit Windows and runs the unit tests under Wine; ./test --windows calls it.
#   --ui   the tests of the dialogs too; builds Qt from Debian's source package first, once
set -eu

top=$(cd "$(dirname "$0")/.." && pwd)
with_ui=no
case "${1:-}" in
  "") ;;
  --ui) with_ui=yes ;;
  *) echo "usage: ./test --windows [--ui]" >&2; exit 2 ;;
esac

. "$top/setup/common.sh"
jobs=$(nproc 2>/dev/null || echo 2)
windows="$build/windows"
libraries="$build/windows-libraries"

say "Set up for Windows"
"$top/setup/install.sh" windows
"$top/setup/windows-libraries.sh" "$libraries"
qt_options="-DVELDRA_BUILD_UI=OFF"
if [ "$with_ui" = yes ]; then
  "$top/setup/windows-qt.sh" "$libraries"
  qt_options="-DVELDRA_BUILD_UI=ON -DQT_HOST_PATH=/usr"
fi
echo "All packages and libraries are there."

say "Build for Windows"
# shellcheck disable=SC2086  # a list of options on purpose
configure "$windows" -DCMAKE_TOOLCHAIN_FILE="$top/cmake/mingw-w64.cmake" \
  -DVELDRA_WINDOWS_PREFIX="$libraries" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 \
  -DVELDRA_BUILD_TESTS=ON -DVELDRA_BUILD_SUBVERSION_PROVIDER=OFF -DVELDRA_PRECOMPILE_HEADERS=ON \
  $qt_options
cmake --build "$windows"
# The interface of providers is the same in 32-bit programs, of which Debian's compiler for 64 bits
# can at least check every declaration.
x86_64-w64-mingw32-g++-posix -m32 -std=c++20 -fsyntax-only -I"$top" "$top/tests/structure/windows/Interface32.cpp"

say "Unit tests under Wine"
export WINEPREFIX="$build/wine"
rm -rf "$WINEPREFIX"
mkdir -p "$WINEPREFIX"
# Wine's services live as long as its server. Each program would start them anew, and they would
# hold the pipe that a program's output goes to.
/usr/lib/wine/wineserver -p </dev/null >/dev/null 2>&1
trap '/usr/lib/wine/wineserver -k || true' EXIT
"$top/setup/wine" cmd /c exit </dev/null >/dev/null 2>&1

# run_tests NAME: the program's tests in as many parts as there are processors; says how many ran.
run_tests() {
  logs="$windows/logs/$1"
  rm -rf "$logs"
  mkdir -p "$logs"
  part=0
  running=""
  while [ "$part" -lt "$jobs" ]; do
    GTEST_TOTAL_SHARDS=$jobs GTEST_SHARD_INDEX=$part GTEST_COLOR=no \
      timeout 300 "$top/setup/wine" "$windows/bin/$1.exe" </dev/null >"$logs/$part" 2>&1 &
    running="$running $!"
    part=$((part + 1))
  done
  failed=no
  for process in $running; do wait "$process" || failed=yes; done
  # A skipped test says why on the line before its mark.
  grep -h -B2 '^\[  SKIPPED \] .*ms)' "$logs"/* | sed 's/\r$//' | grep -v '^\[ RUN\|^--' || true
  if [ "$failed" = yes ]; then
    grep -h -B12 '^\[  FAILED  \] .*ms)' "$logs"/* >&2 || tail -n 5 "$logs"/* >&2
    echo "Tests failed under Wine; all output is in $logs." >&2
    exit 1
  fi
  sed -n 's/^\[==========\] \([0-9]*\) tests\{0,1\} from .* ran\..*/\1/p' "$logs"/* |
    awk -v name="$1" '{ all += $1 } END { print all " tests of " name " ran under Wine." }'
}

run_tests veldra_unit_tests
[ "$with_ui" = no ] || QT_QPA_PLATFORM=offscreen run_tests veldra_ui_tests

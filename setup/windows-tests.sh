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
windows="$build/windows"
libraries="$build/windows-libraries"
# Outside of the build folder, which people remove, and for this very version of Qt's own tools.
qt="${XDG_CACHE_HOME:-$HOME/.cache}/veldra-cm-windows-qt"

say "Set up for Windows"
"$top/setup/install.sh" windows
"$top/setup/windows-libraries.sh" "$libraries"
prefixes="$libraries"
qt_options="-DVELDRA_BUILD_UI=OFF"
if [ "$with_ui" = yes ]; then
  qt="$qt-$(dpkg-query -W -f '${Version}' qt6-base-dev)"
  "$top/setup/windows-qt.sh" "$qt"
  prefixes="$libraries;$qt"
  qt_options="-DVELDRA_BUILD_UI=ON -DQT_HOST_PATH=/usr"
fi
echo "All packages and libraries are there."

say "Build for Windows"
# shellcheck disable=SC2086  # a list of options on purpose
configure "$windows" -DCMAKE_TOOLCHAIN_FILE="$top/cmake/mingw-w64.cmake" \
  -DVELDRA_WINDOWS_PREFIX="$prefixes" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O1 \
  -DVELDRA_BUILD_TESTS=ON -DVELDRA_BUILD_SUBVERSION_PROVIDER=OFF -DVELDRA_PRECOMPILE_HEADERS=ON \
  $qt_options
cmake --build "$windows"
# The interface of providers is the same in 32-bit programs, of which Debian's compiler for 64 bits
# can at least check every declaration.
x86_64-w64-mingw32-g++-posix -m32 -std=c++20 -fsyntax-only -I"$top" "$top/tests/structure/windows/Interface32.cpp"

say "Lint of what only Windows has"
"$top/setup/windows-lint.sh" "$libraries"

say "Unit tests under Wine"
export WINEPREFIX="$build/wine"
rm -rf "$WINEPREFIX"
mkdir -p "$WINEPREFIX"
# Wine's services live as long as its server. Each program would start them anew, and they would
# hold the pipe that a program's output goes to.
/usr/lib/wine/wineserver -p </dev/null >/dev/null 2>&1
trap '/usr/lib/wine/wineserver -k || true' EXIT
"$top/setup/wine" cmd /c exit </dev/null >/dev/null 2>&1
if [ "$with_ui" = yes ]; then
  # Without a screen Qt has no fonts there but those that it is told of, and Wine hands over none of
  # its variables.
  export WINEPATH="Z:$qt/bin"
  "$top/setup/wine" reg add 'HKCU\Environment' /f /v QT_QPA_FONTDIR /d 'Z:\usr\share\fonts\truetype\dejavu' \
    </dev/null >/dev/null 2>&1
fi

# names_of ROOM others|own COMMAND...: "Suite.test" of each test of a program, but for those of a room
# of the platform's, or those alone.
names_of() {
  room=$1
  which=$2
  shift 2
  rm -f "$logs/list.xml"
  (cd "$logs" && "$@" --gtest_list_tests --gtest_output=xml:list.xml >/dev/null)
  awk -v room="/platform/$room/" -v which="$which" '
    match($0, /<testsuite name="[^"]*/) { suite = substr($0, RSTART + 17, RLENGTH - 17) }
    match($0, /<testcase name="[^"]*/) {
      name = substr($0, RSTART + 16, RLENGTH - 16)
      if ((index($0, room) > 0) == (which == "own")) print suite "." name
    }' "$logs/list.xml" | LC_ALL=C sort
}

# by_suite: how many of the tests that come in are in each suite, on one line.
by_suite() {
  sed 's/\..*//' | uniq -c | awk '{ printf "%s%s %s", (NR > 1 ? ", " : ""), $1, $2 } END { print "" }'
}

# compare_with_linux NAME: every test that this system has, Windows has too, but for the room's own.
compare_with_linux() {
  if [ ! -x "$build/bin/$1" ]; then
    echo "The same program for this system is not built, so its tests are not compared: ./test does."
    return
  fi
  names_of posix others "$build/bin/$1" >"$logs/linux"
  names_of win32 others "$top/setup/wine" "$windows/bin/$1.exe" >"$logs/windows"
  echo "$(wc -l <"$logs/linux") tests are common to Linux and Windows. Each room has its own:"
  echo "  posix: $(names_of posix own "$build/bin/$1" | by_suite)"
  echo "  win32: $(names_of win32 own "$top/setup/wine" "$windows/bin/$1.exe" | by_suite)"
  if ! diff "$logs/linux" "$logs/windows" >"$logs/difference"; then
    echo "The tests of $1 differ between Linux (<) and Windows (>):" >&2
    cat "$logs/difference" >&2
    exit 1
  fi
}

# run_tests NAME: runs the program's tests; says how many ran, and why each skipped one was.
run_tests() {
  logs="$windows/logs/$1"
  rm -rf "$logs"
  mkdir -p "$logs"
  failed=no
  GTEST_COLOR=no timeout 300 "$top/setup/wine" "$windows/bin/$1.exe" </dev/null >"$logs/output" 2>&1 || failed=yes
  # A skipped test says why on the line before its mark.
  grep -a -B2 '^\[  SKIPPED \] .*ms)' "$logs/output" | sed 's/\r$//' | grep -a -v '^\[ RUN\|^--' || true
  if [ "$failed" = yes ]; then
    grep -a -B12 '^\[  FAILED  \] .*ms)' "$logs/output" >&2 || tail -n 5 "$logs/output" >&2
    echo "Tests failed under Wine; all output is in $logs/output." >&2
    exit 1
  fi
  ran=$(sed -n 's/^\[==========\] \([0-9]*\) tests\{0,1\} from .* ran\..*/\1/p' "$logs/output")
  skipped=$(grep -a -c '^\[  SKIPPED \] .*ms)' "$logs/output") || true
  listed=$("$top/setup/wine" "$windows/bin/$1.exe" --gtest_list_tests </dev/null | grep -c '^  ')
  if [ "$ran" != "$listed" ]; then
    echo "$1 has $listed tests, of which $ran ran." >&2
    exit 1
  fi
  compare_with_linux "$1"
  echo "$ran tests of $1 ran under Wine, $skipped of them skipped with the reasons above."
}

run_tests veldra_unit_tests
[ "$with_ui" = no ] || run_tests veldra_ui_tests

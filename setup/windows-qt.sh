#!/bin/sh
# Fills a folder with Qt for Windows, as much of it as the windows need, built from Debian's source
# packages: setup/windows-qt.sh FOLDER
# Takes the better part of an hour on two processors, once. The tools that Qt needs while it is
# built are this system's own, of the same version.
set -eu

top=$(cd "$(dirname "$0")/.." && pwd)
[ $# -eq 1 ] || { echo "usage: setup/windows-qt.sh FOLDER" >&2; exit 2; }
mkdir -p "$1"
prefix=$(cd "$1" && pwd)
[ -e "$prefix/complete" ] && exit 0

# build_module NAME OPTION...: one source package, installed into the folder.
build_module() {
  module=$1
  shift
  log="$prefix/$module.log"
  echo "Building $module for Windows; its progress is in $log."
  cmake -S "$prefix/source/$module" -B "$prefix/source/$module-build" -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE="$top/cmake/mingw-w64.cmake" -DVELDRA_WINDOWS_PREFIX="$prefix" \
    -DCMAKE_BUILD_TYPE=Release "-DCMAKE_CXX_FLAGS_RELEASE=-O1 -DNDEBUG" -DCMAKE_INSTALL_PREFIX="$prefix" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -dumpmachine)/cmake" \
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF "$@" >"$log" 2>&1 &&
    cmake --build "$prefix/source/$module-build" --target install >>"$log" 2>&1 || {
      tail -30 "$log" >&2
      exit 1
    }
}

# Debian's package lacks what some of these need.
off=""
for feature in sql dbus network printsupport concurrent xml vulkan direct2d directwrite directwrite3 \
  tabletevent jpeg androiddeployqt system_zlib system_pcre2 system_freetype system_harfbuzz system_png; do
  off="$off -DFEATURE_$feature=OFF"
done
"$top/setup/debian-source.sh" qt6-base "$prefix/source"
# shellcheck disable=SC2086  # a list of options on purpose
build_module qt6-base -DINPUT_opengl=no $off
# Not every mirror of the archive has it. It draws the icons; the windows are built without them, too.
if "$top/setup/debian-source.sh" qt6-svg "$prefix/source" 2>"$prefix/qt6-svg.log"; then
  build_module qt6-svg
else
  echo "The archive does not give the source package qt6-svg, as $prefix/qt6-svg.log tells."
  echo "The windows will be without icons."
fi
rm -rf "$prefix/source"
: >"$prefix/complete"

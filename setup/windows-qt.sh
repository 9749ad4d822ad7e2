#!/bin/sh
# Fills a folder with Qt for Windows, built from Debian's source packages: setup/windows-qt.sh FOLDER
# Takes the better part of an hour on two processors, once. The tools that Qt needs while it is
# built are this system's own, of the same version.
set -eu

top=$(cd "$(dirname "$0")/.." && pwd)
[ $# -eq 1 ] || { echo "usage: setup/windows-qt.sh FOLDER" >&2; exit 2; }
mkdir -p "$1"
prefix=$(cd "$1" && pwd)
[ -e "$prefix/complete-qt" ] && exit 0

# build_module NAME OPTION...: one source package, installed into the folder.
build_module() {
  module=$1
  shift
  "$top/setup/debian-source.sh" "$module" "$prefix/source"
  cmake -S "$prefix/source/$module" -B "$prefix/source/$module-build" -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE="$top/cmake/mingw-w64.cmake" -DVELDRA_WINDOWS_PREFIX="$prefix" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -dumpmachine)/cmake" \
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF "$@"
  cmake --build "$prefix/source/$module-build" --target install
}

build_module qt6-base -DINPUT_opengl=no -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_network=OFF \
  -DFEATURE_printsupport=OFF -DFEATURE_system_zlib=OFF -DFEATURE_system_pcre2=OFF \
  -DFEATURE_system_freetype=OFF -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_png=OFF \
  -DFEATURE_system_jpeg=OFF
build_module qt6-svg
: >"$prefix/complete-qt"

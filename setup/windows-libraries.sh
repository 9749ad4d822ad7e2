#!/bin/sh
# Fills a folder with what the reference host needs to be built for Windows and Debian has no
# package for: setup/windows-libraries.sh FOLDER
# PCRE2 is built from Debian's source package; libraries that are headers only are copied.
set -eu

top=$(cd "$(dirname "$0")/.." && pwd)
[ $# -eq 1 ] || { echo "usage: setup/windows-libraries.sh FOLDER" >&2; exit 2; }
mkdir -p "$1"
prefix=$(cd "$1" && pwd)
[ -e "$prefix/complete" ] && exit 0

"$top/setup/debian-source.sh" pcre2 "$prefix/source"

cmake -S "$prefix/source/pcre2" -B "$prefix/source/build" -G Ninja \
  -DCMAKE_TOOLCHAIN_FILE="$top/cmake/mingw-w64.cmake" -DVELDRA_WINDOWS_PREFIX="$prefix" \
  -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" -DBUILD_SHARED_LIBS=OFF \
  -DPCRE2_SUPPORT_JIT=ON -DPCRE2_BUILD_PCRE2GREP=OFF -DPCRE2_BUILD_TESTS=OFF >"$prefix/pcre2.log" 2>&1 &&
  cmake --build "$prefix/source/build" --target install >>"$prefix/pcre2.log" 2>&1 || {
    tail -30 "$prefix/pcre2.log" >&2
    exit 1
  }

# It is a static library, which its headers have to be told, and its description does not tell them.
sed -i 's/^Cflags:.*/& -DPCRE2_STATIC/' "$prefix/lib/pkgconfig/libpcre2-8.pc"

# The folder of all headers of this system must not get in: they are another system's.
for headers in nlohmann toml++ CLI; do cp -R "/usr/include/$headers" "$prefix/include"; done
mkdir -p "$prefix/share/cmake"
cp -R /usr/share/cmake/nlohmann_json "$prefix/share/cmake"
: >"$prefix/complete"

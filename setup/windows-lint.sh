#!/bin/sh
# Looks for bad habits in the sources that only Windows has: setup/windows-lint.sh FOLDER, which is
# the one that setup/windows-libraries.sh has filled.
set -eu

top=$(cd "$(dirname "$0")/.." && pwd)
[ $# -eq 1 ] || { echo "usage: setup/windows-lint.sh FOLDER" >&2; exit 2; }
libraries=$1

# All of them as one file: the system's headers are then looked at once.
all="$libraries/lint.cpp"
for source in "$top"/host/platform/win32/*.cpp "$top"/tests/host/platform/win32/*.cpp \
  "$top"/tests/support/child/Win32.cpp; do
  echo "#include \"$source\""
done >"$all"

# The linter has to be told where another system's compiler keeps its headers.
headers="$(x86_64-w64-mingw32-g++-posix -print-file-name=include)/../include/c++"
gtest=/usr/src/googletest
if ! clang-tidy --config-file="$top/.clang-tidy" --quiet "$all" -- --target=x86_64-w64-mingw32 \
  -std=c++20 -nostdinc++ -isystem "$headers" -isystem "$headers/x86_64-w64-mingw32" \
  -isystem /usr/x86_64-w64-mingw32/include -isystem "$libraries/include" \
  -isystem $gtest/googletest/include -isystem $gtest/googlemock/include -I"$top" \
  -DUNICODE -D_UNICODE -DNOMINMAX -DWIN32_LEAN_AND_MEAN -D_WIN32_WINNT=0x0A00 -DVELDRA_CM_STATIC \
  '-DVELDRA_RECORDING_PROVIDER=""' >"$libraries/lint.log" 2>&1; then
  cat "$libraries/lint.log" >&2
  exit 1
fi
echo "$(wc -l <"$all") files are clean."

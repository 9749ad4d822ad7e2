#!/bin/sh
# Fetches and unpacks a source package of this Debian: setup/debian-source.sh PACKAGE FOLDER
# gives FOLDER/PACKAGE. The system's own list of package sources stays as it is.
set -eu

[ $# -eq 2 ] || { echo "usage: setup/debian-source.sh PACKAGE FOLDER" >&2; exit 2; }
package=$1
mkdir -p "$2"
folder=$(cd "$2" && pwd)
[ -d "$folder/$package" ] && exit 0

# The same places as for binary packages, in a state of apt of its own.
apt="$folder/apt"
mkdir -p "$apt/lists/partial" "$apt/parts"
: >"$apt/list"
if [ -f /etc/apt/sources.list ]; then sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >"$apt/list"; fi
for list in /etc/apt/sources.list.d/debian*.sources; do
  [ -f "$list" ] && sed 's/^Types:.*/Types: deb-src/' "$list" >"$apt/parts/$(basename "$list")"
done
own="-o Dir::Etc::sourcelist=$apt/list -o Dir::Etc::sourceparts=$apt/parts -o Dir::State::lists=$apt/lists"

cd "$folder"
# shellcheck disable=SC2086  # a list of options on purpose
apt-get $own -qq -o APT::Sandbox::User=root update
# A mirror may announce an update that it does not have; an older version is as good.
# shellcheck disable=SC2086
for version in $(apt-cache $own showsrc "$package" | sed -n 's/^Version: //p'); do
  # shellcheck disable=SC2086
  apt-get $own -qq -o APT::Sandbox::User=root source --download-only "$package=$version" 2>>"$apt/log" && break
  rm -f "$package"_*
done
if ! ls "$package"_*.dsc >/dev/null 2>&1; then
  cat "$apt/log" >&2
  exit 1
fi
# apt has checked the archive's signature over these files; that of the uploader needs a key ring more.
dpkg-source --no-check --extract "$package"_*.dsc "$package" >/dev/null

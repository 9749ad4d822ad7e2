#!/bin/sh
# Installs the packages of setup/packages.txt that are missing: setup/install.sh run|test|long|windows
# Says what it installs. On a system without apt-get it names what is missing instead.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
case "${1:-run}" in
  run) groups="run" ;;
  test) groups="run test" ;;
  long) groups="run test long" ;;
  windows) groups="run test windows" ;;
  *) echo "usage: setup/install.sh run|test|long|windows" >&2; exit 2 ;;
esac

wanted=$(for group in $groups; do
  sed -n "s/^${group}[[:space:]][[:space:]]*\([^[:space:]]*\).*/\1/p" "$here/packages.txt"
done)

if ! command -v apt-get >/dev/null 2>&1; then
  missing=""
  for program in g++ cmake ninja pkg-config svn ci; do
    command -v "$program" >/dev/null 2>&1 || missing="$missing $program"
  done
  [ -z "$missing" ] && exit 0
  echo "This is no Debian or Ubuntu. Install these programs with your own package manager:$missing" >&2
  echo "setup/packages.txt lists the Debian packages and what each is for." >&2
  exit 1
fi

# A package counts by its name and by what it provides: some have changed their names over the years.
installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}, ${Provides}\n' |
  sed -n 's/^installed //p' | tr ',' '\n' | sed 's/(.*//; s/[[:space:]]//g')
missing=""
for package in $wanted; do
  printf '%s\n' "$installed" | grep -qxF "$package" || missing="$missing $package"
done
[ -z "$missing" ] && exit 0

as_root=""
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null 2>&1; then
    echo "These packages are missing and installing them needs root:$missing" >&2
    echo "Run as root: apt-get install$missing" >&2
    exit 1
  fi
  as_root="sudo"
fi

echo "Installing Debian packages (the reasons are in setup/packages.txt):$missing"
$as_root apt-get update -qq
# shellcheck disable=SC2086  # a list of names on purpose
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing

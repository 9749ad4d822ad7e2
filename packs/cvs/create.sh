# create.sh ARCHIVE: makes the repository at a local path with a module "model" in it, or, when the path
# leads into a repository that exists, the module.
. "${0%/*}/common.sh"
. "${0%/*}/place.sh"

find_place "$1"
[ -n "$root" ] || fail "'$1' is no local path; a repository on a server is created there."
[ -d "$root/CVSROOT" ] || {
  mkdir -p -- "$root"
  cvs -d "$root" init
}
mkdir -p -- "$root/$module"
printf 'Archive: %s\n' "$1"

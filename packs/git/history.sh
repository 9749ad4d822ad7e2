# history.sh UNIT: commits that changed the file, the newest first, under its former names too, with
# the version that each made.
. "${0%/*}/common.sh"

open_repository
in_archive "$1"
receive || printf 'The archive cannot be reached; this is what is known here.\n'
git --no-pager log --follow --no-show-signature --pretty=medium --date=iso --raw --abbrev=12 \
  "${tip:-HEAD}" -- "$1"

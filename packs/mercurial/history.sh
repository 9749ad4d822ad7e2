# history.sh UNIT: commits that changed the file, the newest first, under its former names too.
. "${0%/*}/common.sh"

open_repository
in_archive "$1"
receive || echo 'The archive cannot be reached; this is what is known here.'
# Comments are indented, so that none looks like a message of hg.
hg log --follow -T '{short(node)}  {date|isodate}  {author}{if(tags, "  {tags}")}\n
{indent(desc, "    ")}\n\n' -- "$1"

# Gives each file of a list, which an empty line ends, the first of the commits behind it that names
# the file. A commit stands in a line of its own; the files that it changed follow with a tab before
# each.
function relative(path) { return prefix == "" ? path : substr(path, length(prefix) + 2) }

!inLog && $0 == "" { inLog = 1; next }
!inLog { if ($0 != ".hgtags") waiting[$0]; next }
/^\t/ {
  path = substr($0, 2)
  if (path in waiting) {
    print commit "\t\tRO\t" relative(path)
    delete waiting[path]
  }
  next
}
{ commit = $0 }

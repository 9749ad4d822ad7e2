# Turns `svn list --xml` into one line a file. svn writes one tag or attribute a line. A lock's
# comment may hold lines of any text, so an attribute counts only right below its tag; tags are
# safe, "<" is escaped.

function content(line) {
  sub(/^<[a-z]*>/, "", line)
  sub(/<\/[a-z]*>$/, "", line)
  if (index(line, "&")) {
    gsub(/&lt;/, "<", line)
    gsub(/&gt;/, ">", line)
    gsub(/&quot;/, "\"", line)
    gsub(/&apos;/, "'", line)
    gsub(/&amp;/, "\\&", line)
  }
  return line
}

above == "<entry" { isFile = /kind="file"/; locker = "" }
above == "<commit" { split($0, part, "\""); revision = part[2] }
/^<name>/ { name = content($0) }
/^<owner>/ { locker = content($0) }
/^<\/entry>/ && isFile { print revision "\t" locker "\t" (locker == "" ? "RO" : "RW") "\t" name }
{ above = $0 }

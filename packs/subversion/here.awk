# Turns the entries of `svn info --xml` into those of `svn list --xml`. svn tells attributes in any order.

/^<entry$/ { inEntry = 1; next }
inEntry && /^   kind="/ { kind = $0 }
inEntry && /^   path="/ { path = $0 }
inEntry && />$/ {
  sub(/.*kind="/, "", kind)
  sub(/".*/, "", kind)
  sub(/^   path="/, "", path)
  sub(/">?$/, "", path)
  print "<entry\n   kind=\"" kind "\">\n<name>" path "</name>"
  inEntry = 0
  next
}
!inEntry

# Puts the editors, as `cvs editors` tells them, to the files that `cvs rls -e` lists: a line "name:"
# begins a directory, and a line "/name/revision/..." is a file in it.

FILENAME == ARGV[1] {
  split($0, part, "\t")
  if (part[1] != "") file = part[1]
  editors[file] = editors[file] (editors[file] == "" ? "" : ", ") part[2]
  next
}
/^\001/ { exit 1 }
/^\// {
  split($0, part, "/")
  path = directory part[2]
  holder = editors[path]
  print part[3] "\t" holder "\t" (holder == "" ? "RO" : "RW") "\t" path
  next
}
/:$/ {
  directory = substr($0, length(module) + 2, length($0) - length(module) - 2)
  if (directory != "") directory = directory "/"
}

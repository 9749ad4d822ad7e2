# Puts the holders of locks, a line each of path and name, into the lines of git ls-tree. The paths of
# locks begin at the top of the repository.
BEGIN { FS = "\t" }
FILENAME == ARGV[1] { holder[$1] = $2; next }
{
  path = substr($0, length($1) + 2)
  name = holder[prefix path]
  print (name == "" ? $0 : $1 " " name "\t" path)
}

# Puts the holders of locks, a line each of path and name, before the lines of git ls-tree. The paths of
# locks begin at the top of the repository.
BEGIN { FS = "\t" }
FILENAME == ARGV[1] { holder[$1] = $2; next }
{
  name = holder[prefix substr($0, length($1) + 2)]
  lock = name == "" ? "" : "by " name "\002"
  print lock $0
}

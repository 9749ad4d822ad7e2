# Turns `rlog -h` into one line a file. The path loses what only the archive has: the RCS directory
# and ",v".

/^RCS file: / {
  path = substr($0, 11)
  sub(/^\.\//, "", path)
  sub(/,v$/, "", path)
  name = path
  sub(/.*\//, "", name)
  directory = substr(path, 1, length(path) - length(name))
  sub(/RCS\/$/, "", directory)
  lockers = ""
}
/^head: */ { revision = $2 }
/^locks:/ { inLocks = 1; next }
/^access list:/ { inLocks = 0 }
inLocks { sub(/:$/, "", $1); lockers = lockers (lockers == "" ? "" : ", ") $1 }
/^total revisions:/ {
  print revision "\t" lockers "\t" (lockers == "" ? "RO" : "RW") "\t" directory name
}

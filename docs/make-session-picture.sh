#!/bin/sh
# Runs a short session with the real program and draws it: docs/pictures/session.svg
set -eu

top=$(cd "$(dirname "$0")/.." && pwd)
PATH="$top/build/bin:$PATH"
where=$(mktemp -d)
trap 'rm -rf "$where"' EXIT
mkdir "$where/model"
(cd "$top/samples/coffee-machine" && cp -R Brewing "$where/model")
cd "$where/model"

session() {
  for command in \
    "veldra-cm init . --name Brewing --tool Subversion --archive ../archive" \
    "veldra-cm add --all -m 'As drawn' | tail -n 3" \
    "veldra-cm checkout Brewing::Grinder" \
    "sed -i 's/Grinds one/Grinds exactly one/' Brewing/Grinder.vcmp" \
    "veldra-cm checkin Brewing::Grinder -m 'One \"portion\" > two; costs \$log & 5%'" \
    "veldra-cm history Brewing::Grinder | head -n 5" \
    "veldra-cm checkout 'Brewing/Water Circuit/Pump.vcmp'" \
    "veldra-cm status -u | grep -E 'MODE|Grinder|Pump|Tank'"; do
    printf '$ %s\n' "$command"
    sh -c "$command" 2>&1
  done
}

session | sed "s|$where|/home/ada|g" | awk '
  function escaped(text) {
    gsub(/&/, "\\&amp;", text); gsub(/</, "\\&lt;", text); gsub(/>/, "\\&gt;", text)
    return text
  }
  { lines[NR] = $0 }
  END {
    height = NR * 20 + 40
    printf "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1040\" height=\"%d\" ", height
    print "font-family=\"DejaVu Sans Mono, Menlo, Consolas, monospace\" font-size=\"14\">"
    printf "<rect width=\"1040\" height=\"%d\" rx=\"8\" fill=\"#1f2430\"/>\n", height
    for (i = 1; i <= NR; ++i) {
      colour = substr(lines[i], 1, 2) == "$ " ? "#ffd580" : "#cbccc6"
      printf "<text x=\"20\" y=\"%d\" fill=\"%s\" xml:space=\"preserve\">%s</text>\n",
        i * 20 + 14, colour, escaped(lines[i])
    }
    print "</svg>"
  }' >"$top/docs/pictures/session.svg"
echo "docs/pictures/session.svg is drawn anew."

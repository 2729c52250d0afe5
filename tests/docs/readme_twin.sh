#!/usr/bin/env bash
# readme_twin.sh README.md README.pt-BR.md: the two say the same. Compared are the headings (their levels), what stands
# in code blocks (comments apart), the code spans and numbers of each row of a table, and where links lead.
set -euo pipefail
skeleton() {
  awk '
    /^```/ { fence = !fence; print; next }
    fence { sub(/ +(#|\/\/) .*$/, ""); print; next }
    /^#+ / { sub(/ .*/, ""); print; next }
    /^\|/ {
      row = $0
      line = "row " gsub(/\|/, "|", row) - 1
      while (match(row, /`[^`]*`|[0-9][0-9.]*/)) {
        line = line " " substr(row, RSTART, RLENGTH)
        row = substr(row, RSTART + RLENGTH)
      }
      print line
    }
    {
      rest = $0
      while (match(rest, /\]\([^)]*\)/)) {
        target = substr(rest, RSTART + 2, RLENGTH - 3)
        if (target !~ /^README/) print "link " target
        rest = substr(rest, RSTART + RLENGTH)
      }
    }' "$1"
}
lines=$(skeleton "$1" | wc -l)
[ "$lines" -gt 100 ] || { echo "only $lines lines to compare in $1"; exit 1; }
diff <(skeleton "$1") <(skeleton "$2")

#!/bin/sh
# The names that the shared object exports, one per line with what each one is, and of data the size in bytes
# (hexadecimal). With a + after it: within one SONAME the table may grow.
#
#   exports.sh NM LIBRARY [LIST]   prints them, or compares them with a list
set -eu
nm=$1 library=$2 list=${3-}

exports() {
  "$nm" -D -S --defined-only --format=posix "$library" | awk -v list="$list" '
    BEGIN {
      while (list != "" && (getline <list) > 0)
        if ($3 ~ /[+]$/) least[$2] = $3
    }
    $2 ~ /^[TtWi]$/ { print "function", $1; next }
    { size = $4 }
    $1 in least && sprintf("%17s", size "+") >= sprintf("%17s", least[$1]) { size = least[$1] }
    { print "object", $1, size }' | LC_ALL=C sort
}

[ -n "$list" ] || { exports; exit; }
if difference=$(exports | diff -U0 "$list" -); then
  echo "$(grep -c . "$list") names as listed"
else
  echo "Exports differ from $list (- lost, + new):"
  echo "$difference" | sed '/^---\|^+++\|^@@/d' | while read -r line; do
    echo "$line    $(echo "$line" | cut -d' ' -f2 | c++filt)"
  done
  exit 1
fi

#!/bin/sh
# The names that the shared object exports, one per line with what each one is.
#
#   exports.sh NM LIBRARY [LIST]   prints them, or compares them with a list
set -eu
nm=$1 library=$2 list=${3-}

exports() {
  "$nm" -D --defined-only --format=posix "$library" | awk '
    $2 ~ /^[TtWi]$/ { print "function", $1; next }
    { print "object", $1 }' | LC_ALL=C sort
}

[ -n "$list" ] || { exports; exit; }
if difference=$(exports | diff -U0 "$list" -); then
  echo "$(grep -c . "$list") names as listed"
else
  echo "Exports differ from $list (- lost, + new):"
  echo "$difference" | sed '/^---\|^+++\|^@@/d' | while read -r line; do
    echo "$line    $(echo "${line##* }" | c++filt)"
  done
  exit 1
fi

#!/bin/bash
# Segments, parameter files, answers and shell commands must be the same bytes on every platform. Compares
# what the test device_image left in the given build folders; the first one is the measure.
#
#   compare-images.sh BUILD BUILD..
. "$(dirname "$(readlink -f "$0")")/common.sh"
[ "$#" -ge 2 ] || fail 'usage: compare-images.sh BUILD BUILD..'

images() { (cd "$1/tests/device_image/root" && find defaults writes -type f | LC_ALL=C sort); }
measure=$1
list=$(images "$measure")
count=$(echo "$list" | wc -l)
shift
different=0
for build in "$@"; do
  if [ "$(images "$build")" != "$list" ]; then
    echo "$build has other files than $measure:"
    { echo "$list"; images "$build"; } | sort | uniq -u
    different=$((different + 1))
    continue
  fi
  for file in $list; do
    mine=$build/tests/device_image/root/$file
    cmp -s "$measure/tests/device_image/root/$file" "$mine" && continue
    different=$((different + 1))
    echo "$build: $file differs from $measure:"
    case $file in
      *.bin) cmp -l "$measure/tests/device_image/root/$file" "$mine" | head -20 ;;
      *) diff -a "$measure/tests/device_image/root/$file" "$mine" | head -20 ;;
    esac
  done
done
[ "$different" = 0 ] || exit 1
echo "$count files are the same in $measure $*"

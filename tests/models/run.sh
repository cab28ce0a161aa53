#!/bin/bash
# Checks the model of the groups' protocol: no fault as it is, a fault with each of its safeguards left out.
set -eu
model=$(cd "$(dirname "$0")" && pwd)/group.pml
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
cd "$work"
errors() { rm -f group.pml.trail; spin "$@" -run "$model" | sed -n 's/.*errors: //p'; }

passed=0 failed=0
expect() { # ERRORS OPTION..
  local wanted=$1 found; shift
  found=$(errors "$@")
  if [ "$found" = "$wanted" ]; then passed=$((passed + 1)); else
    failed=$((failed + 1)); echo "group.pml $*: ${found:-no} errors, expected $wanted"
    [ "$wanted" != 0 ] || spin "$@" -k group.pml.trail -t -p "$model" | grep '(state' # the steps to the fault
  fi
}
expect 0
for safeguard in FENCE_1 FENCE_2 FENCE_3 RECHECK; do expect 1 "-DNO_$safeguard"; done
echo "$passed passed, $failed failed"
[ "$failed" = 0 ]

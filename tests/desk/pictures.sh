#!/bin/bash
# Each scenario is drawn as docs/desk.md shows it. With TALUX_ACCEPT set, the pictures are renewed.
#
#   pictures.sh PROJECT DESK-COMMAND..
set -eu
project=$1; shift
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
status=0
for scenario in "$project"/examples/scenarios/*.scenario; do
  shown=$project/docs/pictures/scenario-$(basename "$scenario" .scenario).svg drawn=$work/drawn.svg
  [ -z "${TALUX_ACCEPT-}" ] || drawn=$shown
  "$@" --scenario "$scenario" --plot "$drawn"
  cmp "$drawn" "$shown" || status=1
done
exit "$status"

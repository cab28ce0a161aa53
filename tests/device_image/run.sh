#!/bin/sh
# Runs the workload in a device root of its own and leaves everything that it produced in DIR/defaults and
# DIR/writes; where DIR is closed to the caller, nothing stays.
#
#   run.sh DIR WORKLOAD [EMULATOR ARGUMENT..]
set -eu
here=$(cd "$(dirname "$0")" && pwd)
root=$1 workload=$2
shift 2
if [ -w "$(dirname "$root")" ]; then
  rm -rf "$root"
else
  root=$(mktemp -d)
  trap 'rm -rf "$root"' EXIT
fi

# shellcheck disable=SC2016 # expanded by the inner shell
"$here/../../scripts/isolated.sh" --root "$root" -- sh -euc '
  [ "$TALUX_ISOLATION" != none ] || { echo "skipped: needs a root of its own"; exit 77; }
  for work in defaults writes; do
    : >/commands.txt
    "$@" "$0" "$work"
    mkdir "/$work"
    mv /*.ini /*.txt /*.bin "/$work"
  done
' "$workload" "$@"

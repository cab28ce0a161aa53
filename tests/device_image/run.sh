#!/bin/sh
# Runs the workload in a device root of its own and leaves everything that it produced in DIR/defaults and
# DIR/writes; where DIR is closed to the caller, nothing stays.
#
#   run.sh DIR WORKLOAD INSPECT [EMULATOR ARGUMENT..]
set -eu
here=$(cd "$(dirname "$0")" && pwd)
root=$1 workload=$2 inspect=$3
shift 3
if [ -w "$(dirname "$root")" ]; then
  rm -rf "$root"
else
  root=$(mktemp -d)
  trap 'rm -rf "$root"' EXIT
fi

# shellcheck disable=SC2016 # expanded by the inner shell
"$here/../../scripts/isolated.sh" --root "$root" -- sh -euc '
  [ "$TALUX_ISOLATION" != none ] || { echo "skipped: needs a root of its own"; exit 77; }
  workload=$1 inspect=$2 script=$3
  shift 3
  collect() {
    mkdir "/$1"
    mv /*.ini /*.txt "/$1"
  }
  : >/commands.txt
  "$@" "$workload" defaults
  collect defaults
  "$@" "$inspect" /defaults
  : >/commands.txt
  "$@" "$workload" writes "$script"
  collect writes
  "$@" "$inspect" /writes
' sh "$workload" "$inspect" "$here/lines.kepl" "$@"

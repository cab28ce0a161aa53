#!/bin/bash
# Lets a crowd of programs work in one store on a small disk for so many seconds; release is built.
#
#   run.sh [SECONDS]    20 by default
. "$(dirname "$(readlink -f "$0")")/../../scripts/common.sh"
build=$builds/build-release disk=$scratch/disk
mkdir "$disk"
bwrap --dev-bind / / --size 800000 --tmpfs "$disk" -- "$project/scripts/isolated.sh" --root "$disk" --module "$build" -- \
  "$build/tests/crowd/crowd" "${1:-20}" "$build/examples/device" "$build/tools/talux/talux" \
  "lua5.2 $project/tests/crowd/actor.lua"

#!/bin/bash
# Measures what the usual operations cost, from C++ and from Lua, and prints one table. The device root lies on
# a memory file system, so that files cost no disk.
#
#   bench.sh [GOOGLE-BENCHMARK-OPTION..]    for instance --benchmark_filter=read
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
cd "$project"

need_build_tools
need /usr/include/benchmark/benchmark.h:libbenchmark-dev
build bench
root=$(mktemp -d -p /dev/shm)
trap 'rm -rf "$root"' EXIT
scripts/isolated.sh --root "$root" --module "$project/build-bench" -- \
  "$project/build-bench/bench/talux_bench" "$@" "$project/bench/startup.lua"

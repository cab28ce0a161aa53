#!/bin/bash
# Measures what the usual operations cost, from C++ and from Lua, beside the bare work, as time (least and median of
# several rounds taken in turns) and as instructions. The device root lies on a memory file system, so that files
# cost no disk.
#
#   bench.sh [GOOGLE-BENCHMARK-OPTION..]    for instance --benchmark_filter=read
#   bench.sh --check                        instructions only; status 1 when a ratio is missed by more than 10 %
. "$(dirname "$(readlink -f "$0")")/common.sh"
cd "$project"

need build run bench
build release lib_talux_lua talux_bench
work=$(mktemp -d -p /dev/shm)
trap 'rm -rf "$scratch" "$work"' EXIT
root=$work/root
bench() {
  scripts/isolated.sh --root "$root" --module "$builds/build-release" -- "$@"
}
program=$builds/build-release/bench/talux_bench

# Instructions per run, from the dumps: operation, way and number with tabs between them.
# shellcheck disable=SC2016 # expanded inside
isolation=$(bench sh -c 'echo "$TALUX_ISOLATION"')
inside=''
[ "$isolation" != none ] || inside=$root # there is no root of its own then
mkdir "$root/counts"
quiet bench valgrind --tool=callgrind --collect-atstart=no --callgrind-out-file="$inside/counts/out" "$program" count
awk -F'[|]' '
  /^desc: Trigger: Client Request: / { sub(/^desc: Trigger: Client Request: /, ""); operation = $1; way = $2; runs = $3 }
  /^(summary|totals): / && runs { split($0, total, " "); printf "%s\t%s\t%d\n", operation, way, total[2] / runs; runs = 0 }
' "$root"/counts/out.* >"$root/counts.tsv"

if [ "${1-}" = --check ]; then
  bench "$program" check "$inside/counts.tsv"
else
  bench "$program" time "$inside/counts.tsv" "$project/bench/startup.lua" --benchmark_enable_random_interleaving=true \
    --benchmark_repetitions=9 --benchmark_min_time=0.02 "$@"
  printf '\nthe layer talux, microseconds:\n'
  bench lua5.2 "$project/bench/layer.lua"
fi

#!/bin/bash
# The shared object has the same bytes whatever folder it is built in: here, as for every test, and in a copy.
#
#   reproducible.sh
#
# Builds both and compares them; the copy has what git knows.
. "$(dirname "$(readlink -f "$0")")/common.sh"
cd "$project"
need build git
has_history || fail "no git checkout, which says what belongs to the project"

(build release lib_talux_lua && cp "$builds/build-release/lib_talux_lua.so.1" "$scratch")
copy="$scratch/another folder/with-a-longer-name" elsewhere=$scratch/build
mkdir -p "$copy"
git ls-files -z | xargs -0 cp --parents -t "$copy"
export CCACHE_DISABLE=1 # it would hand this build what the first one made
quiet cmake -S "$copy" --preset release -B "$elsewhere"
quiet cmake --build "$elsewhere" --target lib_talux_lua
cmp "$scratch/lib_talux_lua.so.1" "$elsewhere/lib_talux_lua.so.1"
echo "the same bytes from two folders: $(sha256sum <"$elsewhere/lib_talux_lua.so.1" | cut -c1-64)"

#!/bin/bash
# The shared object has the same bytes whatever folder it is built in.
#
#   reproducible.sh [CMAKE-OPTION..]
. "$(dirname "$(readlink -f "$0")")/common.sh"
cd "$project"
need build git
has_history || fail "no git checkout, which says what belongs to the project"

work=$scratch
export CCACHE_DISABLE=1 # it would hand the second build what the first one made

build_in() { # SOURCES BUILD
  mkdir -p "$1"
  git ls-files -z | xargs -0 cp --parents -t "$1"
  quiet cmake -G Ninja -S "$1" -B "$2" -DCMAKE_BUILD_TYPE=Release "${@:3}"
  quiet cmake --build "$2" --target lib_talux_lua
}
build_in "$work/a" "$work/a/build" "$@"
build_in "$work/another folder/with-a-longer-name" "$work/b" "$@"
cmp "$work/a/build/lib_talux_lua.so.1" "$work/b/lib_talux_lua.so.1"
echo "the same bytes from two folders: $(sha256sum <"$work/b/lib_talux_lua.so.1" | cut -c1-64)"

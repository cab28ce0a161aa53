#!/bin/bash
# The C++ blocks of a page compile. Those with a `main` are run one after the other on one store, and print what the
# text block after them shows, or nothing. Those with GoogleTest are linked with it alone and pass. The others are what a
# C++17 program has inside a function. With TALUX_ACCEPT set, the page gets what they print.
#
#   page.sh PAGE LIBRARY "GOOGLETEST-LIBRARIES" EMULATOR COMPILER..
# shellcheck disable=SC2016 # a text for the inner shell
set -eu
page=$1 library=$2 gtest=$3 emulator=$4; shift 4
project=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
fail() { echo "$*"; exit 1; }

awk -v work="$work" '
  /^```cpp$/ { out = work "/" ++count ".cpp"; printf "" >(work "/" count ".text"); next }
  /^```python$/ { out = work "/" ++count ".py"; printf "" >(work "/" count ".text"); next }
  /^```text$/ { out = work "/" count ".text"; next }
  /^```/ { out = ""; next }
  out { print >out }' "$page"
compile=("$@" -Wall -Wextra -Wconversion -Wshadow -Werror -I"$project")
cd "$work"
for block in *.cpp; do
  if grep -q 'gtest/gtest.h' "$block"; then # a test without library and store, so without isolation
    # shellcheck disable=SC2086 # words
    "${compile[@]}" -std=c++20 "$block" $gtest -pthread -o test
    # shellcheck disable=SC2086
    $emulator ./test >test.out || { cat test.out; false; }
  elif grep -q 'int main()' "$block"; then
    "${compile[@]}" -std=c++20 -O2 "$block" "$library" -Wl,-rpath,"${library%/*}" -o "${block%.cpp}.program"
  else
    { echo '#include <cstdio>'; grep '^#include' "$block"
      echo 'extern struct lua_State* L; extern void (*output)(char*, int); void function() {'
      grep -v '^#include' "$block"; echo '}'; } >inside.cc
    "${compile[@]}" -std=c++17 -fsyntax-only inside.cc
  fi || fail "$page, block ${block%.cpp} does not compile"
done
if [ -z "$emulator" ] && [ -x /usr/bin/python3 ]; then # else nobody runs them
  for block in *.py; do
    { echo '#!/usr/bin/python3'; cat "$block"; } >"${block%.py}.program"
    chmod +x "${block%.py}.program"
  done
fi
LD_LIBRARY_PATH=${library%/*} "$project/scripts/isolated.sh" --read "$work" -- sh -euc 'for program in "$1"/*.program; do
  echo "@ ${program%.program}.text"; $0 "$program"; done' "$emulator" "$work" >all || fail "a program of $page fails"
awk '/^@ / { out = $2 ".new"; printf "" >out; next } { print >out }' all
for program in *.program; do
  text=${program%.program}.text
  if diff "$text" "$text.new"; then continue; fi
  [ -n "${TALUX_ACCEPT-}" ] || fail "$page: ${program%.program} prints something else"
  awk -v block="${text%.text}" -v new="$text.new" '
    /^```/ { skips = 0 }
    !skips
    /^```(cpp|python)$/ { ++count }
    /^```text$/ && count == block { skips = 1; while ((getline line <new) > 0) print line }' "$page" >renewed
  cp renewed "$page"
done
[ "$(find . -name '*.program' | wc -l)" -ge 3 ] || fail "$page has no programs"

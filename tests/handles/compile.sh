#!/bin/bash
# What the compiler makes of handles, or says of wrong ones.
#
#   compile.sh OBJDUMP GENERATED-HEADERS COMPILER..
# shellcheck disable=SC2016 # texts for awk
set -eu
objdump=$1 generated=$2; shift 2
here=$(cd "$(dirname "$0")" && pwd)
compile=("$@" -std=c++20 -fno-exceptions -fno-rtti -Wall -Wextra -Wconversion -Wshadow -Werror -I"$here/../.." -I"$generated")
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
status=0
fail() { printf '%s\n' "$@"; status=1; }

# Every wrong line is refused by an error in that line of the program, which shows it, and gives the reason: g++ in the
# error itself, clang after it.
compilers=(g++)
sed -n '/^```cpp/,/^```/{/^```/!p}' "$here/wrong.md" >"$work/wrong.hpp"
"${compile[@]}" -fsyntax-only -x c++ "$work/wrong.hpp" >"$work/g++" 2>&1 && fail 'wrong handles compile'
if command -v clang++ >/dev/null && [ "$("$@" -dumpmachine)" = "$(gcc -dumpmachine)" ]; then
  compilers+=(clang++)
  clang++ -ferror-limit=0 -std=c++20 -I"$here/../.." -I"$generated" -fsyntax-only -x c++ "$work/wrong.hpp" >"$work/clang++" 2>&1 &&
    fail 'wrong handles compile'
fi
while IFS=: read -r line text; do
  reason=${text##*// }
  for compiler in "${compilers[@]}"; do
    message=$(awk -v place="wrong.hpp:$line:" 'index($0, place) && / error: / { on = 1 } / error: / && !index($0, place) { on = 0 }
      on' "$work/$compiler")
    said=$(head -n 1 <<<"$message")
    [ "$compiler" = g++ ] || said=${message//\/\/ $reason/}
    if ! grep -qF "$reason" <<<"$said" || ! grep -qF "${text%% *//*}" <<<"$message"; then
      fail "$compiler, line $line: $reason is not said:" "$message"
    fi
  done
done < <(grep -n '// [a-z]' "$work/wrong.hpp" | grep -v ':// ')

# Without the generated headers one line says what to build, and there are no other errors.
printf '#include <talux/talux.hpp>\nconstexpr talux::Setting<float> threshold{"Uearth"};\n' >"$work/alone.cpp"
"${compile[@]/#-I$generated/-I$work}" -fsyntax-only "$work/alone.cpp" >"$work/messages" 2>&1 && fail 'it compiles alone'
[ "$(grep -o 'error: .*' "$work/messages" | cut -d: -f2)" = ' #error "no talux/parameters.hpp
 talux/records.hpp' ] || fail 'alone:' "$(cat "$work/messages")"

# An older standard is named, before anything else.
"${compile[@]}" -std=c++17 -fsyntax-only "$work/alone.cpp" 2>&1 | grep -m 1 'error:' | grep -q 'needs C++20' ||
  fail 'C++17 is not refused'

# Handles cost nothing, and leave no name behind.
for level in -O0 -O2; do
  "${compile[@]}" "$level" -c "$here/pairs.cpp" -o "$work/pairs.o"
  ! grep -aqE 'U0_prim|vMWR|Uearth|Baudrate' "$work/pairs.o" || fail "$level: a name is in the object"
done
instructions() { # SYMBOL
  "$objdump" -dr --no-show-raw-insn "$work/pairs.o" |
    awk -v name="<$1>:" '$2 == name { on = 1; next } /^$/ { on = 0 } on' |
    sed -E '/\bnop|xchg +%ax,%ax|lea +0x0\(%esi,%eiz,1\)/d; s/^\s*[0-9a-f]+:\s*//; s/[0-9a-f]+ <[^>]*>//; s/\s+#.*//'
}
for pair in get set run stage record; do
  difference=$(diff <(instructions "${pair}_handle") <(instructions "${pair}_plain")) ||
    fail "$pair:" "$difference"
  [ -n "$(instructions "${pair}_plain")" ] || fail "$pair: no instructions"
done

# What the generated headers add to a compilation, in seconds of the processor.
seconds() { # HEADER..
  printf '#include <%s>\n' "$@" >"$work/include.cpp"
  (TIMEFORMAT=%U; time "${compile[@]}" -O2 -c "$work/include.cpp" -o "$work/include.o") 2>&1
}
awk -v before="$(seconds talux/table.hpp cstddef cstdint)" \
  -v after="$(seconds talux/table.hpp talux/parameters.hpp talux/records.hpp)" \
  'BEGIN { exit after - before > 0.5 }' || fail 'the generated headers take more than half a second'
exit "$status"

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

# Every wrong line is refused; the message begins with the line and its name, and gives the reason.
"${compile[@]}" -fsyntax-only -x c++ "$here/wrong.hpp" >"$work/messages" 2>&1 && fail 'wrong handles compile'
while IFS=: read -r line text; do
  name=$(cut -d'"' -f2 <<<"$text") reason=${text##*// }
  message=$(grep -A 9 -m 1 "wrong\.hpp:$line:" "$work/messages") || message='(nothing)'
  if ! head -n 2 <<<"$message" | grep -qF "\"$name\"" || ! grep -qF "$reason" <<<"$message"; then
    fail "line $line: $reason is not said of $name:" "$message"
  fi
done < <(grep -n '^constexpr' "$here/wrong.hpp")

# Without the generated headers one line says what to build, and nothing else is complained of.
printf '#include <talux/talux.hpp>\nconstexpr talux::Setting<float> threshold{"Uearth"};\n' >"$work/alone.cpp"
"${compile[@]/#-I$generated/-I$work}" -fsyntax-only "$work/alone.cpp" >"$work/messages" 2>&1 && fail 'it compiles alone'
[ "$(grep -o 'error: .*' "$work/messages" | cut -d: -f2)" = ' #error "no talux/parameters.hpp
 talux/records.hpp' ] || fail 'alone:' "$(cat "$work/messages")"

# An older standard is named, before anything else.
"${compile[@]}" -std=c++17 -fsyntax-only "$work/alone.cpp" 2>&1 | grep -m 1 'error:' | grep -q 'takes C++20' ||
  fail 'C++17 is not refused'

# A run that does not fit is seen while compiling, or where the optimiser sees it.
for run in 'auto f() { return last.run<3>().get(); }' 'void f(std::span<float, 3> to) { last.get_run(to); }'; do
  echo "#include <talux/talux.hpp>
    constexpr talux::Measured<float> last{\"mw_BE_AC_2\"}; $run" >"$work/run.cpp"
  "${compile[@]}" -O2 -c "$work/run.cpp" -o "$work/run.o" 2>&1 | grep -q 'the[_ ]run[_ ]is[_ ]' ||
    fail 'a run that is too long compiles'
done

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
for pair in get set run staged stage record; do
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

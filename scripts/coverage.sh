#!/bin/bash
# What the tests run: lines and branches of the module, of the layer for C++ programs and of the two programs, by file,
# with the places of the branches that none takes. Counters lie in shared files, so those of processes that are killed
# count, too. What is evaluated while compiling does not. Tests that look for files left open fail, since the counters
# are. Takes ten minutes.
#
#   coverage.sh [CTEST-OPTION..]    -R NAME: only these tests
. "$(dirname "$(readlink -f "$0")")/common.sh"
cd "$project"
need build run tests clang coverage
folder=$builds/build-coverage
build coverage
rm -rf "$folder/counters"
mkdir -m 777 "$folder/counters"
# Some users whom tests play may not write there. A program that is stopped after each instruction takes too long.
LLVM_PROFILE_FILE=$folder/counters/%m%c.profraw GTEST_FILTER='-*KilledAtAnyMoment*' \
  ctest --test-dir "$folder" --timeout 1200 -j "$((2 * $(nproc)))" "$@" >"$folder/tests.log" || tail -40 "$folder/tests.log"
llvm-profdata merge -sparse "$folder"/counters/*.profraw -o "$folder/counters/all"
mapfile -t programs < <(find "$folder" -type f -executable ! -path '*/bin/*' \
  \( -name '*_test' -o -name 'alike_*' -o -name talux -o -name talux-desk -o -name 'lib_talux_lua.so*' \))
options=("${programs[0]}" "${programs[@]/#/-object=}" -instr-profile "$folder/counters/all")
llvm-cov export -format=text -skip-functions "${options[@]}" >"$folder/branches.json"
llvm-cov export -format=lcov "${options[@]}" >"$folder/lines.info"
python3 "$project/scripts/coverage.py" "$folder/branches.json" "$folder/lines.info"

#!/bin/bash
# What the tests run: lines and branches of the module, of the layer for C++ programs and of the two programs, by file.
# Branches that only an exception takes do not count. Processes that are killed or end with _exit are not counted, and
# what is evaluated while compiling is not either. Takes half an hour.
#
#   coverage.sh [CTEST-OPTION..]    -R NAME: only these tests
. "$(dirname "$(readlink -f "$0")")/common.sh"
need build run tests coverage
folder=$builds/build-coverage
build coverage
find "$folder" -name '*.gcda' -delete
rm -rf "$folder/counters"
mkdir -m 777 "$folder/counters"
# Some users whom tests play may not write there. A program that is stopped after each instruction takes too long.
GCOV_PREFIX=$folder/counters GCOV_ERROR_FILE=/dev/null GTEST_FILTER='-*KilledAtAnyMoment*' \
  ctest --test-dir "$folder" --timeout 1200 -j "$(nproc)" "$@" >"$folder/tests.log" || tail -20 "$folder/tests.log"
cp -r "$folder/counters$folder/." "$folder"
cd "$project"
options=(--exclude-throw-branches --exclude-unreachable-branches --root "$project")
quiet gcovr "${options[@]}" --gcov-ignore-parse-errors --json "$folder/coverage.json" "$folder"
for part in '(support|MenuSystem|ParamSystem|src)/' 'talux/.*hpp' tools/talux/ tools/desk/; do
  for measured in '' --branches; do
    gcovr "${options[@]}" -a "$folder/coverage.json" --filter "$part" --txt $measured
  done
done

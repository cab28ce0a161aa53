#!/bin/bash
# Checks the form of everything: clang-format, clang-tidy, shellcheck.
#
#   lint.sh [CPP-FILE..]    clang-tidy on these sources only
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
cd "$project"
need_build_tools
need clang-format:clang-format clang-tidy:clang-tidy shellcheck:shellcheck

mapfile -t formatted < <(git ls-files '*.h' '*.cpp')
mapfile -t sources < <(if [ "$#" -gt 0 ]; then printf '%s\n' "$@"; else git ls-files '*.cpp'; fi)
mapfile -t shell < <(git ls-files '*.sh' .ci/run)

status=0
clang-format --dry-run -Werror "${formatted[@]}" || status=1
shellcheck -x -P SCRIPTDIR "${shell[@]}" || status=1
# Only ParamSystem/os runs the shell, sets the clock and writes the system log.
mapfile -t inside < <(git ls-files ParamSystem MenuSystem src | grep -v '^ParamSystem/os/')
! grep -nE '\b(system|popen|exec[lv]p?e?|posix_spawnp?|clock_settime|settimeofday|v?syslog)\(' "${inside[@]}" || status=1
build release
# What g++ is told about compile-time evaluation, in clang's words.
printf '%s\0' "${sources[@]}" | xargs -0 -n 1 -P "$(nproc)" clang-tidy -p build-release --quiet \
  --extra-arg=-Wno-unknown-warning-option --extra-arg=-fconstexpr-steps=500000000 2>&1 |
  { grep -v '^[0-9]* warnings generated' || true; } # those of system headers
[ "${PIPESTATUS[1]}" = 0 ] || status=1
exit "$status"

#!/bin/bash
# Checks the form of everything: clang-format, clang-tidy, shellcheck.
#
#   lint.sh [CPP-FILE..]    clang-tidy on these sources only; by default on all
#   lint.sh --shipped       on what the device gets
. "$(dirname "$(readlink -f "$0")")/common.sh"
cd "$project"
need build bench lint
has_history || fail "no git checkout, which says what belongs to the project"

mapfile -t formatted < <(git ls-files '*.h' '*.hpp' '*.cpp')
mapfile -t sources < <(case ${1-} in
  --shipped) git ls-files {support,MenuSystem,ParamSystem,src}/'*.cpp' ;;
  '') git ls-files '*.cpp' ;;
  *) printf '%s\n' "$@" ;;
esac)
mapfile -t shell < <(git ls-files '*.sh' .ci/run)

status=0
clang-format --dry-run -Werror "${formatted[@]}" || status=1
shellcheck -x -P SCRIPTDIR "${shell[@]}" || status=1
# Only ParamSystem/os reaches the operating system beyond shared memory and locks.
mapfile -t inside < <(git ls-files support MenuSystem ParamSystem src | grep -v '^ParamSystem/os/')
calls='system|popen|exec[lv]p?e?|posix_spawnp?|v?syslog|clock_settime|settimeofday|u?sleep|nanosleep'
calls+='|socket|ioctl|fopen|remove|openat?|readlink(at)?|access|rename(at)?|unlink(at)?|f?l?chown|f?chmod|f?sync|flock'
! grep -nE "(^|[^a-zA-Z_>.])(::|std::)?($calls)\(" "${inside[@]}" || status=1
# Dependencies between folders point one way, to the left: neither an include nor, since public headers serve several
# folders, a call points to the right. ParamSystem itself holds the public headers.
folders=(support MenuSystem ParamSystem ParamSystem/{os,dictionary,rules,store,texts,files,network,kepl} src)
for folder in "${!folders[@]}"; do
  later=$(IFS='|'; echo "${folders[*]:folder+1}")
  [ -z "$later" ] || ! grep -nE -d skip "#include \"($later)/" "${folders[folder]}"/* || status=1
done
(build release talux_objects)
(cd "$builds/build-release/CMakeFiles/talux_objects.dir" && find . -name '*.o' -print0 | xargs -0 nm -AC) |
  awk -v folders="${folders[*]}" -f scripts/dependencies.awk || status=1
# Every source alone and without the headers that g++ compiles beforehand: it has to name what it uses.
claim "$builds/build-lint"
quiet cmake --preset release -B "$builds/build-lint" -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON -DCMAKE_UNITY_BUILD=OFF
quiet cmake --build "$builds/build-lint" --target talux_dictionary
printf '%s\0' "${sources[@]}" | xargs -0 -n 1 -P "$(nproc)" clang-tidy -p "$builds/build-lint" --quiet \
  --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-unused-command-line-argument \
  --extra-arg=-U_FORTIFY_SOURCE 2>&1 |
  { grep -v '^[0-9]* warnings generated' || true; } # those of system headers
[ "${PIPESTATUS[1]}" = 0 ] || status=1
exit "$status"

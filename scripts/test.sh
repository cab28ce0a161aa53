#!/bin/bash
# Builds and passes the tests.
#
#   test.sh           release, sanitize (addresses and undefined behaviour) and armv7
#   test.sh --all     also armv5te, packages, threads, commands, browser, bench, lint, plain, rock,
#                     reproducible, and the release tests once more as an ordinary user and in a container without privileges
#   test.sh STAGE..   only these; debug and costs are two more
#
# What is missing is installed (as root). Every stage runs whatever became of the others. The summary repeats
# the closing line of ctest for each and names the skipped tests with their reasons.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
cd "$project"

usual=(release sanitize armv7)
all=("${usual[@]}" armv5te packages threads commands browser bench lint plain rock reproducible user container)

release() { build release && run_tests build-release; }
debug() { build debug && run_tests build-debug; }
sanitize() { build sanitize && run_tests build-sanitize; }
armv7() { on_device armv7 arm-linux-gnueabihf; }
armv5te() { on_device armv5te arm-linux-gnueabi; }
lint() { scripts/lint.sh --shipped; } # tools and tests take four times as long
bench() { scripts/bench.sh --check; }
costs() { scripts/costs.sh | tee -a "$results/summary"; }
reproducible() { scripts/reproducible.sh | tee -a "$results/summary"; }

on_device() {
  need "$2-g++:g++-$2" qemu-arm:qemu-user
  quiet scripts/device.sh "$1" --tests && run_tests "build-$1" && same_image "$1"
}

# Debian has no complaint about any package, and those of the PC and the devices go together.
packages() {
  local folder build complaints status=0
  need lintian:lintian
  folder=$(mktemp -d)
  build release && quiet scripts/device.sh armv7 && quiet scripts/device.sh armv5te || return
  for build in release armv7 armv5te; do
    quiet cpack --config "build-$build/CPackConfig.cmake" -B "$folder" || status=1
  done
  complaints=$(lintian --allow-root "$folder"/*.deb 2>&1) || status=1
  [ -z "$complaints" ] || { echo "$complaints"; status=1; }
  mkdir -p "$folder"/root/var/lib/dpkg/{updates,info,triggers}
  touch "$folder"/root/var/lib/dpkg/{status,available}
  echo "$(dpkg --print-architecture) armhf armel" | tr ' ' '\n' >"$folder/root/var/lib/dpkg/arch"
  quiet dpkg --root="$folder/root" --force-not-root,depends,script-chrootless -i "$folder"/talux-lua*.deb || status=1
  [ "$(find "$folder/root" -name lib_talux_lua.so.1 | wc -l)" = 3 ] || status=1
  rm -rf "$folder"
  return "$status"
}

# The device leaves the same bytes behind as this machine.
same_image() {
  build release && quiet ctest --test-dir build-release -R '^device_image$' &&
    scripts/compare-images.sh build-release "build-$1" | tee -a "$results/summary"
}

# The tests that start threads, under the thread sanitizer.
threads() {
  local tests
  mapfile -t tests < <(grep -l 'std::j\?thread' tests/*_test.cpp | sed 's,.*/\(.*\)\.cpp,\1,')
  build threads "${tests[@]}" && run_tests build-threads -R "^($(IFS='|'; echo "${tests[*]}"))\$"
}

# run.sh as its user meets it: answers, exit status, arguments, what stays in a root and what does not.
commands() {
  local root status=0
  root=$(mktemp -d)
  expect() { [ "$1" = "$2" ] || { printf 'expected: %s\nfound:    %s\n' "$1" "$2"; status=1; }; }
  expect 3.000000 "$(scripts/run.sh -e 'print(talux_command("1,2,+"))')"
  scripts/run.sh -e 'os.exit(7)' || expect 7 "$?"
  mkdir "$root/scripts"
  echo 'return "beside"' >"$root/scripts/other.lua"
  echo 'print(..., require "other", io.open("/staged") ~= nil)' >"$root/scripts/my.lua"
  echo 'touch /staged' >"$root/scripts/my.setup.sh"
  expect $'word\tbeside\ttrue' "$(scripts/run.sh "$root/scripts/my.lua" word)"
  scripts/run.sh --root "$root/device" -e 'talux_command("TLX_Uearth=35,save")'
  expect TLX_Uearth=35.000000 "$(grep Uearth= "$root/device/parameter.ini")"
  expect $'30.000000\n35.000000' "$(scripts/run.sh --root "$root/device" \
    -e 'print(talux_command("TLX_Uearth")) print(talux_command("load,TLX_Uearth"))')"
  expect 35.000000 "$(scripts/run.sh --root "$root/device" --boot -e 'print(talux_command("TLX_Uearth"))' 2>/dev/null)"
  expect 30.000000 "$(echo TLX_Uearth | scripts/run.sh --shell --level 1)"
  rm -rf "$root"
  return "$status"
}

# The page that searches the parameters and the settings record, in a browser without a window.
browser() {
  local page language profile result status=0
  need chromium:chromium
  build release talux || return
  printf 'TLX_Name="<b>&amp; ä"\nTLX_Uearth=95\nTLX_Language=2\n' >build-release/report.ini
  for language in en de; do
    build-release/tools/talux/talux --language "$language" report build-release/report.ini -o "build-release/report-$language.html" ||
      return
  done
  for page in pages/browser talux/report; do
    profile=$(mktemp -d)
    result=$(timeout 600 chromium --headless --no-sandbox --disable-gpu --no-first-run --disable-background-networking \
      --disable-component-update --disable-sync --user-data-dir="$profile" --allow-file-access-from-files \
      --virtual-time-budget=10000 --dump-dom "file://$project/tests/$page.html" 2>/dev/null |
      sed -n 's,.*<title>\(.*\)</title>.*,\1,p')
    rm -rf "$profile"
    echo "$page: ${result:-the browser did not start}" | tee -a "$results/summary"
    [[ $result = 'all right'* ]] || status=1
  done
  return "$status"
}

# Without options and test packages there is the module and nothing else.
plain() {
  local targets status=0
  need make:make
  quiet cmake -S . -B build-plain -DCMAKE_BUILD_TYPE=Release || return
  targets=$(cmake --build build-plain --target help)
  grep -q 'lib_talux_lua' <<<"$targets" && ! grep -q '_test' <<<"$targets" || status=1
  rm -rf build-plain
  return "$status"
}

# luarocks builds and installs module and layer, without a network of its own.
rock() {
  local tree status=0
  need luarocks:luarocks
  tree=$(mktemp -d)
  HOME=$tree quiet luarocks --lua-version 5.2 --tree "$tree" make || status=$?
  cp -r lua build-rock/generated/lua "$tree"
  diff -r "$tree/lua" "$tree/share/lua/5.2" || status=1
  [ 35 = "$(scripts/isolated.sh --read "$tree" -- env LUA_PATH="$tree/share/lua/5.2/?.lua" \
    LUA_CPATH="$tree/lib/lua/5.2/?.so" lua5.2 -e 'local talux = require "talux" talux.set("Uearth", 35)
      print(talux.get "Uearth")')" ] || status=1
  rm -rf build-rock "$tree"
  return "$status"
}

user() {
  [ "$(id -u)" = 0 ] || { echo 'all stages run as an ordinary user here'; return; }
  local as=(setpriv --reuid=65534 --regid=65534 --clear-groups --inh-caps=-all --bounding-set=-all)
  build release || return
  "${as[@]}" test -x "$project/scripts/isolated.sh" || open_the_way
  release_tests_again
}

# Lets other users in where the project or a folder above it is closed to them: in a view of the file system in
# which the topmost closed folder holds nothing but the project's files.
open_the_way() {
  local entry closed=$project below=()
  while ! "${as[@]}" test -x "$(dirname "$closed")"; do
    below=(--perms 0755 --dir "$closed" "${below[@]}")
    closed=$(dirname "$closed")
  done
  local view=(--dev-bind / / --perms 0755 --tmpfs "$closed" "${below[@]}")
  for entry in "$project"/*; do view+=(--ro-bind "$entry" "$entry"); done
  as=(env bwrap "${view[@]}" -- "${as[@]}")
}

container() {
  local link root status=0
  root=$(mktemp -d)
  mkdir -p "$root"/{etc,tmp,var,proc,dev,usr}
  for link in bin sbin lib lib64; do ln -s "usr/$link" "$root/$link"; done
  local as=(bwrap --bind "$root" / --ro-bind /usr /usr --ro-bind /etc/alternatives /etc/alternatives
    --ro-bind "$project" "$project" --proc /proc --dev /dev
    --unshare-all --unshare-user --disable-userns --uid 0 --gid 0 --cap-drop ALL)
  "${as[@]}" true || { echo 'skipped: there are no namespaces to make a container with'; return 0; }
  release_tests_again || status=$?
  rm -rf "$root"
  return "$status"
}

# The release tests under other rights; ctest writes into a folder outside the project.
release_tests_again() {
  local folder status=0
  build release || return
  folder=$(mktemp -d)
  chmod 777 "$folder"
  echo "subdirs(\"$project/build-release\")" >"$folder/CTestTestfile.cmake"
  [ "${as[0]}" != bwrap ] || as+=(--bind "$folder" "$folder")
  run_tests "$folder" || status=$?
  rm -rf "$folder"
  return "$status"
}

# run_tests FOLDER [CTEST-OPTION..]: runs the tests of a build folder, with the rights that `as` gives.
run_tests() {
  local folder=$1 status=0
  shift
  "${as[@]}" ctest --test-dir "$folder" --output-on-failure --no-tests=error --timeout 600 \
    -j "$(nproc)" "$@" </dev/null | tee "$results/ctest" || status=$?
  summarise "$results/ctest" "$folder/Testing/Temporary/LastTest.log" >>"$results/summary"
  return "$status"
}

# The closing line of ctest, the number of cases and the skipped ones with their reasons.
summarise() {
  grep 'tests passed' "$1"
  awk '
    /^[0-9]+\/[0-9]+ Test: / { test = $3 }
    /^\[ RUN / { reason = "" }
    expected { reason = $0; expected = 0 }
    /: Skipped$/ { expected = 1 }
    /^\[       OK \]/ || /^ok: / { ran++ }
    /^\[  SKIPPED \].*ms\)$/ { skipped[++count] = $4 ": " reason }
    /^skipped: / { skipped[++count] = test ": " substr($0, 10) }
    END {
      printf "%d cases ran, %d were skipped\n", ran, count
      for (i = 1; i <= count; i++) print "  skipped " skipped[i]
    }' "$2"
}

case ${1-} in
  --all) stages=("${all[@]}") ;;
  '') stages=("${usual[@]}") ;;
  *) stages=("$@") ;;
esac

set -o pipefail
results=$(mktemp -d)
trap 'rm -rf "$results"' EXIT
need_build_tools
need ip:iproute2 ifconfig:net-tools killall:psmisc /usr/share/i18n/locales/de_DE:locales qemu-arm:qemu-user pkg-config:pkg-config
failed=()
as=()
for stage in "${stages[@]}"; do
  [[ " ${all[*]} debug costs " = *" $stage "* ]] || fail "unknown stage '$stage'"
  SECONDS=0
  echo "==== $stage"
  echo "$stage:" >>"$results/summary"
  "$stage" || { failed+=("$stage"); echo failed >>"$results/summary"; }
  echo "$SECONDS seconds" >>"$results/summary"
done

echo '==== summary'
sed '/:$/!s/^/  /' "$results/summary"
[ "${#failed[@]}" = 0 ] || { echo "failed: ${failed[*]}"; exit 1; }

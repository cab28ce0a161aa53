#!/bin/bash
# Builds and passes the tests.
#
#   test.sh           release: every test, as a user gets the programs
#   test.sh --all     also with clang under sanitizers, on ARM, as packages ..: every stage but those that are only run
#                     when asked for
#   test.sh STAGE..   only these; --list shows all
#
# Packages that the stages need are installed first (as root) or named. Every stage runs whatever became of the
# others; one that cannot run says why. The summary counts tests and cases, names the skipped ones with their
# reasons, and ends with one line for all.
. "$(dirname "$(readlink -f "$0")")/common.sh"
cd "$project"
set -o pipefail

# Minutes are those of a machine with two cores and nothing built yet. With --all, stages that run `beside` begin after
# the first and take the time that the tests of the others leave. Needs are groups of packages, and `history`: a checkout,
# whose files git can name.
table='
stage         run     minutes  needs
release       usual   5        build run tests
sanitize      all     6        build run tests clang
armv7         all     6        build run tests armv7
armv5te       all     3        build run tests armv5te
threads       all     1        build run tests
crowd         all     1        build run
commands      all     1        build run
browser       all     1        build browser
bench         all     1        build run bench
plain         all     1        build make
user          all     2        build run tests
container     all     1        build run tests
models        beside  1        build spin
lint          beside  4        build bench lint history
rock          beside  1        build run rock history
places        beside  2        build run
packages      beside  2        build armv7 armv5te lintian
clang         asked   5        build run tests clang
debug         asked   2        build run tests
costs         asked   6        build time
newcomer      asked   15       debootstrap git history
'
stages_run() { awk -v run="$1" 'NR > 2 && NF && $2 ~ run { print $1 }' <<<"$table"; }
minutes_of() { awk -v stage="$1" '$1 == stage { print $3 }' <<<"$table"; }
needs_of() { awk -v stage="$1" '$1 == stage { for (i = 4; i <= NF; i++) print $i }' <<<"$table"; }

# note TEXT..: a line of the summary.
note() { echo "$*" | tee -a "$results/notes"; }

# skip TEXT..: ends the stage, which cannot be run here.
skip() { note "skipped: $*"; exit 77; }

release() { build release && run_tests release; }
debug() { build debug && run_tests debug; }
models() { tests/models/run.sh; }
clang() { build clang && run_tests clang; }
# The longest pages are typed on this machine only; on the device other tests look at the numbers.
armv7() {
  note 'without the pages desk, rules and plausibility'
  on_device armv7 --tests -E '^console\.(desk|rules|plausibility)$'
}
# They differ in numbers and atomic operations; what is the same for both is tried on the first.
armv5te() {
  local alike='^(talux_|console|session|desk|rules_test|generator_test|dictionary|installed$|links$|translation$'
  alike+='|linking_doc$|handles_compile$|kepl_doc_test$|texts_test$|files_|network_test$)'
  note 'without the tests of programs, packages, texts, files and network'
  on_device armv5te --module-tests -E "$alike"
}
lint() { scripts/lint.sh --shipped; } # tools and tests take four times as long
bench() { scripts/bench.sh --check; }
costs() { scripts/costs.sh | tee -a "$results/notes"; }

sanitize() {
  note 'with clang; without the tests of what is shipped (shared object, installed tree, programs of the pages)'
  note 'and of the generator'
  build sanitize && run_tests sanitize
}

# A stage that has claimed an ARM build may wait for the release build, but not the reverse: two runs cannot block each
# other.
on_device() { # ARCH TESTS CTEST-OPTION..
  local arch=$1 tests=$2
  shift 2
  claim "$builds/build-$arch"
  doing="building build-$arch" quiet scripts/device.sh "$arch" "$tests" && run_tests "$arch" "$@" && same_image "$arch"
}

# Debian has no complaint about any package, and those of the PC and the devices go together.
packages() {
  local folder=$scratch/packages build complaints status=0
  (build release) || return
  claim "$builds/build-armv7"
  claim "$builds/build-armv5te"
  quiet scripts/device.sh armv7 && quiet scripts/device.sh armv5te || return
  for build in release armv7 armv5te; do
    quiet cpack --config "$builds/build-$build/CPackConfig.cmake" -B "$folder" || status=1
  done
  complaints=$(lintian --allow-root "$folder"/*.deb 2>&1) || status=1
  [ -z "$complaints" ] || { echo "$complaints"; status=1; }
  mkdir -p "$folder"/root/var/lib/dpkg/{updates,info,triggers}
  touch "$folder"/root/var/lib/dpkg/{status,available}
  echo "$(dpkg --print-architecture) armhf armel" | tr ' ' '\n' >"$folder/root/var/lib/dpkg/arch"
  quiet dpkg --root="$folder/root" --force-not-root,depends,script-chrootless -i "$folder"/talux-lua*.deb || status=1
  [ "$(find "$folder/root" -name lib_talux_lua.so.1 | wc -l)" = 3 ] || status=1
  return "$status"
}

# The device writes the same bytes as this machine.
same_image() (
  build release && quiet ctest --test-dir "$builds/build-release" -R '^device_image$' &&
    scripts/compare-images.sh "$builds/build-release" "$builds/build-$1" | tee -a "$results/notes"
)

# The tests that start threads, under the thread sanitizer.
threads() {
  local tests
  note 'only the tests that start threads'
  mapfile -t tests < <(grep -l 'std::j\?thread' tests/*_test.cpp | sed 's,.*/\(.*\)\.cpp,\1,')
  build threads "${tests[@]}" && run_tests threads -R "^($(IFS='|'; echo "${tests[*]}"))\$"
}

# The scripts as their user meets them.
commands() {
  (build release talux talux-desk) && tests/scripts/commands.sh
}

places() {
  [ "$(isolation)" != none ] || skip 'there are no namespaces to put a copy in the place of the project'
  (build release) && tests/scripts/places.sh
}

newcomer() {
  [ "$(id -u)" = 0 ] || skip 'root makes the fresh machine'
  tests/scripts/newcomer.sh
}

# The page that searches the parameters and the settings record, in a browser without a window.
browser() {
  local page language result release=$builds/build-release status=0
  build release talux || return
  printf 'TLX_Name="<b>&amp; ä"\nTLX_Uearth=95\nTLX_Language=2\n' >"$release/report.ini"
  for language in en de; do
    "$release/tools/talux/talux" --language "$language" report "$release/report.ini" --title '<b>Bay 7' \
      -o "$release/report-$language.html" || return
  done
  cp tests/talux/report.html "$release"
  for page in tests/pages/browser.html "$release/report.html"; do
    result=$(timeout 600 chromium --headless --no-sandbox --disable-gpu --no-first-run --disable-background-networking \
      --disable-component-update --disable-sync --user-data-dir="$scratch/chromium" --allow-file-access-from-files \
      --virtual-time-budget=10000 --dump-dom "file://$(realpath "$page")?table=$release/generated/docs/parameters/parameters.csv" 2>/dev/null |
      sed -n 's,.*<title>\(.*\)</title>.*,\1,p')
    rm -rf "$scratch/chromium"
    note "${page##*/}: ${result:-the browser did not start}"
    [[ $result = 'all right'* ]] || status=1
  done
  return "$status"
}

# As many programs as a device has in one store, killed and without room on the disk: CROWD_SECONDS long.
crowd() {
  [ "$(isolation)" != none ] || skip 'there are no namespaces to make a small disk with'
  build release || return
  tests/crowd/run.sh "${CROWD_SECONDS:-20}" |
    awk -v notes="$results/notes" '{ print; fflush() } /^(crowd|FAULT)/ { print >>notes }'
}

# Without options and test packages there is the module and nothing else.
plain() {
  local targets
  quiet cmake -S . -B "$scratch/plain" -DCMAKE_BUILD_TYPE=Release || return
  targets=$(cmake --build "$scratch/plain" --target help)
  grep -q 'lib_talux_lua' <<<"$targets" && ! grep -q '_test' <<<"$targets"
}

# luarocks builds and installs module and layer, without a network of its own. It does so in another folder, and the module
# has the same bytes as that of the release: from the same generator, and not from a compiler cache.
rock() {
  local tree=$scratch/tree copy="$scratch/another folder/with-a-longer-name" status=0
  local module=$builds/build-release/lib_talux_lua.so.1 other=$copy/build-rock/lib_talux_lua.so.1
  (build release lib_talux_lua) || return
  mkdir -p "$copy"
  git ls-files -z | xargs -0 cp --parents -t "$copy"
  (cd "$copy" && HOME=$tree CCACHE_DISABLE=1 CMAKE_GENERATOR=Ninja \
    quiet luarocks --lua-version 5.2 --tree "$tree" make) || return
  cmp "$module" "$other" && note "the same bytes from two folders: $(sha256sum <"$other" | cut -c1-64)" || status=1
  cp -r lua "$copy/build-rock/generated/lua" "$tree"
  diff -r "$tree/lua" "$tree/share/lua/5.2" || status=1
  [ 35 = "$(scripts/isolated.sh --read "$tree" -- env LUA_PATH="$tree/share/lua/5.2/?.lua" \
    LUA_CPATH="$tree/lib/lua/5.2/?.so" lua5.2 -e 'local talux = require "talux" talux.set("Uearth", 35)
      print(talux.get "Uearth")')" ] || status=1
  return "$status"
}

# Somebody else: German, in another time zone, on a terminal without colours, with a folder for temporary files and Lua
# settings of their own.
user() {
  [ "$(id -u)" = 0 ] || skip 'all stages run as an ordinary user here'
  [ "$(isolation)" = full ] || skip 'there are no namespaces to show the project to another user'
  as=(setpriv --reuid=65534 --regid=65534 --clear-groups --inh-caps=-all --bounding-set=-all)
  build release || return
  "${as[@]}" test -x "$project/scripts/isolated.sh" -a -x "$builds" || open_the_way
  mkdir -m 1777 "$scratch/theirs"
  as+=(env LANG=de_DE.UTF-8 LC_MESSAGES=de_DE.UTF-8 LC_NUMERIC=de_DE.UTF-8 TZ=Asia/Tokyo TERM=dumb NO_COLOR=1 PAGER=more
    TMPDIR="$scratch/theirs" LUA_INIT='error "not for everybody"' LUA_PATH_5_2=/root/?.lua LUA_CPATH_5_2=/root/?.so
    SSH_CONNECTION='192.0.2.1 50000 192.0.2.2 22' SUDO_USER=somebody SOURCE_DATE_EPOCH=0)
  release_tests_again
}

# Lets other users in where the project or a folder above it is closed to them: in a view of the file system in
# which the topmost closed folder holds nothing but the files of project and builds.
open_the_way() {
  local entry place closed view=(--dev-bind / /)
  for place in "$project" "$builds"; do
    closed=$place
    local below=()
    while ! "${as[@]}" test -x "$(dirname "$closed")"; do
      below=(--perms 0755 --dir "$closed" "${below[@]}")
      closed=$(dirname "$closed")
    done
    [[ " ${view[*]} " = *" --tmpfs $closed "* ]] || view+=(--perms 0755 --tmpfs "$closed")
    view+=("${below[@]}")
    for entry in "$place"/*; do
      view+=(--ro-bind "$entry" "$entry")
    done
  done
  as=(env bwrap "${view[@]}" -- "${as[@]}")
}

container() {
  "$project/scripts/contained.sh" true 2>/dev/null || skip 'there are no namespaces to make a container with'
  build release || return
  release_tests_again "$project/scripts/contained.sh"
}

# shellcheck disable=SC2016 # expanded inside
isolation() { "${as[@]}" "$project/scripts/isolated.sh" -- sh -c 'echo "$TALUX_ISOLATION"' 2>/dev/null; }

# release_tests_again [COMMAND]: the release tests under other rights, each run by the command; ctest writes into a
# folder outside the builds.
release_tests_again() {
  local folder
  build release || return
  note 'without the tests that compile'
  folder=$(mktemp -d -p "$scratch")
  chmod 755 "$scratch"
  chmod 777 "$folder"
  cat >"$folder/CTestTestfile.cmake" <<-END
	function(add_test)
	  math(EXPR last "\${ARGC} - 1")
	  set(words "[==[\${ARGV0}]==] $*")
	  foreach(k RANGE 1 \${last})
	    string(APPEND words " [==[\${ARGV\${k}}]==]")
	  endforeach()
	  cmake_language(EVAL CODE "_add_test(\${words})")
	endfunction()
	subdirs("$builds/build-release")
	END
  run_tests "$folder" -E '^(handles_compile|headers|linking_doc)$'
}

# run_tests BUILD [CTEST-OPTION..]: runs the tests of a build, or of a folder, with the rights that `as` gives. Many wait
# most of the time, so twice as many run as there are processors; without isolation they would see each other's files.
run_tests() {
  local folder=$builds/build-$1 status=0 ticker jobs=$((2 * $(nproc)))
  [ "$(isolation)" != none ] || jobs=1
  case $1 in /*) folder=$1 ;; esac
  shift
  : >"$results/ctest"
  doing='still at its tests:' tick "$BASHPID" "$results/ctest" streamed &
  ticker=$!
  "${as[@]}" ctest --test-dir "$folder" --output-on-failure --no-tests=error --timeout 1200 \
    -j "$jobs" "$@" </dev/null | tee "$results/ctest" || status=$?
  kill "$ticker" 2>/dev/null || true
  wait "$ticker" 2>/dev/null || true
  summarise "$results/ctest" "$folder/Testing/Temporary/LastTest.log" >>"$results/notes"
  give_back "$folder"
  return "$status"
}

# Adds the tests to the counts; prints the closing line of ctest, the number of cases and the skipped ones with their
# reasons.
summarise() {
  awk -v counts="$results/counts" '
    /tests? failed out of/ {
      print
      for (i = 1; i < NF; i++) if ($i == "failed") failed = $(i - 2)
      print $NF - failed - skipped, failed, skipped >>counts
    }
    /\*\*\*Skipped/ { skipped++ }' "$1"
  [ -f "$2" ] || return 0
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

# why_not STAGE: why it cannot run here, if so.
why_not() {
  local needs names
  mapfile -t needs < <(needs_of "$1" | grep -vx history)
  names=$(missing "${needs[@]}" | tr '\n' ' ')
  [ -z "$names" ] || echo "packages are missing: $names"
}

# run_stage STAGE: runs it, with its output in a file too, and notes how it ended.
run_stage() {
  local results=$results/$1 status=0 start=$SECONDS reason
  mkdir -p "$results"
  touch "$results/notes" "$results/counts"
  reason=$(why_not "$1")
  if [[ $(needs_of "$1") = *history* ]] && ! has_history; then
    note 'skipped: no git checkout, which says what belongs to the project'
    status=77
  elif [ -n "$reason" ]; then
    note "$reason"
    status=2
  else
    (trap 'exit 130' INT && "$1") 2>&1 | tee "$results/log" || status=${PIPESTATUS[0]}
  fi
  [ -s "$results/counts" ] || # a stage without tests of its own is one
    echo "$((status == 0)) $((status != 0 && status != 77)) $((status == 77))" >"$results/counts"
  echo "$status" >"$results/status"
  { echo "$1: $((SECONDS - start)) s${priority-}$([ "$status" = 0 ] || [ "$status" = 77 ] || echo ', failed')"
    sed 's/^/  /' "$results/notes"; } >"$results/summary"
}

# run_beside STAGE..: runs them one after the other, with the time that others leave.
run_beside() {
  local stage priority=' at low priority'
  renice -n 19 "$BASHPID" >/dev/null
  exec {terminal}>/dev/null
  for stage in "$@"; do run_stage "$stage"; done
}

beside=()
case ${1-} in
  --list) echo "$table" | sed '/^$/d'; exit ;;
  --all)
    mapfile -t stages < <(stages_run 'usual|all')
    mapfile -t beside < <(stages_run beside)
    ;;
  '') mapfile -t stages < <(stages_run usual) ;;
  *) stages=("$@") ;;
esac
for stage in "${stages[@]}"; do
  [ -n "$(minutes_of "$stage")" ] || fail "there is no stage '$stage', only: $(stages_run . | tr '\n' ' ')"
done

results=$scratch/results
mkdir "$results"
exec {terminal}>&2
mapfile -t groups < <(for stage in "${stages[@]}" "${beside[@]}"; do needs_of "$stage"; done | grep -vx history | sort -u)
mapfile -t names < <(missing "${groups[@]}")
[ "${#names[@]}" = 0 ] || install "${names[@]}" || echo 'stages that need them fail' >&2

failed=() skipped=() passed=0 as=() number=0 side='' started=$SECONDS
trap '[ -z "$side" ] || kill -- "-$side" 2>/dev/null || true; rm -rf "$scratch"' EXIT
for stage in "${stages[@]}"; do
  number=$((number + 1))
  echo "==== $stage ($number of ${#stages[@]}, about $(minutes_of "$stage") min)"
  run_stage "$stage"
  if [ "$number" = 1 ] && [ "${#beside[@]}" != 0 ]; then
    set -m # a process group of its own, which is ended as a whole
    run_beside "${beside[@]}" </dev/null >"$results/beside" 2>&1 &
    side=$!
    set +m
  fi
done
if [ -n "$side" ]; then
  echo "==== ${beside[*]}, begun after the first"
  doing='still at these:' tick "$side" "$results/beside"
  side=''
  cat "$results/beside"
fi

echo '==== summary'
for stage in "${stages[@]}" "${beside[@]}"; do
  cat "$results/$stage/summary"
  case $(cat "$results/$stage/status") in
    0) passed=$((passed + 1)) ;;
    77) skipped+=("$stage") ;;
    *) failed+=("$stage") ;;
  esac
done
verdict="$passed stages"
[ "$passed" != 1 ] || verdict='1 stage'
verdict="passed $verdict in $(((SECONDS - started) / 60)) min $(((SECONDS - started) % 60)) s"
[ "${#skipped[@]}" = 0 ] || verdict+=", skipped ${skipped[*]}"
if [ "${#failed[@]}" != 0 ]; then
  logs=$(mktemp -d)
  for stage in "${failed[@]}"; do cp "$results/$stage/log" "$logs/$stage.log" 2>/dev/null || true; done
  verdict+=", failed ${failed[*]} (output in $logs)"
fi
cat "$results"/*/counts | awk -v verdict="$verdict" '{ passed += $1; failed += $2; skipped += $3 }
  END { printf "%s: %d passed, %d failed, %d skipped\n", verdict, passed, failed, skipped }'
[ "${#failed[@]}" = 0 ]

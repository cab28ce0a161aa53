#!/bin/bash
# The scripts as their user meets them: answers, exit status, arguments, what stays in a root and what does not, help,
# mistakes. release is built.
. "$(dirname "$(readlink -f "$0")")/../../scripts/common.sh"
cd "$scratch"
run=$project/scripts/run.sh isolated=$project/scripts/isolated.sh status=0

expect() { [ "$1" = "$2" ] || { printf 'expected: %s\nfound:    %s\n' "$1" "$2"; status=1; }; }
# refused TEXT COMMAND..: the command ends with 2 and says TEXT.
refused() {
  local text=$1 said ended=0
  shift
  said=$("$@" 2>&1 </dev/null) || ended=$?
  [[ $ended = 2 && $said = *"$text"* ]] || { printf '%s\nis not refused with %s: %d %s\n' "$*" "$text" "$ended" "$said"; status=1; }
}

expect 3.000000 "$("$run" -e 'print(talux_command("1,2,+"))')"
"$run" -e 'os.exit(7)' || expect 7 "$?"
isolation=$("$isolated" -- sh -c "echo \$TALUX_ISOLATION" 2>/dev/null)
mkdir scripts
echo 'return "beside"' >scripts/other.lua
echo 'print(..., require "other", io.open("/staged") ~= nil)' >scripts/my.lua
[ "$isolation" = none ] || echo 'touch /staged' >scripts/my.setup.sh
expect $'word\tbeside\t'"$([ "$isolation" = none ] && echo false || echo true)" "$("$run" scripts/my.lua word)"

# What stays in a root.
"$run" --root device -e 'talux_command("TLX_Uearth=35,save")'
expect TLX_Uearth=35.000000 "$(grep Uearth= device/parameter.ini)"
expect $'30.000000\n35.000000' "$("$run" --root device -e 'print(talux_command("TLX_Uearth")) print(talux_command("load,TLX_Uearth"))')"
expect 35.000000 "$("$run" --root device --boot -e 'print(talux_command("TLX_Uearth"))' 2>/dev/null)"
expect 30.000000 "$(echo TLX_Uearth | "$run" --shell --level 1)"
expect $'update would change 0 in live\n35.000000' \
  "$("$run" --root device --boot -- sh -c 'talux status | head -1; echo TLX_Uearth | talux shell' 2>/dev/null)"

# Folders that are somebody's stay as they are.
mkdir -m 700 home
touch home/letter
refused 'neither empty nor' "$run" --root home -e ''
expect 'letter 700' "$(ls -A home) $(stat -c %a home)"
refused 'root of the machine' "$run" --root / -e ''
mkdir -m 750 empty
"$run" --root empty -e ''
expect 750 "$(stat -c %a empty)"

# However they are called.
ln -s "$run" linked.sh
expect 3.000000 "$(./linked.sh -e 'print(talux_command("1,2,+"))')"
expect 3.000000 "$(sh "$run" -e 'print(talux_command("1,2,+"))')"
expect 3.000000 "$(env -i "$run" -e 'print(talux_command("1,2,+"))')"
expect 3.000000 "$(LUA_INIT='error "mine"' LUA_PATH_5_2=mine LUA_CPATH_5_2=mine CDPATH=/usr "$run" -e 'print(talux_command("1,2,+"))')"
expect found "$(cd "$builds" && "$isolated" --module build-release -- lua5.2 -l lib_talux_lua -e 'print "found"' 2>/dev/null)"
refused 'takes a directory' "$run" --root
refused "unknown option '--rot'" "$run" --rot device
refused "no such script" "$run" nowhere.lua
refused "there is no stage 'typo'" "$project/scripts/test.sh" plain typo

# A help starts nothing.
mkdir bin
for program in apt-get cmake ctest bwrap git; do printf '#!/bin/sh\ntouch %q\n' "$scratch/started" >"bin/$program"; done
chmod +x bin/*
for script in "$project"/scripts/*.sh "$project/.ci/run" "$project/scripts/run.sh --alone"; do
  [ "${script##*/}" != common.sh ] || continue
  # shellcheck disable=SC2086 # a script with an option
  said=$(PATH=$scratch/bin:$PATH $script --help </dev/null) || expect 'help with status 0' "$script"
  [ "$(wc -l <<<"$said")" -ge 3 ] || expect 'some lines of help' "$script"
done
[ ! -e started ] || expect 'a help that starts nothing' 'one that does'

# The second waits for a build folder, and says so. A folder that root or another user built is reported.
mkdir -p builds/build-release
(exec 5<builds/build-release && flock 5 && touch locked && sleep 2) &
until [ -e locked ]; do sleep 0.1; done
said=$(TALUX_BUILD_DIR=builds PATH=$scratch/bin:$PATH "$run" -e '' 2>&1 || true)
[[ $said = *'waiting for another run'*builds/build-release* ]] || expect 'a run that waits' "$said"
wait
if [ "$(id -u)" = 0 ] && chmod 755 "$scratch" && setpriv --reuid=65534 --clear-groups test -x "$run"; then
  refused 'belongs to root' env TALUX_BUILD_DIR="$scratch/builds" setpriv --reuid=65534 --regid=65534 --clear-groups "$run" -e ''
fi

# A run that is ended from outside takes its programs with it and leaves no folder.
mkdir temporary
TMPDIR=$scratch/temporary "$run" -e 'print "there" io.stdout:flush() while true do talux_usleep(100000) end' >begun &
until [ -s begun ]; do sleep 0.1; done
kill "$!"
wait "$!" || true
expect '' "$(ls temporary)"
if [ "$isolation" = none ]; then
  "$run" -e 'print "there" io.stdout:flush() while true do talux_usleep(100000) end' >again &
  until [ -s again ]; do sleep 0.1; done
  kill -KILL "$!"
  expect 3.000000 "$("$run" -e 'print(talux_command("1,2,+"))')"
fi
exit "$status"

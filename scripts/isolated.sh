#!/bin/bash
# Runs a command in an isolated device root: private shared memory, network, processes and host name, a
# file system of its own, no right to set the clock. Its exit status is the command's.
#
#   isolated.sh [--root DIR] [--module DIR] [--read PATH].. -- COMMAND [ARGUMENT..]
#
# --root DIR    the directory that becomes /, kept afterwards: a new or empty one, or that of an earlier run;
#               else a temporary one
# --module DIR  the build folder in which Lua finds the module and the tables of the project's lua/, before it looks in
#               its own places
# --read PATH   also readable inside, at its own path; /usr, the project and its builds always are
#
# Variables that name files of the caller (TMPDIR, LUA_INIT, LUA_PATH_5_2, LUA_CPATH_5_2) are not set inside.
#
# The command finds in TALUX_ISOLATION how far it is from the machine:
#   full  all of the above
#   user  the same, started without root: files have one owner and one group, chown to others fails
#   none  namespaces are refused (a container without privileges). The command runs on the container itself,
#         as the only one at a time, and only if nothing there is the device's: no segment with its keys, no
#         parameter file. Afterwards what it made is removed, after a kill by the next run. Network, clock and
#         /dev/log are the container's: a test that would touch them skips itself and says why.
# shellcheck disable=SC2317  # the clean-up runs from the trap
set -eu
shopt -s nullglob

fail() { echo "isolated.sh: $*" >&2; exit 2; }

root='' module='' reads=()
while [ "$#" -gt 0 ]; do
  case $1 in --root | --module | --read) [ "$#" -ge 2 ] || fail "$1 takes a path" ;; esac
  case $1 in
    --root) root=$2; shift 2 ;;
    --module) module=$(realpath "$2"); reads+=("$2"); shift 2 ;;
    --read) reads+=("$2"); shift 2 ;;
    -h | --help) sed -n '2,/^[^#]/s/^# \?//p' "$0" | grep -v '^shellcheck'; exit ;;
    --) shift; break ;;
    *) fail "unknown option '$1'" ;;
  esac
done
[ "$#" -gt 0 ] || fail 'no command'
project=$(cd "$(dirname "$(readlink -f "$0")")/.." && pwd -P)
[ -z "${TALUX_BUILD_DIR-}" ] || reads+=("$TALUX_BUILD_DIR"/build-*)
PATH=$PATH:/usr/sbin:/sbin
command -v bwrap >/dev/null || fail 'bwrap is missing: install the package bubblewrap'

temporary='' mark=.isolated-root # a file by which a root that was made here is known again
if [ -z "$root" ]; then
  temporary=$(mktemp -d)
  root=$temporary
  chmod 755 "$root"
fi
[ -e "$root" ] || (umask 022 && mkdir -p "$root")
root=$(cd "$root" && pwd -P)
[ "$root" != / ] || fail '/ is the root of the machine itself'
[ -e "$root/$mark" ] || [ -z "$(ls -A "$root")" ] || fail "$root is neither empty nor the root of an earlier run"
mode=$(stat -c %a "$root")
exec 8<"$root"
flock -n 8 || fail "$root is in use by another run"

# ---- with namespaces ----

arguments=(--bind "$root" / --ro-bind /usr /usr --proc /proc --dev /dev
  --unshare-ipc --unshare-net --unshare-pid --unshare-uts --die-with-parent --hostname talux
  --chdir / --cap-drop ALL)
for capability in CHOWN DAC_OVERRIDE FOWNER FSETID KILL SETUID SETGID NET_ADMIN NET_RAW NET_BIND_SERVICE; do
  arguments+=(--cap-add "CAP_$capability")
done
for path in "$project" "${reads[@]}"; do
  path=$(realpath "$path")
  arguments+=(--ro-bind "$path" "$path")
done

# Counters of a program that is compiled with them; what the documents show is renewed inside.
[ -z "${LLVM_PROFILE_FILE-}" ] || arguments+=(--bind "${LLVM_PROFILE_FILE%/*}" "${LLVM_PROFILE_FILE%/*}")
[ -z "${TALUX_ACCEPT-}" ] || arguments+=(--bind "$project" "$project")

lay_root() {
  chmod "$mode" "$root"
  touch "$root/$mark"
  mkdir -p "$root"/{etc,tmp,var,proc,dev,usr}
  for link in bin sbin lib lib64; do
    [ -e "$root/$link" ] || [ -L "$root/$link" ] || ln -s "usr/$link" "$root/$link"
  done
}

# The places where the project and others showed up are empty directories afterwards.
remove_mount_points() {
  local path
  for path in "$project" "${reads[@]}"; do
    (cd "$root" && rmdir -p ".$(realpath "$path")" 2>/dev/null) || true
  done
}

# Finds out how much isolation there is to be had: full, user or none.
find_isolation() {
  if [ "$(id -u)" = 0 ] && bwrap "${arguments[@]}" /usr/bin/true 2>/dev/null; then
    echo full
  elif bwrap "${arguments[@]}" --unshare-user --uid 0 --gid 0 /usr/bin/true 2>/dev/null; then
    echo user
  else
    echo none
  fi
}

# ---- without ----

keys=(5675 5678 5679 1414289480) # the store, and the groups of C++ programs
# Files that a device changes or makes.
settings=(/etc/localtime /etc/resolv.conf /var/resolv.conf /tmp/ntp.conf /tmp/ntp.drift /tmp/device.log)
kept=/tmp/isolated-run-$(id -u) # what was there before the run; whoever finds it without a run ends that of a killed one

segments() { # the device's, with the number of processes that have them
  local key
  for key in "${keys[@]}"; do
    awk -v key="$key" '$1 == key { print "segment " key " " $7 }' /proc/sysvipc/shm
  done
}

parameter_files() {
  local path
  for path in "$1"/{parameter,sec_parameter,ip_config,def_ip_config}.ini "$1"/{param,sec_param}_*.ini; do
    [ ! -e "$path" ] || echo "$path"
  done
}

remove_what_was_made() {
  local key path files
  for key in "${keys[@]}"; do ipcrm -M "$key" 2>/dev/null || true; done
  ipcrm -S "${keys[3]}" 2>/dev/null || true # its semaphores
  mapfile -t files < <(parameter_files '')
  [ "${#files[@]}" = 0 ] || mv -f "${files[@]}" -t "$(cat "$kept/root")" 2>/dev/null || rm -f "${files[@]}"
  for path in "${settings[@]}"; do
    if [ ! -e "$kept$path" ] && [ ! -L "$kept$path" ]; then rm -f "$path"
    elif ! cmp -s "$kept$path" "$path"; then cp -aT --remove-destination "$kept$path" "$path" || true
    fi
  done
  rm -rf "$kept"
}

# A run that was killed did not remove what it made.
end_killed_run() {
  [ -d "$kept" ] && [ -O "$kept" ] || return 0
  ! segments | grep -qv ' 0$' || sleep 1 # its processes end with it
  ! segments | grep -qv ' 0$' || fail "a run was killed, and its programs still work on the device's memory:" \
    "end them first (lsof | grep SYSV)"
  [ ! -s "$kept/temporary" ] || rm -rf "$(cat "$kept/temporary")"
  [ ! -f "$kept/complete" ] || remove_what_was_made
  rm -rf "$kept"
}

keep_what_is_there() {
  local path
  mkdir -m 700 "$kept" 2>/dev/null || fail "$kept is another user's"
  mkdir "$kept"/{etc,tmp,var}
  echo "$root" >"$kept/root"
  echo "$temporary" >"$kept/temporary"
  for path in "${settings[@]}"; do
    if [ -e "$path" ] || [ -L "$path" ]; then
      cp -a "$path" "$kept$path" || { rm -rf "$kept"; fail "cannot keep $path"; }
    fi
  done
  touch "$kept/complete"
}

# Takes from root the rights to change the container's network and clock. The command ends with this script.
without_rights() {
  local rights=() fewer=-net_admin,-sys_time
  if [ "$(id -u)" = 0 ] && setpriv --bounding-set="$fewer" true 2>/dev/null; then
    rights=(--bounding-set="$fewer" --inh-caps="$fewer")
  fi
  run setpriv --pdeathsig KILL "${rights[@]}" "$@"
}

run_on_the_machine() {
  local found files
  echo 'isolated.sh: namespaces are refused here, so this runs on the container itself' >&2
  exec 9</
  flock 9
  end_killed_run
  found=$(segments | sed 's/ [0-9]*$//'; parameter_files '')
  [ -z "$found" ] || fail "not run, because the container is a device's or a program outside isolation left something:" \
    "${found//$'\n'/, }. If no device works here, remove it (segments: ipcrm -M KEY)"
  keep_what_is_there
  mapfile -t files < <(parameter_files "$root")
  [ "${#files[@]}" = 0 ] || cp "${files[@]}" /
  cd /
  without_rights "$@"
}

# run COMMAND..: in the background, so that a TERM for this script reaches the command, and cleaning up waits for its
# end. The terminal's ctrl-C reaches both.
child=''
run() {
  local status=0
  env --default-signal=INT,QUIT "$@" <&0 8<&- 9<&- &
  child=$!
  while wait "$child" || status=$?; kill -0 "$child" 2>/dev/null; do status=0; done
  return "$status"
}
trap '[ -n "$child" ] || exit 130' INT
trap '[ -n "$child" ] || exit 143; kill -TERM "$child" 2>/dev/null || true' TERM HUP

cleanup() {
  [ ! -f "$kept/complete" ] || [ "$TALUX_ISOLATION" != none ] || [ -z "$child" ] || remove_what_was_made
  remove_mount_points
  [ ! -d "$root" ] || lay_root
  [ -z "$temporary" ] || { chmod -R u+rwX "$temporary" 2>/dev/null; rm -rf "$temporary"; }
}
trap cleanup EXIT
lay_root
unset TMPDIR LUA_INIT LUA_INIT_5_2 LUA_PATH_5_2 LUA_CPATH_5_2
[ -z "$module" ] || export LUA_PATH="$project/lua/?.lua;$module/generated/lua/?.lua;${LUA_PATH-;}" LUA_CPATH="$module/?.so;${LUA_CPATH-;}"
export TALUX_ISOLATION PATH=/usr/sbin:/usr/bin:/sbin:/bin
TALUX_ISOLATION=$(find_isolation)
status=0
case $TALUX_ISOLATION in
  full) run bwrap "${arguments[@]}" "$@" || status=$? ;;
  user) run bwrap "${arguments[@]}" --unshare-user --uid 0 --gid 0 "$@" || status=$? ;;
  none) run_on_the_machine "$@" || status=$? ;;
esac
exit "$status"

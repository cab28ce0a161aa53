#!/bin/bash
# Runs a command in an isolated device root: private shared memory, network, processes and host name, a
# file system of its own, no right to set the clock. Its exit status is the command's.
#
#   isolated.sh [--root DIR] [--module DIR] [--read PATH].. -- COMMAND [ARGUMENT..]
#
# --root DIR    the directory that becomes /, made when absent and kept afterwards; else a temporary one
# --module DIR  the build folder in which Lua finds the module and the tables of the project's lua/, before it looks in
#               its own places
# --read PATH   also readable inside, at its own path; /usr and the project always are
#
# The command finds in TALUX_ISOLATION how far it is from the machine:
#   full  all of the above
#   user  the same, started without root: files have one owner and one group, chown to others fails
#   none  namespaces are refused (a container without privileges). The command runs on the container itself,
#         as the only one at a time, and only if nothing there is the device's: no segment with its keys, no
#         parameter file. Afterwards what it made is removed. Network, clock and /dev/log are the
#         container's: a test that would touch them skips itself and says why.
# shellcheck disable=SC2317  # the clean-up runs from the trap
set -eu
shopt -s nullglob

fail() { echo "isolated.sh: $*" >&2; exit 2; }

root='' module='' reads=()
while [ "$#" -gt 0 ]; do
  case $1 in
    --root) root=$2; shift 2 ;;
    --module) module=$2; reads+=("$2"); shift 2 ;;
    --read) reads+=("$2"); shift 2 ;;
    -h | --help) sed -n '2,/^[^#]/s/^# \?//p' "$0" | grep -v '^shellcheck'; exit ;;
    --) shift; break ;;
    *) fail "unknown option '$1'" ;;
  esac
done
[ "$#" -gt 0 ] || fail 'no command'
project=$(cd "$(dirname "$0")/.." && pwd -P)
PATH=$PATH:/usr/sbin:/sbin
command -v bwrap >/dev/null || fail 'bwrap is missing: install the package bubblewrap'

temporary=''
[ -n "$root" ] || temporary=$(mktemp -d)
root=${root:-$temporary}
mkdir -p "$root"
root=$(cd "$root" && pwd -P)
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

lay_root() {
  chmod 755 "$root"
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

keys=(5675 5678 5679 1414289479) # the store, and the groups of C++ programs
settings=(/etc/localtime /etc/resolv.conf) # files that the settings of a device change
segments() {
  local key
  for key in "${keys[@]}"; do
    ! grep -q "^ *$key " /proc/sysvipc/shm || echo "segment $key"
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
  [ "${#files[@]}" = 0 ] || mv -f "${files[@]}" "$root"
  for path in "${settings[@]}"; do
    if [ ! -e "$kept$path" ] && [ ! -L "$kept$path" ]; then rm -f "$path"
    elif ! cmp -s "$kept$path" "$path"; then cp -aT --remove-destination "$kept$path" "$path" || true
    fi
  done
  rm -rf "$kept"
}

# Takes from root the rights to change the container's network and clock.
without_rights() {
  if [ "$(id -u)" = 0 ] && setpriv --bounding-set=-net_admin,-sys_time true 2>/dev/null; then
    setpriv --bounding-set=-net_admin,-sys_time --inh-caps=-net_admin,-sys_time "$@"
  else
    "$@"
  fi
}

run_on_the_machine() {
  local copies found files path
  echo 'isolated.sh: namespaces are refused here, so this runs on the container itself' >&2
  exec 9</
  flock 9
  found=$(segments; parameter_files '')
  [ -z "$found" ] || fail "not run: the container is a device's, it has" "${found//$'\n'/, }"
  copies=$(mktemp -d)
  mkdir "$copies/etc"
  for path in "${settings[@]}"; do
    if [ -e "$path" ] || [ -L "$path" ]; then
      cp -a "$path" "$copies$path" || { rm -rf "$copies"; fail "cannot keep $path"; }
    fi
  done
  kept=$copies
  mapfile -t files < <(parameter_files "$root")
  [ "${#files[@]}" = 0 ] || cp "${files[@]}" /
  cd /
  without_rights "$@" 8<&- 9<&-
}

kept=''
cleanup() {
  [ -z "$kept" ] || remove_what_was_made
  remove_mount_points
  [ ! -d "$root" ] || lay_root
  [ -z "$temporary" ] || { chmod -R u+rwX "$temporary"; rm -rf "$temporary"; }
}
trap cleanup EXIT
lay_root
[ -z "$module" ] || export LUA_PATH="$project/lua/?.lua;$module/generated/lua/?.lua;${LUA_PATH-;}" LUA_CPATH="$module/?.so;${LUA_CPATH-;}"
export TALUX_ISOLATION PATH=/usr/sbin:/usr/bin:/sbin:/bin
TALUX_ISOLATION=$(find_isolation)
status=0
case $TALUX_ISOLATION in
  full) bwrap "${arguments[@]}" "$@" 8<&- || status=$? ;;
  user) bwrap "${arguments[@]}" --unshare-user --uid 0 --gid 0 "$@" 8<&- || status=$? ;;
  none) run_on_the_machine "$@" || status=$? ;;
esac
exit "$status"

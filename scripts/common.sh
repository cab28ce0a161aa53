# What the scripts share: sourced, not run. The head of a script is its --help. Sets
#   project  the folder of the project
#   builds   where the build folders lie: TALUX_BUILD_DIR, by default the project
#   scratch  a folder that goes when the script ends
# shellcheck shell=bash
[ -n "${BASH_VERSION-}" ] || exec bash "$0" "$@"
set -eu
help() { sed -n '2,/^[^#]/s/^# \?//p' "$0" | grep -v '^shellcheck'; exit; }
case ${1-} in -h | --help) help ;; esac

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
builds=$project
[ -z "${TALUX_BUILD_DIR-}" ] || builds=$(realpath -m "$TALUX_BUILD_DIR")
export TALUX_BUILD_DIR=$builds PATH=$PATH:/usr/sbin:/sbin
if command -v ccache >/dev/null; then
  export CMAKE_C_COMPILER_LAUNCHER=${CMAKE_C_COMPILER_LAUNCHER-ccache}
  export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
  export CCACHE_SLOPPINESS=pch_defines,time_macros # what it takes to cache with a precompiled header
fi
scratch=$(mktemp -d)
touch "$scratch/shown" # when something was shown
leaving=''
trap 'rm -rf "$scratch"' EXIT
trap 'echo "$leaving" >&2; exit 130' INT
trap 'exit 143' TERM

fail() { echo "$(basename "$0"): $*" >&2; exit 2; }

# Files of another user, whom root works for, can be looked at.
git() { command git -C "$project" -c safe.directory="$project" "$@"; }
has_history() { git rev-parse --git-dir >/dev/null 2>&1; }

# ---- how far it is ----

doing='' terminal=2 # where progress is shown

# how_far LOG: what the last lines of ninja, make or apt-get say.
how_far() {
  awk '
    match($0, /^\[[ 0-9\/%]+\]/) { text = substr($0, 1, RLENGTH) }
    / newly installed, / { all = $1 + $3 }
    /^Get:/ { text = "fetched " ++fetched " of " all }
    /^Unpacking / { text = "unpacked " ++unpacked " of " all }
    /^Setting up / { text = "set up " ++set " of " all }
    END { print text }' "$1" 2>/dev/null
}

# tick OWNER LOG [streamed]: shows how far the command is that writes LOG until the process OWNER ends: on a terminal
# in place, else every 15 seconds; when LOG is shown as well, only after 15 seconds without anything new in it.
tick() {
  local idle streamed=${3-} size=0 since=$SECONDS
  exec {idle}<> <(:)
  while read -rt 1 -u "$idle" || kill -0 "$1" 2>/dev/null; do
    if [ -n "$streamed" ] && [ "$size" != "$(stat -c %s "$2")" ]; then
      size=$(stat -c %s "$2")
      touch "$scratch/shown"
    elif [ -z "$streamed" ] && [ -t "$terminal" ]; then
      printf '\r%s %s, %d s\e[K' "$doing" "$(how_far "$2")" $((SECONDS - since)) >&"$terminal"
    elif [ $((EPOCHSECONDS - $(stat -c %Y "$scratch/shown"))) -ge 15 ]; then
      echo "$doing $(how_far "$2"), $((SECONDS - since)) s" >&"$terminal"
      touch "$scratch/shown"
    fi
  done
}

# logged LOG COMMAND..: runs the command with its output in LOG, and shows how far it is.
logged() {
  local log=$1 status=0 ticker
  shift
  : >"$log"
  tick "$BASHPID" "$log" &
  ticker=$!
  "$@" </dev/null >"$log" 2>&1 || status=$?
  kill "$ticker" 2>/dev/null || true
  wait "$ticker" 2>/dev/null || true
  [ ! -t "$terminal" ] || printf '\r\e[K' >&"$terminal"
  return "$status"
}

# quiet COMMAND..: shows the command's output only when it fails.
quiet() {
  local log status=0 doing=${doing:-$*}
  log=$(mktemp -p "$scratch")
  logged "$log" "$@" || status=$?
  [ "$status" = 0 ] || { cat "$log"; echo "failed: $*"; } >&2
  return "$status"
}

# ---- packages ----

# The groups of Debian packages, each as the command or file that is looked for, and the package that brings it.
declare -A packages=(
  [build]='cmake:cmake ninja:ninja-build g++:g++ lua5.2:lua5.2 /usr/include/lua5.2/lua.h:liblua5.2-dev
    /usr/include/gtest/gtest.h:libgtest-dev /usr/include/CLI/CLI.hpp:libcli11-dev
    /usr/include/nlohmann/json.hpp:nlohmann-json3-dev /usr/include/sha2.h:libmd-dev
    /usr/include/histedit.h:libedit-dev /usr/include/bsd/bsd.h:libbsd-dev'
  [run]='bwrap:bubblewrap ip:iproute2 ifconfig:net-tools killall:psmisc'
  [tests]='/usr/share/i18n/locales/de_DE:locales qemu-arm:qemu-user pkg-config:pkg-config'
  [device]='cmake:cmake ninja:ninja-build'
  [armv7]='arm-linux-gnueabihf-g++:g++-arm-linux-gnueabihf'
  [armv5te]='arm-linux-gnueabi-g++:g++-arm-linux-gnueabi'
  [clang]='clang++:clang /usr/share/doc/libclang-rt-14-dev:libclang-rt-14-dev'
  [emulator]='qemu-arm:qemu-user'
  [bench]='/usr/include/benchmark/benchmark.h:libbenchmark-dev valgrind:valgrind'
  [lint]='clang-format:clang-format clang-tidy:clang-tidy shellcheck:shellcheck git:git'
  [git]=git:git
  [lintian]=lintian:lintian
  [spin]=spin:spin
  [browser]=chromium:chromium
  [make]=make:make
  [rock]=luarocks:luarocks
  [coverage]='llvm-cov:llvm python3:python3'
  [time]=/usr/bin/time:time
  [debootstrap]=debootstrap:debootstrap
)

is_there() {
  case $1 in
    /*) [ -e "$1" ] ;;
    *) command -v "$1" >/dev/null ;;
  esac
}

# missing GROUP..: the packages of these groups that are not there.
missing() {
  local group pair
  for group in "$@"; do
    for pair in ${packages[$group]}; do
      is_there "${pair%%:*}" || echo "${pair#*:}"
    done
  done | sort -u
}

# patient_apt LOG COMMAND..: as long as another apt-get is at work, such as the daily upgrade, it is waited for.
patient_apt() {
  local doing=$doing until=$((SECONDS + 900))
  until logged "$@"; do
    grep -q 'Could not get lock' "$1" && [ "$SECONDS" -lt "$until" ] || return 1
    doing="waiting for another apt-get ($(grep -om1 'held by process .*' "$1" || true))"
    logged "$1" sleep 5
  done
}

# cannot_reach LOG: says so when that is what apt-get suffered from.
cannot_reach() {
  grep -qE 'resolving|Could not connect|Unable to connect|Network is unreachable|connection timed out' "$1" || return 1
  echo 'the package servers cannot be reached: is there a network?' >&2
}

# install PACKAGE..: installs them as root, else names them; status 1 when they are not there afterwards.
install() {
  local log doing get=(env DEBIAN_FRONTEND=noninteractive apt-get -o APT::Color=0 install -y --no-install-recommends)
  if [ "$(id -u)" != 0 ] || ! command -v apt-get >/dev/null; then
    echo "packages are missing; install them as root: apt-get install $*" >&2
    return 1
  fi
  log=$(mktemp /tmp/apt-output.XXXXXX)
  echo "installing $# packages and what they need: $*" >&2
  doing='reading package lists:'
  patient_apt "$scratch/update" apt-get update || true
  doing='fetching packages:'
  if patient_apt "$log" "${get[@]}" --download-only "$@"; then
    # In a session of its own: what apt-get has begun it finishes, whoever is interrupted.
    leaving="apt-get finishes what it has begun; its output is in $log"
    doing='installing packages:'
    if patient_apt "$log" setsid --fork --wait "${get[@]}" --no-download "$@"; then
      leaving='' && rm -f "$log"
      return 0
    fi
    leaving=''
  fi
  cat "$scratch/update" "$log" >"$scratch/all" && mv "$scratch/all" "$log"
  cannot_reach "$log" || grep '^E: ' "$log" | tail -3 >&2
  echo "the packages are not installed; apt-get's output is in $log" >&2
  return 1
}

# need GROUP..: goes on only when the packages of these groups are there.
need() {
  local names
  mapfile -t names < <(missing "$@")
  [ "${#names[@]}" = 0 ] || install "${names[@]}" || exit 2
}

# ---- builds ----

# claim FOLDER: makes the build folder and keeps it for this process and those that it starts; others wait.
claim() {
  local owner held waited=0
  case :${TALUX_CLAIMED-}: in *:"$1":*) return ;; esac
  mkdir -p "$1" 2>/dev/null || fail "$1 cannot be made: let TALUX_BUILD_DIR=DIR put builds elsewhere"
  owner=$(find "$1" -maxdepth 1 ! -user "$(id -u)" -printf '%u\n' -quit 2>/dev/null) || true
  [ "$(id -u)" = 0 ] || [ -z "$owner" ] ||
    fail "$1 belongs to $owner: remove it, or let TALUX_BUILD_DIR=DIR put builds elsewhere"
  [ -w "$1" ] || fail "$1 cannot be written: let TALUX_BUILD_DIR=DIR put builds elsewhere"
  exec {held}<"$1"
  until flock -w 0.2 "$held"; do
    [ $((waited % 15)) != 0 ] || echo "waiting for another run that works in $1, $waited s" >&"$terminal"
    flock -w 0.8 "$held" && break
    waited=$((waited + 1))
  done
  export TALUX_CLAIMED=${TALUX_CLAIMED-}:$1
}

# give_back FOLDER: what root builds in somebody's checkout is that user's.
give_back() {
  [ "$(id -u)" != 0 ] || [ "$(stat -c %u "$project")" = 0 ] || chown -R --reference="$project" "$1" || true
}

# build PRESET [TARGET..]: configures and builds, showing no more than how far it is when all goes well.
build() {
  local preset=$1 folder=$builds/build-$1 doing="building build-$1"
  shift
  claim "$folder"
  quiet cmake -S "$project" --preset "$preset" -B "$folder" && quiet cmake --build "$folder" ${1+--target "$@"} || return
  give_back "$folder"
}

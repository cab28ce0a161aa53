# What the scripts share: sourced, not run. Sets project, the folder of the project.
# shellcheck shell=bash
set -eu
# shellcheck disable=SC2034
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
PATH=$PATH:/usr/sbin:/sbin
if command -v ccache >/dev/null; then
  export CMAKE_C_COMPILER_LAUNCHER=${CMAKE_C_COMPILER_LAUNCHER-ccache}
  export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
  export CCACHE_SLOPPINESS=pch_defines,time_macros # what it takes to cache behind a precompiled header
fi

fail() { echo "$(basename "$0"): $*" >&2; exit 2; }

# quiet COMMAND..: shows the command's output only when it fails.
quiet() {
  local log status=0
  log=$(mktemp)
  "$@" </dev/null >"$log" 2>&1 || status=$?
  [ "$status" = 0 ] || { cat "$log"; echo "failed: $*"; } >&2
  rm -f "$log"
  return "$status"
}

is_there() {
  case $1 in
    /*) [ -e "$1" ] ;;
    *) command -v "$1" >/dev/null ;;
  esac
}

# need WHAT:PACKAGE..: installs the Debian packages whose WHAT, a command or a file, is missing.
need() {
  local pair missing=()
  for pair in "$@"; do
    is_there "${pair%%:*}" || missing+=("${pair#*:}")
  done
  [ "${#missing[@]}" != 0 ] || return 0
  if [ "$(id -u)" != 0 ] || ! command -v apt-get >/dev/null; then
    fail "packages are missing; install them as root: apt-get install ${missing[*]}"
  fi
  echo "installing ${missing[*]}" >&2
  quiet apt-get update
  quiet env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}

need_build_tools() {
  need cmake:cmake ninja:ninja-build g++:g++ lua5.2:lua5.2 /usr/include/lua5.2/lua.h:liblua5.2-dev \
    /usr/include/gtest/gtest.h:libgtest-dev bwrap:bubblewrap \
    /usr/include/CLI/CLI.hpp:libcli11-dev /usr/include/nlohmann/json.hpp:nlohmann-json3-dev \
    /usr/include/sha2.h:libmd-dev /usr/include/histedit.h:libedit-dev /usr/include/bsd/bsd.h:libbsd-dev
}

# build PRESET [TARGET..]: configures and builds, silently when all goes well.
build() {
  local preset=$1
  shift
  [ -d "build-$preset" ] || echo "building build-$preset" >&2
  quiet cmake --preset "$preset"
  quiet cmake --build "build-$preset" ${1+--target "$@"}
}

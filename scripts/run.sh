#!/bin/bash
# Runs a Lua script with the module on an isolated device, beside the program that plays the rest of it.
#
#   run.sh [--root DIR] [--boot | --alone] [SCRIPT [ARGUMENT..] | -e CODE | --shell [OPTION..]]
#
# SCRIPT       a Lua script, by default examples/tour.lua. Its folder can be read at its own path, not written;
#              modules beside it are found by require
# -e CODE      runs CODE with the module loaded
# --shell      starts the shell of the command language instead (talux shell), with its options
# --root DIR   the directory that becomes /, kept afterwards: parameter files and the device's log
#              /tmp/device.log lie there; by default a temporary one
#
# A run starts from the factory defaults, whatever files lie in the root: a save replaces them.
# --boot       starts as a device does: the defaults, then the parameter files of the root. The network stays as it is
# --alone      without the device program: all values are zero at first, and a save writes the zeros
#
# The exit status is the script's. What is missing is installed (as root) and built first. Where SCRIPT.setup.sh
# stands beside the script (tour.setup.sh for tour.lua) it is sourced inside the root before.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

isolation=() session=(--device "$project/build-release/examples/device") boot=() targets=(lib_talux_lua device)
while [ "$#" -gt 0 ]; do
  case $1 in
    --root) isolation+=(--root "$2"); shift 2 ;;
    --alone) session=(); shift ;;
    --boot) boot=(--boot); shift ;;
    -h | --help) sed -n '2,/^[^#]/s/^# \?//p' "$0"; exit ;;
    *) break ;;
  esac
done
[ "${#session[@]}" != 0 ] || [ "${#boot[@]}" = 0 ] || fail '--boot needs the device program, which loads the defaults'

case ${1-} in
  -e) [ "$#" = 2 ] || fail '-e takes the code and nothing else'
    command=(lua5.2 -l lib_talux_lua -e "$2") ;;
  --shell) targets+=(talux)
    command=("$project/build-release/tools/talux/talux" shell "${@:2}") ;;
  -*) fail "unknown option '$1'" ;;
  *) script=$(realpath "${1-$project/examples/tour.lua}")
    [ -f "$script" ] || fail "no such script: $script"
    command=(lua5.2 "$script" "${@:2}")
    folder=$(dirname "$script")
    export LUA_PATH="$folder/?.lua;;"
    case $folder in
      / | /tmp | /etc | /var | /proc | /dev) isolation+=(--read "$script") ;; # the root has its own
      *) isolation+=(--read "$folder") ;;
    esac
    setup=${script%.lua}.setup.sh
    [ ! -f "$setup" ] || session=(--setup "$setup" "${session[@]}") ;;
esac

(cd "$project" && need_build_tools && build release "${targets[@]}")
exec "$project/scripts/isolated.sh" --module "$project/build-release" "${isolation[@]}" -- \
  "$project/scripts/session.sh" "${session[@]}" "${boot[@]}" -- "${command[@]}"

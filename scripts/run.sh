#!/bin/bash
# Runs a Lua script or another command with the module on an isolated device, beside the program that plays the rest
# of it.
#
#   run.sh [OPTION..] [SCRIPT [ARGUMENT..] | -e CODE | --shell [OPTION..] | -- COMMAND [ARGUMENT..]]
#
# SCRIPT       a Lua script, by default examples/tour.lua. Its folder can be read at its own path, not written;
#              modules beside it are found by require
# -e CODE      runs CODE with the module loaded
# --shell      starts the shell of the command language instead (talux shell), with its options
# -- COMMAND   runs any command, with the program talux in its PATH: `-- talux status`, or `-- bash` for several that
#              work on the same values and files
#
# --root DIR   the directory that becomes /, kept afterwards: parameter files and the device's log
#              /tmp/device.log lie there. A new or empty one, or that of an earlier run; by default a temporary one
# --boot       starts as a device does: the defaults, then the parameter files of the root. The network stays as it is.
#              Without it a run starts from the factory defaults, whatever files lie in the root: a save replaces them
# --scenario NAME
#              what happens in the network: earth faults and others, docs/desk.md; a name of examples/scenarios or a file.
#              Without it the network is quiet
# --alone      without the device program: all values are zero at first, and a save writes the zeros
#
# The exit status is the script's. What is missing is installed (as root) and built first; TALUX_BUILD_DIR=DIR puts
# builds elsewhere. Where SCRIPT.setup.sh is beside the script (tour.setup.sh for tour.lua) it is sourced inside the
# root before.
. "$(dirname "$(readlink -f "$0")")/common.sh"

build=$builds/build-release
isolation=() session=(--device "$build/tools/desk/talux-desk") boot=() targets=(lib_talux_lua talux-desk)
while [ "$#" -gt 0 ]; do
  case $1 in
    --root) [ "$#" -ge 2 ] || fail '--root takes a directory'
      isolation+=(--root "$2"); shift 2 ;;
    --alone) session=(); shift ;;
    --scenario) [ "$#" -ge 2 ] || fail '--scenario takes a name or a file'
      scenario=$project/examples/scenarios/$2.scenario
      [ -f "$scenario" ] || scenario=$(realpath -m "$2")
      [ -f "$scenario" ] || fail "no such scenario: $2; there are $(cd "$project/examples/scenarios" && echo *.scenario | sed 's/\.scenario//g')"
      isolation+=(--read "$(dirname "$scenario")")
      session+=(--scenario "$scenario"); shift 2 ;;
    --boot) boot=(--boot); shift ;;
    -h | --help) help ;;
    *) break ;;
  esac
done
[ "${#session[@]}" != 0 ] || [ "${#boot[@]}" = 0 ] || fail '--boot needs the device program, which loads the defaults'

case ${1-} in
  -e) [ "$#" = 2 ] || fail '-e takes the code and nothing else'
    command=(lua5.2 -l lib_talux_lua -e "$2") ;;
  --shell) targets+=(talux)
    command=("$build/tools/talux/talux" shell "${@:2}") ;;
  --) [ "$#" -ge 2 ] || fail 'no command after --'
    targets+=(talux)
    command=(env "PATH=$build/tools/talux:/usr/sbin:/usr/bin:/sbin:/bin" "${@:2}") ;;
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

need build run
(build release "${targets[@]}")
rm -rf "$scratch"
exec "$project/scripts/isolated.sh" --module "$build" "${isolation[@]}" -- \
  "$project/scripts/session.sh" "${session[@]}" "${boot[@]}" -- "${command[@]}"

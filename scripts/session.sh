#!/bin/bash
# What happens inside the isolated root when a script runs: stage, device program, script.
#
#   session.sh [--setup FILE] [--device PROGRAM [--scenario FILE]] [--boot] [--emulator "WORD;WORD"] -- COMMAND [ARGUMENT..]
#
# FILE is sourced: what it exports, another PATH for instance, holds for the rest. The device program is there,
# with values in the store, before the command starts, and ends with it. It keeps its log in /tmp/device.log.
# FILE of --scenario says what happens in its network. With --boot the parameter files that lie in the root are loaded over its defaults, without applying addresses.
# The words precede the device program when it is not for this processor.
set -eu

device='' scenario=() boot='' emulator=() log=/tmp/device.log
while [ "$#" -gt 0 ]; do
  case $1 in
    -h | --help) sed -n '2,/^[^#]/s/^# \?//p' "$0"; exit ;;
    --setup)
      [ "$TALUX_ISOLATION" != none ] || { echo "skipped: $2 needs namespaces" >&2; exit 2; }
      # shellcheck source=/dev/null
      . "$2"
      shift 2 ;;
    --device) device=$2; shift 2 ;;
    --scenario) scenario=(--scenario "$2"); shift 2 ;;
    --boot) boot=1; shift ;;
    --emulator) IFS=";" read -ra emulator <<<"$2"; shift 2 ;;
    --) shift; break ;;
    *) echo "session.sh: unknown option '$1'" >&2; exit 2 ;;
  esac
done

if [ -n "$device" ]; then
  exec 3< <(exec setpriv --pdeathsig KILL "${emulator[@]}" "$device" "${scenario[@]}" "$log")
  pid=$!
  read -r _ <&3 || { echo 'session.sh: the device program did not start' >&2; exit 2; }
fi
[ -z "$boot" ] || lua5.2 -l lib_talux_lua - <<'EOF' >&2
for file, line in ("parameter=load;sec_parameter=load_sec;ip_config=load_ip ip_config.ini"):gmatch "([^=;]+)=([^;]+)" do
  if io.open("/" .. file .. ".ini") then io.write("boot: /", file, ".ini: ", talux_command(line)) end
end
EOF
status=0
setpriv --pdeathsig KILL "$@" || status=$?
if [ -n "$device" ]; then
  kill "$pid" 2>/dev/null || true
  wait "$pid" || { echo 'session.sh: the device program failed' >&2; exit 2; }
fi
exit "$status"

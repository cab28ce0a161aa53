#!/bin/sh
# Runs a command in an isolated device root: private shared memory, network, processes and host name, a
# file system of its own, no right to set the clock.
#
#   isolated.sh [--root DIR] [--module DIR] -- COMMAND [ARGUMENT..]
#
# --root DIR    the directory that becomes /, kept afterwards; else a temporary one
# --module DIR  where Lua finds the module
set -eu

root=''
module=''
while [ "$#" -gt 0 ]; do
  case $1 in
    --root) root=$2; shift 2 ;;
    --module) module=$2; shift 2 ;;
    --) shift; break ;;
    *) echo "isolated.sh: unknown option '$1'" >&2; exit 2 ;;
  esac
done
project=$(cd "$(dirname "$0")/.." && pwd)

cleanup() { [ -z "${temporary-}" ] || rm -rf "$temporary"; }
if [ -z "$root" ]; then
  temporary=$(mktemp -d)
  trap cleanup EXIT
  root=$temporary
fi
mkdir -p "$root/etc" "$root/tmp" "$root/var" "$root/proc" "$root/dev"
for link in bin sbin lib lib64; do
  [ -e "$root/$link" ] || [ -L "$root/$link" ] || ln -s "usr/$link" "$root/$link"
done

set -- --bind "$root" / --ro-bind /usr /usr --proc /proc --dev /dev \
  --ro-bind "$project" "$project" --chdir / \
  --unshare-ipc --unshare-net --unshare-pid --unshare-uts --die-with-parent \
  --cap-add CAP_NET_ADMIN --cap-drop CAP_SYS_TIME \
  --setenv PATH /usr/sbin:/usr/bin:/sbin:/bin --setenv LUA_CPATH "$module/?.so" "$@"
[ "$(id -u)" = 0 ] || set -- --unshare-user --uid 0 --gid 0 "$@"
status=0
bwrap "$@" || status=$?
exit "$status"

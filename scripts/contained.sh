#!/bin/bash
# Runs a command in a container of its own, in which namespaces are refused: as root of it, with the project and its
# builds, and nothing of the machine but /usr. What the command leaves there is an error.
#
#   contained.sh COMMAND [ARGUMENT..]
. "$(dirname "$(readlink -f "$0")")/common.sh"
[ "$#" -gt 0 ] || fail 'no command'
root=$scratch/root
mkdir -p "$root"/{etc,tmp,var,proc,dev,usr}
for link in bin sbin lib lib64; do ln -s "usr/$link" "$root/$link"; done
status=0
bwrap --bind "$root" / --ro-bind /usr /usr --ro-bind /etc/alternatives /etc/alternatives \
  --ro-bind "$project" "$project" --ro-bind "$builds" "$builds" --proc /proc --dev /dev \
  --unshare-all --unshare-user --disable-userns --uid 0 --gid 0 --cap-drop ALL "$@" || status=$?
left=$(find "$root"/{tmp,var} -mindepth 1 -maxdepth 1; ls "$root"/*.ini 2>/dev/null) || true
[ -z "$left" ] || { echo "left in the container: $left"; status=1; }
exit "$status"

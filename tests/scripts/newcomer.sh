#!/bin/bash
# The first hour on a fresh Debian 12: as root, as an ordinary user, without a network, in a read-only checkout, two at
# once, interrupted, without namespaces. The machine is a root made by debootstrap, in a user namespace: its root has
# no rights over this machine. It gets what is committed.
. "$(dirname "$(readlink -f "$0")")/../../scripts/common.sh"
[ "$(id -u)" = 0 ] || fail 'root makes the machine'
need debootstrap git
machine=$scratch/machine home=/home/new/project status=0

# A user namespace whose users are nobody on this machine.
unshare --user sleep infinity &
holder=$!
trap 'kill "$holder"; rm -rf "$scratch"' EXIT
until [ "$(readlink "/proc/$holder/ns/user")" != "$(readlink /proc/$$/ns/user)" ]; do sleep 0.1; done
echo '0 1000000 65536' >"/proc/$holder/uid_map"
echo '0 1000000 65536' >"/proc/$holder/gid_map"
cat >"$scratch/enter" <<'END'
cd "$1" && shift
mount --make-rprivate / && mount --bind . . && cd "$PWD" && hostname fresh
mount -t proc proc proc && mount -t tmpfs -o mode=755 tmpfs dev
mkdir -m 1777 dev/shm && mkdir dev/pts && mount -t devpts -o newinstance,ptmxmode=0666 devpts dev/pts
ln -s pts/ptmx dev/ptmx && ln -s /proc/self/fd dev/fd
for device in null zero full random urandom tty; do touch dev/$device && mount --bind /dev/$device dev/$device; done
[ -z "${READ_ONLY-}" ] || { mount --bind "./$READ_ONLY" "./$READ_ONLY" && mount -o remount,ro,bind "./$READ_ONLY"; }
mkdir -p old && pivot_root . old && umount -l /old && cd / && rmdir old
exec env -u READ_ONLY "$@"
END

# on_machine [unshare-option] -- COMMAND..: there, as root. READ_ONLY names a folder that is.
on_machine() {
  local options=()
  while [ "$1" != -- ]; do options+=("$1"); shift; done
  shift
  env -i --default-signal=INT HOME=/root LANG=C.UTF-8 READ_ONLY="${READ_ONLY-}" \
    PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
    nsenter --user --target "$holder" --setuid 0 --setgid 0 \
    unshare --mount --pid --ipc --uts --fork --kill-child "${options[@]}" sh -eu "$scratch/enter" "$machine" "$@" </dev/null
}
# shellcheck disable=SC2317 # called by trial
as_user() { on_machine -- su new -c "cd $home && $1"; }

# trial NAME STATUS TEXT COMMAND..: the command ends with STATUS and says TEXT, and is silent for 16 seconds at most.
trial() {
  local name=$1 expected=$2 text=$3 started=$SECONDS ended=0 silence
  shift 3
  "$@" > >(while IFS= read -r line; do printf '%(%s)T %s\n' -1 "$line"; done >"$scratch/said") 2>&1 || ended=$?
  silence=$(awk 'NR > 1 && $1 - last > most { most = $1 - last } { last = $1 } END { print most + 0 }' "$scratch/said")
  if [ "$ended" = "$expected" ] && grep -q -- "$text" "$scratch/said" && [ "$silence" -le 16 ]; then
    echo "ok: $name, $((SECONDS - started)) s"
  else
    tail -40 "$scratch/said"
    echo "FAILED: $name: status $ended, silent for $silence s, expected status $expected and $text"
    status=1
  fi
}

doing='making a fresh Debian 12:' quiet debootstrap --variant=minbase --include=git,ca-certificates bookworm "$machine"
chmod 755 "$scratch"
cp /etc/resolv.conf "$machine/etc"
mkdir -p "$machine$home"
git clone -q --no-local "$project" "$machine$home" # whose files are its own, not links to those of the project
# Its files belong to its users; the mode comes last, since a change of the owner takes some of it.
find "$machine" -perm /7000 ! -type l -printf '%m %p\n' >"$scratch/modes"
find "$machine" -printf '%U %G\n' | sort -u | while read -r user group; do
  find "$machine" -uid "$user" -gid "$group" -exec chown -h "$((1000000 + user)):$((1000000 + group))" {} +
done
while read -r mode path; do chmod "$mode" "$path"; done <"$scratch/modes"
on_machine -- useradd new
on_machine -- chown -R new: /home/new

trial 'an ordinary user is named the packages' 2 'apt-get install .*bubblewrap.* cmake' as_user scripts/run.sh
trial 'without a network' 2 'is there a network' on_machine --net -- "$home/scripts/run.sh"
on_machine -- rm -rf /tmp/apt-output.*
trial 'ctrl-C while packages are installed' 130 '' on_machine -- bash -c "
  setsid env --default-signal=INT $home/scripts/run.sh &
  until ls -l /proc/[0-9]*/exe 2>/dev/null | grep -q '/dpkg\$' || ! kill -0 \$!; do sleep 0.1; done
  kill -INT -- -\$!; before=\$SECONDS; wait \$!; ended=\$?
  [ \$((SECONDS - before)) -le 2 ] || echo slow
  while ls -l /proc/[0-9]*/exe 2>/dev/null | grep -q /apt-get; do echo 'apt-get goes on'; sleep 1; done; exit \$ended"
trial 'root prepares the machine' 0 'talux' on_machine -- "$home/scripts/run.sh"
trial 'the user goes on in the same checkout' 0 'The network is as it was set' as_user 'scripts/run.sh examples/network.lua'
trial 'talux beside the device program' 1 'update would change 0' as_user 'scripts/run.sh -- talux status'
# shellcheck disable=SC2016 # expanded there
READ_ONLY=$home trial 'two at once in a read-only checkout' 0 'waiting for another run' as_user '
  export TALUX_BUILD_DIR=/tmp/elsewhere
  scripts/run.sh & first=$!; scripts/run.sh && wait $first'
READ_ONLY=$home trial 'a read-only checkout says where builds can go' 2 'TALUX_BUILD_DIR=DIR' as_user \
  'rm -rf /tmp/elsewhere; scripts/run.sh -e ""'
trial 'a stage without its packages fails alone' 1 'g++-arm-linux-gnueabihf' as_user 'scripts/test.sh plain armv7'
trial 'without .git' 0 'no git checkout' as_user 'mv .git ../git; scripts/test.sh rock; mv ../git .git'
trial 'root has the tests installed' 0 '0 failed' on_machine -- "$home/scripts/test.sh" release
trial 'without namespaces' 0 '0 failed' on_machine --net -- sh -c "
  rm -rf /tmp/*; echo 0 >/proc/sys/user/max_user_namespaces
  su new -c 'cd $home && scripts/test.sh release'
  ended=\$?; ls -A /tmp; [ -z \"\$(ls -A /tmp; cat /proc/sysvipc/shm | sed 1d)\" ] || ended=9; exit \$ended"
exit "$status"

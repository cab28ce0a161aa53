#!/bin/bash
# Unpacks what a program of ours needs to be built and to run (Lua 5.2, the C and C++ libraries, what talux and the
# tests link) into a folder of its own. Nothing is installed, the packages and architectures of this machine stay as
# they are; no rights needed. Status 75 when the package servers cannot be reached.
#
#   sysroot.sh armhf|armel|amd64 DIR
. "$(dirname "$(readlink -f "$0")")/common.sh"

[ "$#" = 2 ] || fail 'usage: sysroot.sh armhf|armel|amd64 DIR'
architecture=$1
wanted='libc6 libgcc-s1 libstdc++6 liblua5.2-0 liblua5.2-dev libreadline8 libtinfo6 lua5.2
libcli11-dev nlohmann-json3-dev libmd-dev libedit-dev libbsd-dev libncurses-dev libgtest-dev'

sysroot=$(realpath -m "$2")
claim "$sysroot"
[ "$(cat "$sysroot/.packages" 2>/dev/null)" != "$wanted" ] || exit 0

work=$scratch
mkdir -p "$work/lists/partial" "$work/cache/archives/partial"
: >"$work/status"
cat >"$work/apt.conf" <<END
APT::Architecture "$architecture";
APT::Architectures { "$architecture"; };
APT::Sandbox::User "";
APT::Update::Post-Invoke-Success "";
#clear APT::Update::Post-Invoke;
#clear APT::Update::Post-Invoke-Success;
Acquire::Languages "none";
Acquire::Retries "3";
Dir::State "$work";
Dir::State::status "$work/status";
Dir::State::lists "$work/lists";
Dir::Cache "$work/cache";
Dir::Log "$work";
END
export APT_CONFIG="$work/apt.conf"

# A source that cannot be read is no loss as long as the packages come.
fetch() {
  apt-get update || true
  # shellcheck disable=SC2086  # several names
  (cd "$work" && apt-get download $wanted)
}
doing="fetching Debian's packages for $architecture:" logged "$work/fetch.log" fetch || {
  ! cannot_reach "$work/fetch.log" || exit 75 # EX_TEMPFAIL
  cat "$work/fetch.log" >&2
  exit 1
}
for package in "$work"/*.deb; do
  dpkg-deb -x "$package" "$sysroot"
done
rm -rf "${sysroot:?}/etc" "${sysroot:?}/usr/share" "$sysroot"/usr/lib/*/gconv
printf '%s\n' "$wanted" >"$sysroot/.packages"

#!/bin/sh
# Builds the module for a device: stripped, installed below build-ARCH/device, its size printed.
#
#   device.sh armv7|armv5te [CMAKE-OPTION..]
set -eu
cd "$(dirname "$0")/.."

arch=${1-}
case $arch in
  armv7) multiarch=arm-linux-gnueabihf debian=armhf ;;
  armv5te) multiarch=arm-linux-gnueabi debian=armel ;;
  *) echo "usage: device.sh armv7|armv5te [CMAKE-OPTION..]" >&2; exit 2 ;;
esac
shift

missing=''
need() { command -v "$1" >/dev/null || missing="$missing $2"; }
need "$multiarch-g++" "g++-$multiarch"
need qemu-arm qemu-user
need cmake cmake
need ninja ninja-build
[ -z "$missing" ] || { echo "device.sh: install first: apt-get install$missing" >&2; exit 1; }

scripts/sysroot.sh "$debian" "build-sysroot/$debian"
cmake --preset "$arch" "$@"
cmake --build "build-$arch"
rm -rf "build-$arch/device"
cmake --install "build-$arch" --prefix "build-$arch/device" --strip
library=$(find "build-$arch/device" -name 'lib_talux_lua.so.1*' -type f)
"$multiarch-size" "$library"
echo "$library: $(stat -c %s "$library") bytes"

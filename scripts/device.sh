#!/bin/bash
# Builds the module for a device: stripped, installed below build-ARCH/device, its size printed. What is
# missing is installed (as root).
#
#   device.sh armv7|armv5te [--tests] [CMAKE-OPTION..]
#
# --tests   also builds examples and tests
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
cd "$project"

arch=${1-}
case $arch in
  armv7) multiarch=arm-linux-gnueabihf debian=armhf ;;
  armv5te) multiarch=arm-linux-gnueabi debian=armel ;;
  *) fail 'usage: device.sh armv7|armv5te [--tests] [CMAKE-OPTION..]' ;;
esac
shift

need "$multiarch-g++:g++-$multiarch" cmake:cmake ninja:ninja-build
tests=OFF
if [ "${1-}" = --tests ]; then
  need qemu-arm:qemu-user
  tests=ON
  shift
fi
scripts/sysroot.sh "$debian" "build-sysroot/$debian"
cmake --preset "$arch" -DTALUX_BUILD_TESTS="$tests" -DTALUX_BUILD_EXAMPLES="$tests" "$@"
cmake --build "build-$arch"
rm -rf "build-$arch/device"
for component in runtime program; do
  cmake --install "build-$arch" --prefix "build-$arch/device" --component "$component" --strip
done
library=build-$arch/device/lib/lib_talux_lua.so.1
"$multiarch-size" "$library"
echo "$library: $(stat -c %s "$library") bytes"

#!/bin/bash
# Builds the module for a device: stripped, installed below build-ARCH/device, its size printed. What is
# missing is installed (as root).
#
#   device.sh armv7|armv5te [--tests | --module-tests] [CMAKE-OPTION..]
#
# --tests          also builds examples and tests
# --module-tests   module, layers and those of their tests that depend on the processor, without the programs
. "$(dirname "$(readlink -f "$0")")/common.sh"
cd "$project"

arch=${1-}
case $arch in
  armv7) multiarch=arm-linux-gnueabihf debian=armhf ;;
  armv5te) multiarch=arm-linux-gnueabi debian=armel ;;
  *) fail 'usage: device.sh armv7|armv5te [--tests | --module-tests] [CMAKE-OPTION..]' ;;
esac
shift

need device "$arch"
tests=OFF targets=all components=(runtime program)
case ${1-} in --tests | --module-tests)
  need emulator
  tests=ON
  [ "$1" = --tests ] || targets=module_tests components=(runtime)
  shift
  ;;
esac
scripts/sysroot.sh "$debian" "$builds/build-sysroot/$debian"
claim "$builds/build-$arch"
cmake --preset "$arch" -B "$builds/build-$arch" -DTALUX_BUILD_TESTS="$tests" -DTALUX_BUILD_EXAMPLES="$tests" "$@"
cmake --build "$builds/build-$arch" --target "$targets"
rm -rf "$builds/build-$arch/device"
for component in "${components[@]}"; do
  cmake --install "$builds/build-$arch" --prefix "$builds/build-$arch/device" --component "$component" --strip
done
give_back "$builds/build-$arch"
library=$builds/build-$arch/device/lib/lib_talux_lua.so.1
"$multiarch-size" "$library"
echo "$library: $(stat -c %s "$library") bytes"

# What the ARM builds share: Debian's cross compilers, a folder with the board's own Lua and libraries
# (scripts/sysroot.sh), and the emulator that runs the tests against it.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${device_processor})
set(CMAKE_C_COMPILER ${device_multiarch}-gcc)
set(CMAKE_CXX_COMPILER ${device_multiarch}-g++)
set(CMAKE_LIBRARY_ARCHITECTURE ${device_multiarch})

set(device_builds ${CMAKE_CURRENT_LIST_DIR}/../..)
if(DEFINED ENV{TALUX_BUILD_DIR})
  set(device_builds $ENV{TALUX_BUILD_DIR})
endif()
get_filename_component(device_sysroot ${device_builds}/build-sysroot/${device_debian} ABSOLUTE)
foreach(language C CXX)
  set(CMAKE_${language}_FLAGS_INIT
    "${device_flags} -isystem ${device_sysroot}/usr/include/${device_multiarch}")
endforeach()

set(CMAKE_FIND_ROOT_PATH ${device_sysroot})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)

set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm -cpu ${device_emulated_cpu} -L ${device_sysroot})
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${device_debian})
set(LUA52_PROGRAM ${device_sysroot}/usr/bin/lua5.2 CACHE FILEPATH "The Lua interpreter that loads the module")

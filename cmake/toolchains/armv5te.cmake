# Boards with an ARM926 processor, no floating point unit.
set(device_multiarch arm-linux-gnueabi)
set(device_debian armel)
set(device_processor armv5tel)
set(device_flags "-march=armv5te -mfloat-abi=soft -marm")
set(device_emulated_cpu arm926)
include(${CMAKE_CURRENT_LIST_DIR}/device.cmake)

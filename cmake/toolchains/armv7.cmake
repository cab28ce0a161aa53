# Boards with an ARMv7 processor and hardware floating point.
set(device_multiarch arm-linux-gnueabihf)
set(device_debian armhf)
set(device_processor armv7l)
set(device_flags "-march=armv7-a+fp -mfloat-abi=hard -mthumb")
set(device_emulated_cpu cortex-a7)
include(${CMAKE_CURRENT_LIST_DIR}/device.cmake)

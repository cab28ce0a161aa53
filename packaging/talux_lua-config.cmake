# find_package(talux_lua) gives the target talux_lua::lib_talux_lua.
include(${CMAKE_CURRENT_LIST_DIR}/talux_lua.cmake)

# find_package(talux_lua) gives the targets talux_lua::lib_talux_lua and talux_lua::talux, the latter with the
# handles of talux/talux.hpp, which take C++20.
include(${CMAKE_CURRENT_LIST_DIR}/talux_lua.cmake)

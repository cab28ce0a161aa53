# What a device gets (component runtime) and what a developer gets besides (component development). The paths
# below the prefix are relative to each other, so that the tree works wherever it lies; /usr and /usr/local
# are where Lua looks by itself.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(talux_lua_dir ${CMAKE_INSTALL_LIBDIR}/lua/5.2)
set(talux_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/talux_lua)
set(talux_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/talux_lua)
set(talux_pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)

install(TARGETS lib_talux_lua EXPORT talux_lua
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  INCLUDES DESTINATION ${talux_include_dir})

# Where require finds the module.
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/lua)
file(CREATE_LINK ../../lib_talux_lua.so.1 ${PROJECT_BINARY_DIR}/lua/lib_talux_lua.so SYMBOLIC)
install(FILES ${PROJECT_BINARY_DIR}/lua/lib_talux_lua.so DESTINATION ${talux_lua_dir} COMPONENT runtime)

# The layer for scripts, where require looks for Lua.
install(DIRECTORY lua/ DESTINATION ${CMAKE_INSTALL_DATADIR}/lua/5.2 COMPONENT runtime)

foreach(folder ParamSystem MenuSystem)
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.h)
  install(FILES ${headers} DESTINATION ${talux_include_dir}/${folder})
endforeach()
install(FILES ${talux_generated}/ParamSystem/TALUX_ParamCounts.h DESTINATION ${talux_include_dir}/ParamSystem)
file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/talux/*.hpp)
install(FILES ${headers} DESTINATION ${talux_include_dir}/talux)
install(FILES src/talux_interpreter.h src/lib_talux_lua.h DESTINATION ${talux_include_dir}/src)

install(EXPORT talux_lua NAMESPACE talux_lua:: DESTINATION ${talux_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/talux_lua-config-version.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES packaging/talux_lua-config.cmake ${PROJECT_BINARY_DIR}/talux_lua-config-version.cmake
  DESTINATION ${talux_package_dir})

file(RELATIVE_PATH talux_prefix_from_pkgconfig /${talux_pkgconfig_dir} /)
configure_file(packaging/talux_lua.pc.in talux_lua.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/talux_lua.pc DESTINATION ${talux_pkgconfig_dir})

# Packages: one for the device, one for developers.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "talux")
set(CPACK_PACKAGE_CONTACT "talux developers <developers@talux.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME talux-lua)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libc6 (>= 2.34)")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS "lua5.2")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Relay controller parameters for Lua 5.2
 The module lib_talux_lua and the layer talux: scripts and programs read and write the parameters of the
 controller.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME talux-lua-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "talux-lua (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Relay controller parameters, headers
 What it takes to build programs against lib_talux_lua.")
include(CPack)

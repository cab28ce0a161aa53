# Debian packages: talux-lua for the device, talux-lua-dev for developers, talux with the program.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "talux")
set(CPACK_PACKAGE_CONTACT "talux developers <developers@talux.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(talux_packages runtime development)
if(TALUX_BUILD_PROGRAM)
  list(APPEND talux_packages program)
endif()
list(TRANSFORM talux_packages PREPEND deb_ OUTPUT_VARIABLE CPACK_COMPONENTS_ALL)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# A field of its own that this CPack does not know; it follows the one before.
set(CPACK_DEBIAN_PACKAGE_PRIORITY "optional\nMulti-Arch: same")

set(CPACK_DEBIAN_DEB_RUNTIME_PACKAGE_NAME talux-lua)
set(CPACK_DEBIAN_DEB_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEB_RUNTIME_PACKAGE_DEPENDS "libc6 (>= 2.34)")
set(CPACK_DEBIAN_DEB_RUNTIME_PACKAGE_SUGGESTS "lua5.2")
set(CPACK_DEBIAN_DEB_RUNTIME_PACKAGE_CONTROL_EXTRA
  "${PROJECT_SOURCE_DIR}/packaging/shlibs;${PROJECT_SOURCE_DIR}/packaging/triggers")
set(CPACK_COMPONENT_DEB_RUNTIME_DESCRIPTION "Relay controller parameters for Lua 5.2
The module lib_talux_lua and the layer talux over it, with which scripts and
programs read measured values and read and write the settings of the
controller.")

set(CPACK_DEBIAN_DEB_DEVELOPMENT_PACKAGE_NAME talux-lua-dev)
set(CPACK_DEBIAN_DEB_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEB_DEVELOPMENT_PACKAGE_DEPENDS "talux-lua (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEB_DEVELOPMENT_PACKAGE_SUGGESTS "bubblewrap")
set(CPACK_COMPONENT_DEB_DEVELOPMENT_DESCRIPTION "Relay controller parameters, headers and documentation
What it takes to build C and C++ programs against lib_talux_lua: headers, and
the files by which CMake and pkg-config find the library; pages about
commissioning, scripts and every parameter, with one page to search them all.")

# One on a machine is enough, of whatever architecture.
set(CPACK_DEBIAN_DEB_PROGRAM_PACKAGE_NAME talux)
set(CPACK_DEBIAN_DEB_PROGRAM_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_DEB_PROGRAM_PACKAGE_PRIORITY "optional\nMulti-Arch: foreign")
set(CPACK_DEBIAN_DEB_PROGRAM_PACKAGE_DEPENDS "libc6 (>= 2.36)")
set(CPACK_DEBIAN_DEB_PROGRAM_PACKAGE_SUGGESTS "talux-lua")
set(CPACK_COMPONENT_DEB_PROGRAM_DESCRIPTION "Relay controller settings: explain, check, compare, report
The program talux for the person at the relay and at the desk: what a
parameter means, what a file would change, what is pending, in what two relays
differ, a record to sign, a shell for the command language.")

# What every package says of itself; the same bytes on every machine.
find_program(GZIP_PROGRAM gzip REQUIRED)
execute_process(COMMAND ${GZIP_PROGRAM} -9nc ${PROJECT_SOURCE_DIR}/packaging/changelog
  OUTPUT_FILE ${PROJECT_BINARY_DIR}/changelog.gz COMMAND_ERROR_IS_FATAL ANY)
foreach(package IN LISTS talux_packages)
  string(TOUPPER ${package} upper)
  set(name ${CPACK_DEBIAN_DEB_${upper}_PACKAGE_NAME})
  install(FILES ${PROJECT_BINARY_DIR}/changelog.gz DESTINATION share/doc/${name}
    COMPONENT deb_${package} EXCLUDE_FROM_ALL)
  install(FILES LICENSE RENAME copyright
    DESTINATION share/doc/${name} COMPONENT deb_${package} EXCLUDE_FROM_ALL)
endforeach()
install(FILES packaging/lintian-overrides DESTINATION share/lintian/overrides RENAME talux-lua
  COMPONENT deb_runtime EXCLUDE_FROM_ALL)
install(FILES packaging/talux.lintian-overrides DESTINATION share/lintian/overrides RENAME talux
  COMPONENT deb_program EXCLUDE_FROM_ALL)
include(CPack)

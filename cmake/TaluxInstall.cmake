# What a device or a developer's machine gets.
include(GNUInstallDirs)

install(TARGETS lib_talux_lua
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)

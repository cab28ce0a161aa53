# What a device gets (component runtime) and what a developer gets besides (component development), in two
# layouts. The tree of cmake --install is for any prefix; the paths below it are relative to each other, so that it
# works wherever it lies, and /usr and /usr/local are where Lua looks by itself. The packages follow Debian: what
# depends on the processor lies in the folder of its architecture, so that those of several go together.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)
set(talux_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/talux_lua)

# Consumers get talux_lua::lib_talux_lua, and talux_lua::talux with the handles besides, by add_subdirectory too. A
# program that uses nothing of the C++ libraries does not ask for them: a device has none.
target_compile_features(lib_talux_lua INTERFACE cxx_std_17)
target_link_options(lib_talux_lua INTERFACE -static-libgcc -Wl,--as-needed)
add_library(talux_handles INTERFACE)
set_target_properties(talux_handles PROPERTIES EXPORT_NAME talux)
target_compile_features(talux_handles INTERFACE cxx_std_20)
target_link_libraries(talux_handles INTERFACE lib_talux_lua)
add_library(talux_lua::lib_talux_lua ALIAS lib_talux_lua)
add_library(talux_lua::talux ALIAS talux_handles)

# talux_install(COMPONENT TARGETS|FILES|..): what lies at the same place in both layouts.
function(talux_install component)
  install(${ARGN} COMPONENT ${component})
  install(${ARGN} COMPONENT deb_${component} EXCLUDE_FROM_ALL)
endfunction()

# A program and its manual page.
function(talux_install_program name)
  talux_install(program TARGETS ${name} DESTINATION ${CMAKE_INSTALL_BINDIR})
  set(page ${CMAKE_CURRENT_BINARY_DIR}/${name}.1.gz)
  execute_process(COMMAND ${GZIP_PROGRAM} -9nc ${PROJECT_SOURCE_DIR}/packaging/${name}.1
    OUTPUT_FILE ${page} COMMAND_ERROR_IS_FATAL ANY)
  talux_install(program FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endfunction()

# The library and the files that say where it is. Components of the packages have the prefix deb_.
function(talux_install_library prefix libdir exclude)
  set(package_dir ${libdir}/cmake/talux_lua)
  set(work ${PROJECT_BINARY_DIR}/${prefix}install)
  install(TARGETS lib_talux_lua talux_handles EXPORT ${prefix}talux_lua
    LIBRARY DESTINATION ${libdir} COMPONENT ${prefix}runtime ${exclude} NAMELINK_COMPONENT ${prefix}development
    INCLUDES DESTINATION ${talux_include_dir})

  # Where require finds the module.
  file(MAKE_DIRECTORY ${work})
  file(CREATE_LINK ../../lib_talux_lua.so.1 ${work}/lib_talux_lua.so SYMBOLIC)
  install(FILES ${work}/lib_talux_lua.so
    DESTINATION ${libdir}/lua/5.2 COMPONENT ${prefix}runtime ${exclude})

  install(EXPORT ${prefix}talux_lua FILE talux_lua.cmake NAMESPACE talux_lua::
    DESTINATION ${package_dir} COMPONENT ${prefix}development ${exclude})
  install(FILES packaging/talux_lua-config.cmake ${PROJECT_BINARY_DIR}/talux_lua-config-version.cmake
    DESTINATION ${package_dir} COMPONENT ${prefix}development ${exclude})

  file(RELATIVE_PATH talux_prefix_from_pkgconfig /${libdir}/pkgconfig /)
  set(talux_libdir ${libdir})
  configure_file(packaging/talux_lua.pc.in ${work}/talux_lua.pc @ONLY)
  install(FILES ${work}/talux_lua.pc
    DESTINATION ${libdir}/pkgconfig COMPONENT ${prefix}development ${exclude})
endfunction()

write_basic_package_version_file(${PROJECT_BINARY_DIR}/talux_lua-config-version.cmake
  COMPATIBILITY SameMajorVersion)
talux_install_library("" ${CMAKE_INSTALL_LIBDIR} "")
talux_install_library(deb_ lib/${CMAKE_LIBRARY_ARCHITECTURE} EXCLUDE_FROM_ALL)

# The layer for scripts, where require looks for Lua.
talux_install(runtime DIRECTORY lua/ DESTINATION ${CMAKE_INSTALL_DATADIR}/lua/5.2)
talux_install(runtime FILES ${talux_lua_tables} DESTINATION ${CMAKE_INSTALL_DATADIR}/lua/5.2/talux)

foreach(headers support/Types.h ParamSystem/*.h ParamSystem/rules/Rules.h MenuSystem/TALUX_*.h talux/*.hpp)
  file(GLOB files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${headers})
  get_filename_component(folder ${headers} DIRECTORY)
  talux_install(development FILES ${files} DESTINATION ${talux_include_dir}/${folder})
endforeach()
talux_install(development FILES ${talux_generated_headers} DESTINATION ${talux_include_dir}/talux)
talux_install(development FILES src/talux_interpreter.h src/talux_store.h src/lib_talux_lua.h
  DESTINATION ${talux_include_dir}/src)

# By which programs run on a PC.
talux_install(development PROGRAMS scripts/isolated.sh DESTINATION ${CMAKE_INSTALL_DATADIR}/talux-lua-dev/scripts)

# Pages and examples, beside each other as in the project so that their links hold.
set(talux_doc_dir ${CMAKE_INSTALL_DATADIR}/doc/talux-lua-dev)
talux_install(development FILES README.md DESTINATION ${talux_doc_dir})
talux_install(development DIRECTORY docs examples DESTINATION ${talux_doc_dir})
talux_install(development FILES ${talux_csv} DESTINATION ${talux_doc_dir}/docs/parameters)

include(TaluxPackages)

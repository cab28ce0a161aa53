# How everything is compiled: warnings are errors, hardened objects, the same bytes from every folder.
add_library(talux_compile INTERFACE)
target_compile_options(talux_compile INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
  -fstack-protector-strong
  -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
target_compile_definitions(talux_compile INTERFACE
  TALUX_PARAMCOUNTS_ASIDE $<$<CONFIG:Release>:_FORTIFY_SOURCE=2>)
target_include_directories(talux_compile INTERFACE ${talux_generated})
add_dependencies(talux_compile talux_dictionary)
if(TALUX_SANITIZE)
  target_compile_options(talux_compile INTERFACE
    -fsanitize=${TALUX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
    -Wno-maybe-uninitialized) # instrumented library code confuses it
  target_link_options(talux_compile INTERFACE -fsanitize=${TALUX_SANITIZE})
endif()

# What only the module itself gets: nothing exported but what is marked, no exceptions, no RTTI. It stays
# in the process once loaded (nodelete), since segments and locks are never torn down. Of the libraries only
# those that it uses are asked for, which leaves out the C++ ones: a device without them can load it.
add_library(talux_module INTERFACE)
target_compile_options(talux_module INTERFACE
  -fvisibility=hidden -fvisibility-inlines-hidden -fno-exceptions -fno-rtti)
target_link_options(talux_module INTERFACE
  -static-libgcc -Wl,--as-needed -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map
  -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack -Wl,-z,nodelete -Wl,--build-id=none)

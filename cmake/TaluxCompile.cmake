# How everything is compiled: warnings are errors, hardened objects, the same bytes from every folder.
add_library(talux_compile INTERFACE)
target_compile_options(talux_compile INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
  $<$<CXX_COMPILER_ID:Clang>:-Wno-overlength-strings> # the generated tables have them
  -fstack-protector-strong
  -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
target_compile_definitions(talux_compile INTERFACE $<$<CONFIG:Release>:_FORTIFY_SOURCE=2>)
target_include_directories(talux_compile INTERFACE ${talux_generated})
add_dependencies(talux_compile talux_dictionary)
if(TALUX_SANITIZE)
  target_compile_options(talux_compile INTERFACE
    -fsanitize=${TALUX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>) # instrumented library code confuses it
  target_link_options(talux_compile INTERFACE -fsanitize=${TALUX_SANITIZE})
  # The run-time library, which programs and the module share and Lua needs as its first one.
  set(talux_sanitizer libasan.so)
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    set(talux_sanitizer libclang_rt.asan-${CMAKE_SYSTEM_PROCESSOR}.so)
  endif()
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${talux_sanitizer}
    OUTPUT_VARIABLE talux_sanitizer OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang AND TALUX_SANITIZE MATCHES address)
    cmake_path(GET talux_sanitizer PARENT_PATH folder)
    target_link_options(talux_compile INTERFACE -shared-libsan -Wl,-rpath,${folder})
    target_compile_definitions(talux_compile INTERFACE __SANITIZE_ADDRESS__) # as g++ does
  endif()
  # For the source that is little more than the header of the option library: half a minute.
  set(talux_unwatched -fno-sanitize=all)
endif()

# For tests and tools, which need no speed: this compiles faster.
set(talux_quick -O1)
# For tests and sources with large headers, which take up to 400 MB. On a small machine several at once are too much: there
# the compiler collects its garbage as soon as 250 MB are near, which takes half as long again. And g++ 12 sees overlaps
# and overflows in "literal" + std::string that are not there (GCC bug 105651); the sanitizers would see those that are.
cmake_host_system_information(RESULT megabytes QUERY TOTAL_PHYSICAL_MEMORY)
cmake_host_system_information(RESULT processors QUERY NUMBER_OF_LOGICAL_CORES)
math(EXPR for_each_compiler "${megabytes} / (${processors} + 2)")
set(is_small FALSE)
if(for_each_compiler LESS 700)
  set(is_small TRUE)
endif()
option(TALUX_THRIFTY "No compiler takes more than 250 MB" ${is_small})
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  if(TALUX_THRIFTY)
    set(talux_thrifty --param=ggc-min-expand=10 --param=ggc-min-heapsize=145000)
    set(talux_thriftier --param=ggc-min-expand=5) # for the header of the option library
  endif()
  set(talux_false_alarms -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
endif()

# What only the module itself gets: nothing exported but what is marked, no exceptions, no RTTI. It stays
# in the process once loaded (nodelete), since segments and locks are never torn down. Of the libraries only
# those that it uses are asked for, which leaves out the C++ ones: a device without them can load it.
add_library(talux_module INTERFACE)
target_compile_options(talux_module INTERFACE
  -fvisibility=hidden -fvisibility-inlines-hidden -fno-exceptions -fno-rtti)
target_link_options(talux_module INTERFACE
  -static-libgcc -Wl,--as-needed -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map
  -Wl,--dynamic-list=${PROJECT_SOURCE_DIR}/cmake/shared.list
  -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack -Wl,-z,nodelete -Wl,--build-id=none)

# The compiler's remarks on how ARM once passed arguments are about no object that is linked here.
if(CMAKE_SYSTEM_PROCESSOR MATCHES arm)
  target_compile_options(talux_compile INTERFACE -Wno-psabi)
endif()

# Numbers are rounded to a double at every step, which the old floating-point unit of a PC does not do.
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "86")
  target_compile_options(talux_compile INTERFACE -msse2 -mfpmath=sse)
endif()

# Dates after 2038-01-19 need a time of 64 bits, which glibc has for 32-bit processors from 2.34 on.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  include(CheckCXXSourceCompiles)
  set(talux_wide_time -D_TIME_BITS=64 -D_FILE_OFFSET_BITS=64)
  set(CMAKE_REQUIRED_DEFINITIONS ${talux_wide_time})
  check_cxx_source_compiles("#include <ctime>\nstatic_assert(sizeof(std::time_t) == 8);\nint main() {}" TALUX_WIDE_TIME)
  unset(CMAKE_REQUIRED_DEFINITIONS)
  if(TALUX_WIDE_TIME)
    target_compile_options(talux_compile INTERFACE ${talux_wide_time})
  else()
    message(WARNING "The C library has no 64-bit time: the module takes dates up to 2038-01-19 only")
  endif()
endif()

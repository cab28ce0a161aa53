# The tables of the dictionary, made from catalogue and texts by a program that this machine runs. A row that breaks
# a rule ends the build. Sets talux_tables, the sources, below talux_generated.
set(talux_generated ${PROJECT_BINARY_DIR}/generated)
set(talux_tables
  ${talux_generated}/ParamSystem/dictionary/PropertyTable.cpp
  ${talux_generated}/ParamSystem/dictionary/SymbolTable.cpp
  ${talux_generated}/ParamSystem/texts/TextTable.cpp)
set(talux_generated_headers
  ${talux_generated}/ParamSystem/TALUX_ParamCounts.h
  ${talux_generated}/ParamSystem/dictionary/NamedIds.inc)
file(MAKE_DIRECTORY ${talux_generated}/ParamSystem/dictionary ${talux_generated}/ParamSystem/texts)

if(CMAKE_CROSSCOMPILING)
  find_program(TALUX_HOST_CXX NAMES c++ g++ clang++ DOC "The compiler for programs of this machine" REQUIRED)
  include(ExternalProject)
  set(folder ${PROJECT_BINARY_DIR}/generator)
  set(talux_generator ${folder}/dictionary_generator)
  ExternalProject_Add(talux_generator_build
    SOURCE_DIR ${PROJECT_SOURCE_DIR}/tools/generator
    BINARY_DIR ${folder}
    CMAKE_ARGS -DCMAKE_CXX_COMPILER=${TALUX_HOST_CXX} -DCMAKE_BUILD_TYPE=Release
    CONFIGURE_COMMAND ${CMAKE_COMMAND} -E env --unset=CXXFLAGS --unset=LDFLAGS
      ${CMAKE_COMMAND} -G ${CMAKE_GENERATOR} -S <SOURCE_DIR> -B <BINARY_DIR>
      -DCMAKE_CXX_COMPILER=${TALUX_HOST_CXX} -DCMAKE_BUILD_TYPE=Release
    BUILD_COMMAND ${CMAKE_COMMAND} --build <BINARY_DIR>
    BUILD_ALWAYS ON
    BUILD_BYPRODUCTS ${talux_generator}
    INSTALL_COMMAND "")
else()
  add_subdirectory(tools/generator)
  set(talux_generator dictionary_generator)
endif()

# What did not change keeps its time; the stamp tells that the generator has run.
add_custom_command(OUTPUT ${talux_generated}/stamp
  COMMAND ${talux_generator} ${talux_generated}
  COMMAND ${CMAKE_COMMAND} -E touch ${talux_generated}/stamp
  DEPENDS ${talux_generator}
  BYPRODUCTS ${talux_tables} ${talux_generated_headers}
  COMMENT "Making the tables of the dictionary"
  VERBATIM)
add_custom_target(talux_dictionary DEPENDS ${talux_generated}/stamp)

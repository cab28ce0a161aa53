# The tables of the dictionary, made from the rows of parameters by a program that this machine runs. A row that breaks
# a rule ends the build. Sets talux_tables, the sources, below talux_generated.
set(talux_generated ${PROJECT_BINARY_DIR}/generated)
set(talux_tables
  ${talux_generated}/ParamSystem/dictionary/PropertyTable.cpp
  ${talux_generated}/ParamSystem/dictionary/SymbolTable.cpp
  ${talux_generated}/ParamSystem/texts/TextTable.cpp)
set(talux_generated_headers
  ${talux_generated}/talux/parameters.hpp
  ${talux_generated}/talux/records.hpp
  ${talux_generated}/talux/dictionary_table.hpp
  ${talux_generated}/talux/note_table.hpp)
set(talux_lua_tables parameters parameters_de parameters_en records)
list(TRANSFORM talux_lua_tables REPLACE "(.+)" "${talux_generated}/lua/talux/\\1.lua")
set(talux_csv ${talux_generated}/docs/parameters/parameters.csv)
set(talux_model_table ${talux_generated}/tools/reference/ModelTable.cpp) # of the program talux

if(CMAKE_CROSSCOMPILING)
  find_program(TALUX_HOST_CXX NAMES c++ g++ clang++ DOC "The compiler for programs of this machine" REQUIRED)
  set(folder ${PROJECT_BINARY_DIR}/generator)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=CXXFLAGS --unset=LDFLAGS
    ${CMAKE_COMMAND} -G ${CMAKE_GENERATOR} -S ${PROJECT_SOURCE_DIR}/tools/generator -B ${folder}
      -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=${TALUX_HOST_CXX} -DCMAKE_UNITY_BUILD=${CMAKE_UNITY_BUILD}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  set(talux_generator ${folder}/dictionary_generator)
  add_custom_target(talux_generator_build COMMAND ${CMAKE_COMMAND} --build ${folder}
    BYPRODUCTS ${talux_generator} VERBATIM)
else()
  add_subdirectory(tools/generator)
  set(talux_generator dictionary_generator)
endif()

# What did not change keeps its time; the stamp shows that the generator has run.
add_custom_command(OUTPUT ${talux_generated}/stamp
  COMMAND ${talux_generator} ${talux_generated}
  COMMAND ${CMAKE_COMMAND} -E touch ${talux_generated}/stamp
  DEPENDS ${talux_generator}
  BYPRODUCTS ${talux_csv} ${talux_tables} ${talux_generated}/ParamSystem/dictionary/NamedIds.inc
    ${talux_generated_headers} ${talux_lua_tables} ${talux_model_table}
  COMMENT "Making the tables of the dictionary"
  VERBATIM)
add_custom_target(talux_dictionary DEPENDS ${talux_generated}/stamp)

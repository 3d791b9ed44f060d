# Fuzz targets: one source with LLVMFuzzerTestOneInput, built in two ways.

# esclavo_fuzz(NAME SOURCES file... LINK target... CORPUS folder [SCRIPTS folder...])
# With ESCLAVO_FUZZ (preset fuzz): a libFuzzer binary. Else, where tests are built: a program that hands every file of
# fuzz/corpus/<folder>, and of the named folders of tests/vbscript, to the target once, run as the CTest test NAME.
function(esclavo_fuzz name)
  cmake_parse_arguments(ARG "" "CORPUS" "SOURCES;LINK;SCRIPTS" ${ARGN})
  if(NOT ESCLAVO_FUZZ)
    list(APPEND ARG_SOURCES ${CMAKE_SOURCE_DIR}/fuzz/replay_main.cpp)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/fuzz)
  target_link_libraries(${name} PRIVATE project_options ${ARG_LINK})
  if(ESCLAVO_FUZZ)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  else()
    list(TRANSFORM ARG_SCRIPTS PREPEND ${CMAKE_SOURCE_DIR}/tests/vbscript/)
    add_test(NAME ${name} COMMAND ${name} ${CMAKE_SOURCE_DIR}/fuzz/corpus/${ARG_CORPUS} ${ARG_SCRIPTS})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
  endif()
endfunction()

# How every target of the project is built: language level, warnings, sanitizers, and the functions that declare
# libraries and tests. Folders declare their targets with these and nothing else. What is off here is how users build;
# the presets, which are the developers', switch it on.

option(BUILD_TESTING "build the tests" OFF)
option(ESCLAVO_WERROR "a warning ends the build" ${BUILD_TESTING})
option(ESCLAVO_BENCH "build the programs in bench/" OFF)
option(ESCLAVO_FUZZ "build the fuzz targets (needs clang)" OFF)
option(ESCLAVO_COVERAGE "count what the tests run" OFF)
set(ESCLAVO_SANITIZE "" CACHE STRING "sanitizers for every target, e.g. address,undefined")

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# Test programs are many and run for seconds: quick to build is worth more than quick to run.
set(esclavo_test_compile $<$<CONFIG:Release,RelWithDebInfo>:-O1>)
find_program(MOLD mold)
if(MOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(esclavo_test_link -fuse-ld=mold)
endif()

include(cmake/Hardening.cmake)

add_library(project_options INTERFACE)
target_compile_options(project_options INTERFACE -Wall -Wextra -Wconversion -Wshadow $<$<BOOL:${ESCLAVO_WERROR}>:-Werror>)
# GCC 12 sees overlapping copies in the library's own `"text" + std::string` (its bug 105651).
target_compile_options(project_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(project_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(ESCLAVO_SANITIZE)
  target_compile_options(project_options INTERFACE
    -fsanitize=${ESCLAVO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # The check of virtual tables opens a pipe to look at memory, and accuses falsely when no descriptor is left.
  target_compile_options(project_options INTERFACE -fno-sanitize=vptr)
  target_link_options(project_options INTERFACE -fsanitize=${ESCLAVO_SANITIZE})
  # More would take half as long again to build, and what it saves the tests is less; reports need lines, no variables.
  set(esclavo_test_compile)
  add_compile_options($<$<CONFIG:RelWithDebInfo>:-O1> $<$<CONFIG:RelWithDebInfo>:-g1>)
elseif(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
  esclavo_harden(project_options) # what is tested and measured is what users get
endif()
# The standard library checks its own preconditions where speed does not count.
if(ESCLAVO_SANITIZE OR CMAKE_BUILD_TYPE STREQUAL "Debug")
  target_compile_definitions(project_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()

if(ESCLAVO_COVERAGE)
  # Without inlining a line is counted where it stands; tests that fork or run in parallel add to the same counts.
  target_compile_options(project_options INTERFACE --coverage -fprofile-update=atomic -Og -fno-inline)
  target_link_options(project_options INTERFACE --coverage)
endif()

if(ESCLAVO_FUZZ)
  target_compile_options(project_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

set(esclavo_qt_definitions QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
# What would make the shared headers differ from test to test: the code's position, and where Qt says that a test lies.
add_library(test_options INTERFACE)
target_compile_options(test_options INTERFACE -fPIC -UQT_TESTCASE_BUILDDIR -UQT_TESTCASE_SOURCEDIR)

# esclavo_library(NAME SOURCES file... [LINK target...] [QT [CORE]])
# A static library. QT marks a windows target: it gets the meta-object compiler; a logic target never does. CORE: Qt
# without windows.
function(esclavo_library name)
  cmake_parse_arguments(ARG "QT;CORE" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC project_options ${ARG_LINK})
  if(ARG_QT)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PUBLIC $<IF:$<BOOL:${ARG_CORE}>,Qt6::Core,Qt6::Widgets>)
    target_compile_definitions(${name} PUBLIC ${esclavo_qt_definitions})
  endif()
endfunction()

# esclavo_test_headers(NAME HEADERS file... [LINK target...])
# What nearly every test includes, compiled once for all of them: most of a test's compiling is reading these.
function(esclavo_test_headers name)
  cmake_parse_arguments(ARG "" "" "HEADERS;LINK" ${ARGN})
  add_library(${name} OBJECT ${CMAKE_SOURCE_DIR}/tests/headers.cpp)
  target_link_libraries(${name} PRIVATE project_options test_options ${ARG_LINK})
  target_compile_options(${name} PRIVATE ${esclavo_test_compile})
  target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

# esclavo_test(NAME SOURCES file... [LINK target...] [QT] [TIMEOUT seconds])
# A test program run as one CTest test: GoogleTest for logic, Qt Test (offscreen) with QT.
function(esclavo_test name)
  cmake_parse_arguments(ARG "QT" "TIMEOUT" "SOURCES;LINK" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 600) # of a machine that does much else; alone they take seconds
  endif()
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_options(${name} PRIVATE ${esclavo_test_compile})
  target_link_options(${name} PRIVATE ${esclavo_test_link})
  target_link_libraries(${name} PRIVATE project_options test_options ${ARG_LINK})
  if(ARG_QT)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PRIVATE Qt6::Widgets Qt6::Test)
    target_precompile_headers(${name} REUSE_FROM test_qt_headers)
  else()
    target_link_libraries(${name} PRIVATE locale_main)
    target_precompile_headers(${name} REUSE_FROM test_headers)
  endif()
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

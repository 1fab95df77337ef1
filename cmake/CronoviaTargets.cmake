# SPDX-License-Identifier: GPL-3.0-or-later
# Targets of this project: one interface target that carries the compiler settings, one static library per room,
# one executable per test room.

add_library(cronovia_settings INTERFACE)
target_compile_features(cronovia_settings INTERFACE cxx_std_20)
target_include_directories(cronovia_settings INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_definitions(
  cronovia_settings
  INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)
target_compile_options(
  cronovia_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wold-style-cast
                              -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
                              $<$<BOOL:${CRONOVIA_WERROR}>:-Werror>)
# GCC 12 sees an overlap in "literal" + std::string that is not there (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(cronovia_settings INTERFACE -Wno-restrict)
endif()
if(CRONOVIA_SANITIZE)
  target_compile_options(cronovia_settings INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                     -fno-omit-frame-pointer)
  target_link_options(cronovia_settings INTERFACE -fsanitize=address,undefined)
endif()
if(CRONOVIA_FUZZ)
  # What libFuzzer is led by; the fuzz targets themselves add its main function.
  target_compile_options(cronovia_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(CRONOVIA_COVERAGE)
  target_compile_options(cronovia_settings INTERFACE --coverage)
  target_link_options(cronovia_settings INTERFACE --coverage)
endif()

# Tests are linked often, and thrown away: with the quickest linker there is. What people get has the compiler's own.
if(CRONOVIA_TESTS)
  find_program(CRONOVIA_LINKER NAMES ld.mold ld.gold)
  if(CRONOVIA_LINKER)
    cmake_path(GET CRONOVIA_LINKER EXTENSION LAST_ONLY quick_linker)
    string(REPLACE "." "-fuse-ld=" quick_linker "${quick_linker}")
    target_link_options(cronovia_settings INTERFACE "${quick_linker}")
  endif()
endif()

# Most of the time goes into headers of Qt and of the tests: files compiled together read them once. Therefore names in
# anonymous namespaces are told apart within a folder. A large room makes two units or more, so that no core waits.
set(CRONOVIA_UNIT_FILES 9)
function(cronovia_join_files target)
  if(CRONOVIA_UNITY)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${CRONOVIA_UNIT_FILES})
  endif()
endfunction()

# cronovia_room(<name> SOURCES <file>... [LINKS <target>...]): the static library cronovia_<name>. What a room links is
# what it may call: an arrow against the direction does not link.
function(cronovia_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
  add_library(cronovia_${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(cronovia_${name} PUBLIC cronovia_settings ${ROOM_LINKS})
  cronovia_join_files(cronovia_${name})
endfunction()

# cronovia_test(<name> SOURCES <file>... LINKS <target>...): the test executable <name>_test, its cases known to ctest.
function(cronovia_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name}_test ${TEST_SOURCES})
  target_include_directories(${name}_test PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  target_compile_definitions(
    ${name}_test PRIVATE CRONOVIA_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data"
                         CRONOVIA_EXAMPLES="${CMAKE_SOURCE_DIR}/examples")
  target_link_libraries(${name}_test PRIVATE ${TEST_LINKS} GTest::gmock GTest::gtest_main)
  cronovia_join_files(${name}_test)
  gtest_discover_tests(${name}_test NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

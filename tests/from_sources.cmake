# The programs of the tests where GoogleTest is not installed for what they are built for: it is compiled from Debian's
# sources. Sets `tests`, their folder; takes VONKK3_LIBRARY_UNDER_TEST and VONKK3_SOURCES_UNDER_TEST, the library's path
# and the tree's as the programs see them.
set(tests ${CMAKE_CURRENT_LIST_DIR})

# Header-only. Its own folder, for the one that it is installed in has this machine's headers, too.
find_path(VONKK3_CLI11_DIR CLI/CLI.hpp REQUIRED NO_CMAKE_FIND_ROOT_PATH)
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/cli11)
file(CREATE_LINK ${VONKK3_CLI11_DIR}/CLI ${CMAKE_CURRENT_BINARY_DIR}/cli11/CLI SYMBOLIC)

find_path(VONKK3_GTEST_SOURCES googletest/CMakeLists.txt PATHS /usr/src/googletest REQUIRED NO_CMAKE_FIND_ROOT_PATH)
mark_as_advanced(VONKK3_CLI11_DIR VONKK3_GTEST_SOURCES)
set(BUILD_GMOCK OFF CACHE BOOL "")
set(INSTALL_GTEST OFF CACHE BOOL "")
set(errors ${CMAKE_COMPILE_WARNING_AS_ERROR})
set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
add_subdirectory(${VONKK3_GTEST_SOURCES} ${CMAKE_CURRENT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
set(CMAKE_COMPILE_WARNING_AS_ERROR ${errors})

file(GLOB model_sources CONFIGURE_DEPENDS ${tests}/model/*.cpp)
add_library(model STATIC ${model_sources})
target_include_directories(model PUBLIC ${tests})
target_link_libraries(model PRIVATE vonkk3_warnings vonkk3_arithmetic)

file(GLOB support_sources CONFIGURE_DEPENDS ${tests}/support/*.cpp)
add_library(support STATIC ${support_sources})
target_compile_definitions(support PUBLIC VONKK3_LIBRARY="${VONKK3_LIBRARY_UNDER_TEST}"
                           VONKK3_SOURCE_FOLDER="${VONKK3_SOURCES_UNDER_TEST}")
target_link_libraries(support PUBLIC model vonkk3_catalogue vonkk3_arithmetic gtest PRIVATE vonkk3_warnings)

add_library(steered STATIC ${tests}/fuzz/steered.cpp)
target_link_libraries(steered PUBLIC support PRIVATE vonkk3_warnings)

foreach(program compare bits threads fuzz_corpus)
  if(program STREQUAL "fuzz_corpus")
    add_executable(fuzz_corpus ${tests}/fuzz/corpus_main.cpp)
    target_link_libraries(fuzz_corpus PRIVATE steered)
  else()
    add_executable(${program} ${tests}/${program}_main.cpp)
  endif()
  target_include_directories(${program} SYSTEM PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/cli11)
  target_link_libraries(${program} PRIVATE support vonkk3_warnings)
endforeach()

file(GLOB test_sources CONFIGURE_DEPENDS ${tests}/*_test.cpp)
list(REMOVE_ITEM test_sources ${tests}/least_squares_test.cpp)
add_executable(vonkk3_tests ${test_sources})
add_dependencies(vonkk3_tests vonkk3)
target_link_libraries(vonkk3_tests PRIVATE support vonkk3::vonkk3 vonkk3_warnings gtest_main)
target_compile_options(vonkk3_tests PRIVATE -O0) # it is compiled for longer than it runs
target_precompile_headers(vonkk3_tests PRIVATE <sstream> <support/family_test.h>)
set(VONKK3_RANDOM_CALLS 100 CACHE STRING "Random calls per export in the test `random`")

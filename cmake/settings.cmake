# Compiler settings, each in one place with its reason.

# A compiler cache, where one is installed; -DCMAKE_CXX_COMPILER_LAUNCHER= leaves it out. It must be told that precompiled
# headers may be cached, and where the tree is, so that another checkout finds the same.
find_program(VONKK3_CCACHE ccache)
mark_as_advanced(VONKK3_CCACHE)
if(VONKK3_CCACHE AND PROJECT_IS_TOP_LEVEL)
  # It compiles nothing where it cannot write its cache.
  set(probe ${CMAKE_BINARY_DIR}/CMakeFiles/ccache_probe.c)
  file(WRITE ${probe} "int probe;\n")
  execute_process(COMMAND ${VONKK3_CCACHE} ${CMAKE_C_COMPILER} -c ${probe} -o ${probe}.o RESULT_VARIABLE ccache_fails
                  OUTPUT_QUIET ERROR_QUIET)
endif()
if(VONKK3_CCACHE AND PROJECT_IS_TOP_LEVEL AND NOT ccache_fails)
  foreach(language C CXX)
    if(NOT DEFINED CMAKE_${language}_COMPILER_LAUNCHER)
      set(CMAKE_${language}_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
          CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} ${VONKK3_CCACHE})
    endif()
  endforeach()
endif()

# Every compiler sees the same warnings. They are errors in the presets that developers and tests use.
add_library(vonkk3_warnings INTERFACE)
target_compile_options(vonkk3_warnings INTERFACE -Wall -Wextra)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(vonkk3_warnings INTERFACE -Wno-restrict) # GCC 12 suspects the library's own std::string concatenation
endif()

# What the bits of the results hang on, at every instruction set:
#   no contraction       a product and a sum round twice; a fused operation would round once
#   rounding-mode aware  the rounding mode is the caller's, so nothing may be folded as if it were "to nearest"
#   SIMD arithmetic      Real32 and Real64 never go through the 80-bit unit unless the source says so
# -ffast-math and its parts are never given, and -fno-math-errno changes no result.
add_library(vonkk3_rounding INTERFACE)
target_compile_options(vonkk3_rounding INTERFACE -mfpmath=sse -ffp-contract=off -frounding-math -fno-math-errno)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  target_compile_options(vonkk3_rounding INTERFACE -Wno-unused-command-line-argument)
endif()

# The same for what every x86-64 processor runs.
add_library(vonkk3_arithmetic INTERFACE)
target_link_libraries(vonkk3_arithmetic INTERFACE vonkk3_rounding)
target_compile_options(vonkk3_arithmetic INTERFACE -march=x86-64)

# Functions and loops begin at cache lines: placement alone moves short loops by up to 1.8 times. Benchmarks give their
# peers the same.
add_library(vonkk3_placement INTERFACE)
target_compile_options(vonkk3_placement INTERFACE -falign-functions=64 -falign-loops=64)

if(VONKK3_SANITIZE)
  # Exports are called through one generic function type by the tests.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options(-fno-sanitize=function)
  endif()
endif()

# The instruction sets that the library is built for: x86-64 is vonkk3.so itself, the others are installed below
# glibc-hwcaps, where the C library's loader takes the best one that the processor has.
set(VONKK3_ALL_LEVELS x86-64 x86-64-v3 x86-64-v4)
if(PROJECT_IS_TOP_LEVEL AND CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT VONKK3_SANITIZE AND CMAKE_SYSTEM_NAME STREQUAL "Linux"
   AND CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
  set(default_levels ${VONKK3_ALL_LEVELS})
else()
  set(default_levels x86-64)
endif()
set(VONKK3_LEVELS "${default_levels}" CACHE STRING "Instruction sets to build the library for: x86-64 and any of ${VONKK3_ALL_LEVELS}")
set(VONKK3_SINGLE_LEVEL "" CACHE STRING "One instruction set for one machine, as -march names it; vonkk3.so is built for it alone")
if(VONKK3_SINGLE_LEVEL)
  set(VONKK3_BASE_LEVEL ${VONKK3_SINGLE_LEVEL})
  set(VONKK3_WIDE_LEVELS "")
else()
  foreach(level ${VONKK3_LEVELS})
    if(NOT level IN_LIST VONKK3_ALL_LEVELS)
      message(FATAL_ERROR "VONKK3_LEVELS: there is no level ${level}; there are ${VONKK3_ALL_LEVELS}. "
                          "For another instruction set give VONKK3_SINGLE_LEVEL.")
    endif()
  endforeach()
  if(NOT x86-64 IN_LIST VONKK3_LEVELS)
    message(FATAL_ERROR "VONKK3_LEVELS: x86-64 is missing, which vonkk3.so itself is built for. "
                        "For another one alone give VONKK3_SINGLE_LEVEL.")
  endif()
  set(VONKK3_BASE_LEVEL x86-64)
  set(VONKK3_WIDE_LEVELS ${VONKK3_LEVELS})
  list(REMOVE_ITEM VONKK3_WIDE_LEVELS x86-64)
endif()

set(CMAKE_CXX_FLAGS_RELEASE "-O3")
set(CMAKE_C_FLAGS_RELEASE "-O3")

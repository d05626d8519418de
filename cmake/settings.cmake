# Compiler settings, each in one place with its reason.

# Every compiler sees the same warnings, and a warning is an error.
add_library(warnings INTERFACE)
target_compile_options(warnings INTERFACE -Wall -Wextra -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(warnings INTERFACE -Wno-restrict) # GCC 12 suspects the library's own std::string concatenation
endif()

# What the bits of the results hang on:
#   no contraction       a product and a sum round twice; a fused operation would round once
#   rounding-mode aware  the rounding mode is the caller's, so nothing may be folded as if it were "to nearest"
#   baseline x86-64      Real32 works in the four-lane instructions that every such processor has
# -ffast-math and its parts are never given, and -fno-math-errno changes no result.
add_library(arithmetic INTERFACE)
target_compile_options(arithmetic INTERFACE -march=x86-64 -mfpmath=sse -ffp-contract=off -frounding-math
                       -fno-math-errno)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  target_compile_options(arithmetic INTERFACE -Wno-unused-command-line-argument)
endif()

# Functions and loops begin at cache lines: placement alone moves short loops by up to 1.8 times. Benchmarks give their
# peers the same.
add_library(placement INTERFACE)
target_compile_options(placement INTERFACE -falign-functions=64 -falign-loops=64)

if(VONKK3_SANITIZE)
  # Exports are called through one generic function type by the tests.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options(-fno-sanitize=function)
  endif()
endif()

set(CMAKE_CXX_FLAGS_RELEASE "-O3")
set(CMAKE_C_FLAGS_RELEASE "-O3")

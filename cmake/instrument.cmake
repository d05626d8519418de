# The library with what a tool puts into its code: counters of coverage, or checks of threads. Such code calls into the
# program that loads the library, which therefore no longer stands alone.
set(VONKK3_INSTRUMENT "" CACHE STRING "Compiler options that instrument the library")
option(VONKK3_FUZZ "Build the coverage-guided search, which takes Clang" OFF)
if(VONKK3_FUZZ)
  list(APPEND VONKK3_INSTRUMENT -fsanitize-coverage=inline-8bit-counters,pc-table -gline-tables-only)
endif()
if(VONKK3_INSTRUMENT)
  get_target_property(link_options vonkk3 LINK_OPTIONS)
  list(REMOVE_ITEM link_options -nostdlib -Wl,-z,defs)
  set_target_properties(vonkk3 PROPERTIES LINK_OPTIONS "${link_options}")
  # Coverage of what is in a precompiled header is lost.
  set_target_properties(vonkk3 PROPERTIES DISABLE_PRECOMPILE_HEADERS ON)
  target_compile_options(vonkk3 PRIVATE ${VONKK3_INSTRUMENT})
  target_link_options(vonkk3 PRIVATE ${VONKK3_INSTRUMENT})
endif()

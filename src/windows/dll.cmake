# The library as vonkk3.dll in a folder, with its import library vonkk3.lib, which linkers of all makers read.
#
# LLVM's linker makes it: GNU's leaves an empty import table and writable sections behind. No start-up code and no entry
# point: nothing runs when the DLL is attached. What is exported stands in the list vonkk3.def alone.
find_program(VONKK3_LLD_LINK lld-link REQUIRED)
mark_as_advanced(VONKK3_LLD_LINK)

set(vonkk3_def ${PROJECT_BINARY_DIR}/vonkk3.def)
add_custom_command(OUTPUT ${vonkk3_def}
  COMMAND ${CMAKE_COMMAND} -DEXPORTS=${generated}/exports.txt -DDEF=${vonkk3_def} -P ${CMAKE_CURRENT_SOURCE_DIR}/windows/def.cmake
  DEPENDS ${generated}/stamp ${CMAKE_CURRENT_SOURCE_DIR}/windows/def.cmake VERBATIM)

set(vonkk3_resource ${CMAKE_CURRENT_BINARY_DIR}/vonkk3.res)
add_custom_command(OUTPUT ${vonkk3_resource}
  COMMAND ${CMAKE_RC_COMPILER} --output-format=res --input=${CMAKE_CURRENT_SOURCE_DIR}/windows/vonkk3.rc --output=${vonkk3_resource}
  DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/windows/vonkk3.rc VERBATIM)
add_custom_target(vonkk3_windows_inputs DEPENDS ${vonkk3_def} ${vonkk3_resource})
add_dependencies(vonkk3_windows_inputs vonkk3_generated)

function(add_vonkk3 target level folder)
  add_vonkk3_of_kind(OBJECT ${target}_objects ${level} ${stubs64})
  target_sources(${target}_objects PRIVATE windows/stack_probe.cpp)
  # Visibility is another system's: there the headers' prototypes are the exports, here the list is.
  target_compile_options(${target}_objects PRIVATE -Wno-attributes)
  if(NOT level STREQUAL "x86-64")
    # The Windows convention aligns the stack to 16 bytes, and GCC cannot align it further there, but takes registers of
    # 32 and 64 bytes on it for aligned. Debian's stores them by instructions that do not mind; others' are made to by the
    # assembler. A test reads off the DLL that none is left that minds.
    target_compile_options(${target}_objects PRIVATE -Wa,-muse-unaligned-vector-move)
  endif()
  file(MAKE_DIRECTORY ${folder})
  set(objects "$<FILTER:$<TARGET_OBJECTS:${target}_objects>,INCLUDE,[.]obj$>") # a precompiled header is among them
  add_custom_command(OUTPUT ${folder}/vonkk3.dll BYPRODUCTS ${folder}/vonkk3.lib
    COMMAND ${VONKK3_LLD_LINK} -lldmingw -dll -noentry -nodefaultlib -machine:x64 -timestamp:0 -def:${vonkk3_def} ${vonkk3_resource}
            -out:${folder}/vonkk3.dll -implib:${folder}/vonkk3.lib ${objects}
    DEPENDS ${target}_objects ${objects} ${vonkk3_def} ${vonkk3_resource} vonkk3_windows_inputs
    COMMENT "Linking ${folder}/vonkk3.dll"
    COMMAND_EXPAND_LISTS VERBATIM)
  add_custom_target(${target} ALL DEPENDS ${folder}/vonkk3.dll)
endfunction()

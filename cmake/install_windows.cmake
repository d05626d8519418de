# cmake --install of a build for Windows: the folder that scripts/windows.sh packs. Headers, what linkers read, the DLL for
# each instruction set, and an example.
install(DIRECTORY include/ DESTINATION include FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")
install(FILES ${PROJECT_BINARY_DIR}/vonkk3.dll DESTINATION bin)
foreach(level ${VONKK3_WIDE_LEVELS})
  install(FILES ${PROJECT_BINARY_DIR}/levels/${level}/vonkk3.dll DESTINATION bin/${level})
endforeach()
install(FILES ${PROJECT_BINARY_DIR}/vonkk3.lib ${PROJECT_BINARY_DIR}/vonkk3.def DESTINATION lib)
install(DIRECTORY examples/windows/ DESTINATION example)
install(FILES LICENSE DESTINATION . RENAME LICENSE.txt)
install(FILES docs/site/pages/windows.md DESTINATION . RENAME README.txt)

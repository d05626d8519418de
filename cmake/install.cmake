# cmake --install: library at all levels, with its links, headers, CMake package, pkg-config file, man pages,
# the Fortran modules as sources, and the catalogue as data.
include(CMakePackageConfigHelpers)

install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")
install(TARGETS vonkk3 LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
if(VONKK3_STATIC)
  install(TARGETS vonkk3_static ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
endif()
install(FILES ${PROJECT_BINARY_DIR}/libvonkk3.so.4 ${PROJECT_BINARY_DIR}/libvonkk3.so
        DESTINATION ${CMAKE_INSTALL_LIBDIR})
# The loader looks for libvonkk3.so.4 below glibc-hwcaps first; the name that one links by is the baseline's alone.
foreach(level ${VONKK3_WIDE_LEVELS})
  install(TARGETS vonkk3-${level} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/glibc-hwcaps/${level})
  install(FILES ${PROJECT_BINARY_DIR}/levels/${level}/libvonkk3.so.4
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/glibc-hwcaps/${level})
endforeach()
install(FILES ${PROJECT_BINARY_DIR}/src/generated/functions.json docs/functions.schema.json DESTINATION ${CMAKE_INSTALL_DATADIR}/vonkk3)
install(FILES README.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/reference DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs)
install(FILES docs/layouts.svg docs/speed.svg docs/python.svg DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
# The Fortran modules as sources, since a module file is for one compiler alone, in the order in which they are compiled.
set(VONKK3_FORTRAN_ORDER types views vector matrix product copy lu cholesky qr s2_32f s2_64f)
list(TRANSFORM VONKK3_FORTRAN_ORDER PREPEND vonkk3_)
list(APPEND VONKK3_FORTRAN_ORDER vonkk3)
list(TRANSFORM VONKK3_FORTRAN_ORDER APPEND .f90)
install(DIRECTORY fortran/ ${PROJECT_BINARY_DIR}/src/generated/fortran/ DESTINATION ${CMAKE_INSTALL_DATADIR}/vonkk3/fortran
        FILES_MATCHING PATTERN "*.f90" PATTERN "*.inc")
install(DIRECTORY ${PROJECT_BINARY_DIR}/src/generated/man3 DESTINATION ${CMAKE_INSTALL_MANDIR})
# The documentation, if scripts/docs.sh has built it.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/site/ DESTINATION ${CMAKE_INSTALL_DOCDIR} OPTIONAL)

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/vonkk3)
configure_package_config_file(cmake/vonkk3-config.cmake.in ${PROJECT_BINARY_DIR}/vonkk3-config.cmake
                              INSTALL_DESTINATION ${package}
                              PATH_VARS CMAKE_INSTALL_INCLUDEDIR CMAKE_INSTALL_LIBDIR CMAKE_INSTALL_DATADIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/vonkk3-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/vonkk3-config.cmake ${PROJECT_BINARY_DIR}/vonkk3-config-version.cmake
        DESTINATION ${package})

# Paths relative to the file itself, so that an installed tree may be moved.
file(RELATIVE_PATH VONKK3_PREFIX_FROM_PKGCONFIG /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
list(TRANSFORM VONKK3_FORTRAN_ORDER PREPEND "\${fortrandir}/" OUTPUT_VARIABLE VONKK3_FORTRAN_WORDS)
list(JOIN VONKK3_FORTRAN_WORDS " " VONKK3_FORTRAN_WORDS)
configure_file(cmake/vonkk3.pc.in ${PROJECT_BINARY_DIR}/vonkk3.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vonkk3.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# SPDX-License-Identifier: GPL-3.0-or-later
# What `cmake --install` puts where, and the Debian package that `cpack` makes of it.
include(GNUInstallDirs)

# To be found in the package, and in the changelog in it. The host is one that nobody can have.
set(maintainer "ZEP developers <developers@zep.invalid>")

# The manual page names the commands of the program that was built. It and the changelog are
# compressed as Debian wants it, with no time in them, so that the same sources give the same bytes.
set(manual ${PROJECT_BINARY_DIR}/docs/zep.1)
set(changelog ${PROJECT_BINARY_DIR}/docs/changelog)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/docs)
add_custom_command(OUTPUT ${manual} ${manual}.gz
  COMMAND ${PROJECT_SOURCE_DIR}/tools/manual.sh $<TARGET_FILE:zep>
          ${PROJECT_SOURCE_DIR}/docs/zep.1.in ${manual}
  COMMAND gzip -9 --no-name --keep --force ${manual}
  DEPENDS zep docs/zep.1.in tools/manual.sh
  COMMENT "Writing the manual page"
  VERBATIM)
add_custom_command(OUTPUT ${changelog} ${changelog}.gz
  COMMAND ${PROJECT_SOURCE_DIR}/tools/changelog.sh
          ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${maintainer} ${changelog}
  COMMAND gzip -9 --no-name --keep --force ${changelog}
  DEPENDS CHANGELOG.md tools/changelog.sh
  COMMENT "Writing the changelog"
  VERBATIM)
add_custom_target(manual ALL DEPENDS ${manual}.gz ${changelog}.gz)

install(TARGETS zep)
install(FILES ${manual}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES README.md docs/guide.md tools/copyright ${changelog}.gz
        DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR}
        FILES_MATCHING PATTERN *.zep PATTERN *.txt PATTERN README.md)
install(FILES tools/zep.bash-completion
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME zep)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zep)
set(CPACK_PACKAGE_VENDOR "ZEP developers")
set(CPACK_PACKAGE_CONTACT ${maintainer})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/tools/package_permissions.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION math)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"ZEP computes over a prime field F_p, p up to 251: order ideal, Groebner basis
and separators (Buchberger-Moeller), Hilbert function and its invariants, the
Cayley-Bacharach and Gorenstein properties, beta matrix and uniformity, minimal
generators, socle and type, the canonical module, the linear strands of
resolutions. It is made for algebraic geometers and coding theorists, at a
terminal or with scripts on its standard input.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)

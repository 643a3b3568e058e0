# Where an installed Tamo lies, and the .deb that cpack makes of it. The executable and everything that it looks for beside
# itself share one folder; a link puts it on the path.
include(GNUInstallDirs)
set(program_folder lib/tamo)
install(TARGETS tamo tamo-engine RUNTIME DESTINATION ${program_folder})
# A folder deeper than the loader of libraries looks.
install(TARGETS tamo_charts LIBRARY DESTINATION ${program_folder}/modules)
install(FILES ${PROJECT_SOURCE_DIR}/data/Blank.pdf ${PROJECT_SOURCE_DIR}/data/About.pdf DESTINATION ${program_folder})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/data/Docs ${PROJECT_SOURCE_DIR}/data/Sample DESTINATION ${program_folder})
install(FILES ${PROJECT_SOURCE_DIR}/data/desktop/tamo.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/data/desktop/tamo.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size 16 22 24 32 48 64 128 256)
  install(FILES ${PROJECT_SOURCE_DIR}/data/desktop/icons/tamo-${size}.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps RENAME tamo.png)
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/data/desktop/icons DESTINATION ${program_folder}/desktop)
install(FILES ${PROJECT_SOURCE_DIR}/data/desktop/tamo.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
# The documents, with the pictures and pages that they point to.
install(FILES ${PROJECT_SOURCE_DIR}/THIRD-PARTY.md ${PROJECT_SOURCE_DIR}/data/desktop/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
# The license stands in the file that each package has for it.
file(READ ${PROJECT_SOURCE_DIR}/README.md readme)
string(REPLACE "(LICENSE)" "(copyright)" readme "${readme}")
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/packaged/README.md CONTENT "${readme}" @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/packaged/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${CMAKE_INSTALL_DOCDIR})
# Compressed without a time in it, so that two builds are equal.
find_program(GZIP gzip REQUIRED)
function(install_compressed source folder name)
  set(made ${CMAKE_BINARY_DIR}/compressed/${name}.gz)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/compressed)
  execute_process(COMMAND ${GZIP} -9nc ${PROJECT_SOURCE_DIR}/${source} OUTPUT_FILE ${made} COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${made} DESTINATION ${folder})
endfunction()
install_compressed(CHANGELOG.md ${CMAKE_INSTALL_DOCDIR} changelog)
install_compressed(data/desktop/changelog ${CMAKE_INSTALL_DOCDIR} changelog.Debian)
install_compressed(data/desktop/tamo.1 ${CMAKE_INSTALL_MANDIR}/man1 tamo.1)
install(CODE "
  file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
  file(CREATE_LINK ../${program_folder}/tamo \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/tamo\" SYMBOLIC)")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tamo)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Tamo maintainers <maintainers@tamo.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Desktop estimating for construction subcontractors")
set(CPACK_PACKAGE_DESCRIPTION "Keeps a library of priced building systems, takes off quantities per bid, also
on PDF plans, and shows the bid as recap sheets, quantities, a bill of
material, a breakdown and crew copies, in windows or from the command line.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The library for workbooks is loaded when one is written; nothing else names it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core, libxlsxwriter4, qt6-qpa-plugins")
set(CPACK_STRIP_FILES ON)
include(CPack)

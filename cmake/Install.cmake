# What an installation holds, and the Debian package made of it (cpack -G DEB).

include(GNUInstallDirs)

install(TARGETS orlo-console RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

# A program folder is a copy of this folder, made for each user at the first start.
file(GLOB ruleFiles "${CMAKE_SOURCE_DIR}/share/*.CFG")
install(FILES ${ruleFiles} DESTINATION "${CMAKE_INSTALL_DATADIR}/orlo")
install(DIRECTORY share/Help DESTINATION "${CMAKE_INSTALL_DATADIR}/orlo")

install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" RENAME copyright)
install(FILES CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DOCDIR}")

if(TARGET orlo)
  install(TARGETS orlo RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

if(UNIX AND NOT APPLE)
  install(FILES share/man/orlo-console.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
  if(TARGET orlo)
    install(FILES share/man/orlo.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
    install(FILES share/applications/orlo.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
    install(FILES share/metainfo/orlo.metainfo.xml DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
    install(FILES share/icons/orlo.svg DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
  endif()
endif()

set(CPACK_PACKAGE_NAME orlo)
set(CPACK_PACKAGE_VENDOR "The Orlo developers")
set(CPACK_PACKAGE_CONTACT "The Orlo developers <orlo@orlo.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Planner of the AI air traffic of a flight simulator")
set(CPACK_PACKAGE_DESCRIPTION
  "Orlo opens the text files from which the AI traffic of a 2002-era flight simulator is compiled, gives all flights new
aircraft by rules of airline and region, finds and corrects wrong levels and times, and edits single flights. With a
desktop program, a console program for scripts, rule files for the whole world, and a manual.")
set(CPACK_RESOURCE_FILE_LICENSE "${CMAKE_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_GENERATOR "TGZ")
if(UNIX AND NOT APPLE)
  set(CPACK_GENERATOR "DEB")
  set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
include(CPack)

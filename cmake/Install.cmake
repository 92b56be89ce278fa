# What an installation holds, and the Debian package made of it (cpack -G DEB).

include(GNUInstallDirs)

# orlo_install_packed(FILE NAME FOLDER): installs a text under NAME.gz, or as it is where there is no gzip.
find_program(ORLO_GZIP gzip)
function(orlo_install_packed file name folder)
  if(ORLO_GZIP)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
    set(packed "${CMAKE_BINARY_DIR}/generated/${name}.gz")
    execute_process(COMMAND "${ORLO_GZIP}" -9nc "${file}" OUTPUT_FILE "${packed}" COMMAND_ERROR_IS_FATAL ANY)
    install(FILES "${packed}" DESTINATION "${folder}")
  else()
    install(FILES "${file}" DESTINATION "${folder}" RENAME "${name}")
  endif()
endfunction()

install(TARGETS orlo-console RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

# A program folder is a copy of this folder, made for each user at the first start.
file(GLOB ruleFiles "${CMAKE_SOURCE_DIR}/share/*.CFG")
install(FILES ${ruleFiles} DESTINATION "${CMAKE_INSTALL_DATADIR}/orlo")
install(DIRECTORY share/Help DESTINATION "${CMAKE_INSTALL_DATADIR}/orlo")

install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" RENAME copyright)
if(UNIX AND NOT APPLE)
  # Debian's tools read a changelog in a form of their own; this one leads to ours.
  string(TIMESTAMP ORLO_PACKAGE_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
  configure_file(cmake/changelog.in "${CMAKE_BINARY_DIR}/generated/changelog" @ONLY)
  orlo_install_packed("${CMAKE_BINARY_DIR}/generated/changelog" changelog "${CMAKE_INSTALL_DOCDIR}")
endif()
install(FILES CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DOCDIR}")

if(TARGET orlo)
  install(TARGETS orlo RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

if(UNIX AND NOT APPLE)
  orlo_install_packed("${CMAKE_SOURCE_DIR}/share/man/orlo-console.1" orlo-console.1 "${CMAKE_INSTALL_MANDIR}/man1")
  if(TARGET orlo)
    orlo_install_packed("${CMAKE_SOURCE_DIR}/share/man/orlo.1" orlo.1 "${CMAKE_INSTALL_MANDIR}/man1")
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
  "Orlo opens the text files from which the AI traffic of a 2002-era flight
simulator is compiled, gives all flights new aircraft by rules of airline and
region, finds and corrects wrong levels and times, and edits single flights.
With a desktop program, a console program for scripts, rule files for the
whole world, and a manual.")
set(CPACK_RESOURCE_FILE_LICENSE "${CMAKE_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_SOURCE_DIR}/cmake/PackagePermissions.cmake")
set(CPACK_GENERATOR "TGZ")
if(UNIX AND NOT APPLE)
  set(CPACK_GENERATOR "DEB")
  set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)  # those of "games" stand in /usr/games
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(TARGET orlo)
  # They open the manual; everything else works without.
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils)
  set(CPACK_DEBIAN_PACKAGE_SUGGESTS www-browser)
endif()
include(CPack)

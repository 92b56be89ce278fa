# What programs have on Windows alone.

enable_language(RC)
# A program without its symbols is a third as large.
add_link_options("$<$<CONFIG:Release>:-s>")
set(CMAKE_RC_FLAGS "-c 65001")  # the sources are UTF-8

# orlo_windows_resources(TARGET DESCRIPTION): gives a program icon, version and manifest.
function(orlo_windows_resources target description)
  set(ORLO_PROGRAM "${target}")
  set(ORLO_DESCRIPTION "${description}")
  set(ORLO_MANIFEST "${CMAKE_BINARY_DIR}/generated/${target}.manifest")
  set(resources "${CMAKE_BINARY_DIR}/generated/${target}.rc")
  configure_file("${CMAKE_SOURCE_DIR}/cmake/windows/Program.manifest.in" "${ORLO_MANIFEST}" @ONLY)
  configure_file("${CMAKE_SOURCE_DIR}/cmake/windows/Program.rc.in" "${resources}" @ONLY)
  set_source_files_properties("${resources}" PROPERTIES
    OBJECT_DEPENDS "${ORLO_MANIFEST};${CMAKE_SOURCE_DIR}/share/icons/orlo.ico")
  target_sources(${target} PRIVATE "${resources}")
endfunction()

# Everybody may read what a package installs, whatever the umask of whoever packs: cpack makes folders by that one.
if(CMAKE_HOST_UNIX)
  execute_process(COMMAND chmod -R u=rwX,go=rX "${CPACK_TEMPORARY_INSTALL_DIRECTORY}" COMMAND_ERROR_IS_FATAL ANY)
endif()

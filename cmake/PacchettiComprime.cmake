# Debian keeps the pages of man and the history of a package compressed, without the time of it.
if(CPACK_GENERATOR STREQUAL "DEB")
  file(GLOB_RECURSE pagine ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*.1 ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*/changelog)
  foreach(pagina IN LISTS pagine)
    execute_process(COMMAND gzip -9nf ${pagina} COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
endif()

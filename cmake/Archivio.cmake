# sagomi_archivio(<variable> <file> <otherwise>): the archive of a library that only this program needs, or what stands
# for the shared one where there is none. An archive spares the start the search for the library and for its symbols. It
# is looked for where pkg-config knows the library of a PkgConfig target; <variable>_INCLUDE has the headers of that one.
macro(sagomi_archivio variable file otherwise)
  string(REGEX REPLACE "^PkgConfig::" "" ${variable}_MODULO ${otherwise})
  find_library(${variable}_FILE ${file} HINTS ${${${variable}_MODULO}_LIBRARY_DIRS} ${${${variable}_MODULO}_LIBDIR})
  mark_as_advanced(${variable}_FILE)
  set(${variable} ${otherwise})
  set(${variable}_INCLUDE ${${${variable}_MODULO}_INCLUDE_DIRS})
  if(${variable}_FILE)
    set(${variable} ${${variable}_FILE})
  endif()
endmacro()

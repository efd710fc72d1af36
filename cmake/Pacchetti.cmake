# The two packages that CPack makes: "cpack -G DEB" for Debian, "cpack -G TGZ" the folder that holds all that the
# program needs. tools/pacchetto makes and tests both.

set(CPACK_PACKAGE_NAME sagomi)
set(CPACK_PACKAGE_VENDOR Sagomi)
set(CPACK_PACKAGE_CONTACT "${SAGOMI_RECAPITO}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "calculator for steel members, connections and composite beams")
set(CPACK_PACKAGE_DESCRIPTION "Sagomi classifies rolled and welded steel sections, gives their
resistances and checks members, bolts, welds, bolted end-plate joints and
composite beams after the Eurocodes and the Italian rules. Every figure can
be followed back to its formula and its clause. The program speaks Italian.")
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/pacchetti)
set(CPACK_GENERATOR "DEB;TGZ")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/PacchettiScelta.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/PacchettiComprime.cmake)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS default-dbus-session-bus|dbus-session-bus)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-translations-l10n, desktop-file-utils, shared-mime-info")
if(SAGOMI_SITO)
  set(CPACK_PACKAGE_HOMEPAGE_URL ${SAGOMI_SITO})
endif()

set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_ARCHIVE_FILE_NAME sagomi-${PROJECT_VERSION}-${CMAKE_SYSTEM_PROCESSOR})

include(CPack)

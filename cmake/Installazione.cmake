# What an installation holds: the program with its files in share/sagomi, where it finds them, and the mechanics
# with their headers for find_package(sagomi).

include(CMakePackageConfigHelpers)

set(pacchetto ${CMAKE_INSTALL_LIBDIR}/cmake/sagomi)
get_property(sagomi_moduli GLOBAL PROPERTY sagomi_moduli)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/sagomi-config.cmake.in
  ${PROJECT_BINARY_DIR}/sagomi-config.cmake INSTALL_DESTINATION ${pacchetto})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/sagomi-config-version.cmake COMPATIBILITY SameMajorVersion)

install(TARGETS sagomi_core EXPORT sagomi)
install(EXPORT sagomi FILE sagomi-targets.cmake DESTINATION ${pacchetto} COMPONENT sviluppo)
install(FILES ${PROJECT_BINARY_DIR}/sagomi-config.cmake ${PROJECT_BINARY_DIR}/sagomi-config-version.cmake
        DESTINATION ${pacchetto} COMPONENT sviluppo)
install(FILES ${PROJECT_BINARY_DIR}/include/frame/VersioneProgramma.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/sagomi/frame COMPONENT sviluppo)

# What carries version, date and addresses.
execute_process(COMMAND date -u -R -d ${sagomi_data} OUTPUT_VARIABLE sagomi_data_lunga
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ldd --version OUTPUT_VARIABLE sagomi_glibc ERROR_QUIET)
string(REGEX MATCH "[0-9]+[.][0-9]+" sagomi_glibc "${sagomi_glibc}")
set(composti ${PROJECT_BINARY_DIR}/pacchetto)
include(cmake/Metainfo.cmake)
foreach(f comando/sagomi.1 pacchetto/changelog pacchetto/LEGGIMI.txt)
  get_filename_component(nome ${f} NAME)
  configure_file(${PROJECT_SOURCE_DIR}/data/${f}.in ${composti}/${nome} @ONLY)
endforeach()
file(CONFIGURE OUTPUT ${composti}/sagomi-server.1 CONTENT ".so man1/sagomi.1\n")

set(accanto Sagomi.xls)
if(SAGOMI_UI)
  install(TARGETS sagomi sagomi-server RUNTIME COMPONENT programma)
  # The session bus starts the program by this file, which names its place.
  install(CODE "
    get_filename_component(cartella_programma \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\" ABSOLUTE)
    configure_file(\"${PROJECT_SOURCE_DIR}/src/automation/Sagomi_v6.SezioneSagomi.service.in\"
      \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/dbus-1/services/Sagomi_v6.SezioneSagomi.service\"
      @ONLY)" COMPONENT programma)
  install(FILES ${composti}/sagomi.1 ${composti}/sagomi-server.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
          COMPONENT programma)
  install(FILES ${composti}/changelog ${PROJECT_SOURCE_DIR}/data/pacchetto/copyright
          DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT programma)
  install(FILES ${PROJECT_SOURCE_DIR}/data/pacchetto/lintian-overrides RENAME sagomi
          DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT programma)
  install(FILES ${PROJECT_SOURCE_DIR}/data/comando/sagomi.bash RENAME sagomi
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT programma)
  # What a desktop shows of the program: its entry in the menu, its icons, its kinds of files.
  set(scrivania ${PROJECT_SOURCE_DIR}/data/scrivania)
  install(FILES ${scrivania}/org.sagomi.Sagomi.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications
          COMPONENT programma)
  install(FILES ${composti}/org.sagomi.Sagomi.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
          COMPONENT programma)
  install(FILES ${scrivania}/org.sagomi.Sagomi.mime.xml RENAME org.sagomi.Sagomi.xml
          DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT programma)
  set(icone ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
  install(FILES ${scrivania}/org.sagomi.Sagomi.svg DESTINATION ${icone}/apps COMPONENT programma)
  install(FILES ${scrivania}/application-x-sagomi-giunto.svg ${scrivania}/application-x-sagomi-trave.svg
          DESTINATION ${icone}/mimetypes COMPONENT programma)
  list(APPEND accanto Sagomi.hlp GiuntoFlangiato.hlp FormuleGiunto.rtf)
endif()
list(TRANSFORM accanto PREPEND ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/ OUTPUT_VARIABLE sagomi_accanto)
install(FILES ${sagomi_accanto} DESTINATION ${CMAKE_INSTALL_DATADIR}/sagomi COMPONENT programma)

# The user's own workbook: one that he has already is never written over. The one without rows tells whether it has
# been used, where the installation is the user's folder.
set(sagomi_utente_vuota ${PROJECT_BINARY_DIR}/vuota/SagomiUtente.xls)
install(FILES ${sagomi_utente_vuota} RENAME SagomiUtente-vuota.xls DESTINATION ${CMAKE_INSTALL_DATADIR}/sagomi
        COMPONENT programma)
install(CODE "
  set(utente \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/sagomi/SagomiUtente.xls\")
  if(NOT EXISTS \"\${utente}\")
    file(INSTALL \"${sagomi_utente_vuota}\" DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/sagomi\")
  endif()" COMPONENT programma)

if(SAGOMI_UI)
  include(cmake/Cartella.cmake)
endif()

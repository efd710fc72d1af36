# The folder that holds all that the program needs: installed as the component "cartella". Its programs look for their
# libraries in lib beside them; see src/CMakeLists.txt.

install(PROGRAMS $<TARGET_FILE:sagomi-cartella> $<TARGET_FILE:sagomi-server-cartella> DESTINATION .
        COMPONENT cartella EXCLUDE_FROM_ALL)
# CMake ends the path of a build with an empty one, which would mean the current folder.
install(CODE [[
  foreach(p sagomi sagomi-server)
    file(RPATH_SET FILE "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${p}" NEW_RPATH "\$ORIGIN/lib")
  endforeach()]] COMPONENT cartella EXCLUDE_FROM_ALL)
install(FILES ${sagomi_accanto} ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_BINARY_DIR}/pacchetto/LEGGIMI.txt
        DESTINATION . COMPONENT cartella EXCLUDE_FROM_ALL)
# The first start makes the user's workbook: an archive that is unpacked again must not have one to write over it.
install(FILES ${sagomi_utente_vuota} RENAME SagomiUtente-vuota.xls DESTINATION . COMPONENT cartella EXCLUDE_FROM_ALL)
install(PROGRAMS ${PROJECT_SOURCE_DIR}/data/pacchetto/nel-menu DESTINATION . COMPONENT cartella EXCLUDE_FROM_ALL)
install(FILES ${scrivania}/org.sagomi.Sagomi.desktop ${scrivania}/org.sagomi.Sagomi.svg
              ${scrivania}/application-x-sagomi-giunto.svg ${scrivania}/application-x-sagomi-trave.svg
        DESTINATION scrivania COMPONENT cartella EXCLUDE_FROM_ALL)
install(FILES ${scrivania}/org.sagomi.Sagomi.mime.xml RENAME org.sagomi.Sagomi.xml DESTINATION scrivania
        COMPONENT cartella EXCLUDE_FROM_ALL)
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/pacchetto/qt.conf CONTENT
"[Paths]
Prefix = .
Plugins = lib/plugins
Translations = lib/translations
")
install(FILES ${PROJECT_BINARY_DIR}/pacchetto/qt.conf DESTINATION . COMPONENT cartella EXCLUDE_FROM_ALL)

# The manuals of the program and of its verification, where they have been built before; tools/pacchetto builds them.
install(FILES ${PROJECT_BINARY_DIR}/verifica/verifica.pdf DESTINATION manuale COMPONENT cartella EXCLUDE_FROM_ALL
        OPTIONAL)
install(FILES ${PROJECT_BINARY_DIR}/manuale/Sagomi.pdf DESTINATION manuale COMPONENT cartella EXCLUDE_FROM_ALL OPTIONAL)
install(DIRECTORY ${PROJECT_BINARY_DIR}/manuale/sito/ DESTINATION manuale/html COMPONENT cartella EXCLUDE_FROM_ALL
        OPTIONAL)

# Of the toolkit: the platforms with what belongs to them, and the texts of its dialogs.
set(qt_plugins ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS})
foreach(plugin platforms/libqxcb platforms/libqoffscreen platforminputcontexts/libcomposeplatforminputcontextplugin
        platforminputcontexts/libibusplatforminputcontextplugin printsupport/libcupsprintersupport
        imageformats/libqjpeg imageformats/libqgif)
  get_filename_component(kind ${plugin} DIRECTORY)
  install(FILES ${qt_plugins}/${plugin}.so DESTINATION lib/plugins/${kind} COMPONENT cartella EXCLUDE_FROM_ALL)
endforeach()
install(FILES ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}/qtbase_it.qm DESTINATION lib/translations
        COMPONENT cartella EXCLUDE_FROM_ALL OPTIONAL)
install(CODE "set(raccoglie \"${PROJECT_SOURCE_DIR}/tools/raccoglie_librerie\")" COMPONENT cartella EXCLUDE_FROM_ALL)
install(CODE [[execute_process(COMMAND ${raccoglie} "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}"
                               COMMAND_ERROR_IS_FATAL ANY)]] COMPONENT cartella EXCLUDE_FROM_ALL)

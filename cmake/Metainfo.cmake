# What software centres show of the program, with the pictures of the site where SAGOMI_SITO names one.
# cmake -DSAGOMI_SITO=... -DPROJECT_VERSION=... -Dsagomi_data=... -Dcomposti=<folder> -P cmake/Metainfo.cmake

set(sagomi_figure "")
if(SAGOMI_SITO)
  set(sagomi_figure "<url type=\"homepage\">${SAGOMI_SITO}</url>
  <screenshots>
    <screenshot type=\"default\">
      <caption>Sections and their resistances</caption>
      <caption xml:lang=\"it\">I sagomi e le loro resistenze</caption>
      <image>${SAGOMI_SITO}/immagini/frmDoppioT.png</image>
    </screenshot>
    <screenshot>
      <caption>Lateral-torsional buckling</caption>
      <caption xml:lang=\"it\">Svergolamento</caption>
      <image>${SAGOMI_SITO}/immagini/FrmMsverg-100.png</image>
    </screenshot>
  </screenshots>")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/../data/scrivania/org.sagomi.Sagomi.metainfo.xml.in
               ${composti}/org.sagomi.Sagomi.metainfo.xml @ONLY)

# Printed documents: HTML on the page of docs/stile/stampa.css, where weasyprint is installed.

find_program(WEASYPRINT weasyprint)

# sagomi_in_pdf(<HTML> <PDF> [DEPENDS ...]): a rule that makes the PDF of the HTML and what it shows.
function(sagomi_in_pdf html pdf)
  cmake_parse_arguments(A "" "" "DEPENDS" ${ARGN})
  add_custom_command(OUTPUT ${pdf}
    COMMAND ${PROJECT_SOURCE_DIR}/tools/in_pdf ${html} ${pdf}
    DEPENDS ${html} ${PROJECT_SOURCE_DIR}/docs/stile/stampa.css ${PROJECT_SOURCE_DIR}/tools/in_pdf ${A_DEPENDS}
    COMMENT "Printing ${pdf}" VERBATIM)
endfunction()

# One set of compiler rules for the whole house, and the two kinds of targets.

# The layers of mechanics, from the ground up; each links only what lies below it. The screens of a layer lie
# in its folder "ui".
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/strati.txt strati)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/strati.txt)

add_library(sagomi_regole INTERFACE)
target_compile_options(sagomi_regole INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Werror -ffp-contract=off)
# False alarms of GCC 12: overlapping copies inside std::string operator+ (its bug 105651), and variants and
# optionals that the sanitizers' code makes look unset.
target_compile_options(sagomi_regole INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(SAGOMI_SANITIZERS)
  target_compile_options(sagomi_regole INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()
if(SAGOMI_SANITIZERS)
  target_compile_options(sagomi_regole INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
  # An optional or a place beyond a vector that is looked into is told, too.
  target_compile_definitions(sagomi_regole INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(sagomi_regole INTERFACE -fsanitize=address,undefined)
endif()
if(SAGOMI_FUZZ)
  target_compile_options(sagomi_regole INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The mechanics also refuse every silent narrowing.
add_library(sagomi_regole_meccanica INTERFACE)
target_compile_options(sagomi_regole_meccanica INTERFACE -Wconversion -Wsign-conversion)

# sagomi_modulo(<prefix> <module>): a library that pkg-config knows, as PkgConfig::<prefix>; for this build and for
# the programs that find the installed package.
macro(sagomi_modulo prefix module)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(${prefix} REQUIRED IMPORTED_TARGET GLOBAL ${module})
  set_property(GLOBAL APPEND_STRING PROPERTY sagomi_moduli
               "pkg_check_modules(${prefix} REQUIRED IMPORTED_TARGET ${module})\n")
endmacro()

include(${CMAKE_CURRENT_LIST_DIR}/Archivio.cmake)

# sagomi_meccanica(<folder> SOURCES ... LINK ...): a layer of plain C++, without Qt.
function(sagomi_meccanica folder)
  cmake_parse_arguments(A "" "" "SOURCES;LINK;LINK_PRIVATE" ${ARGN})
  add_library(sagomi_${folder} STATIC ${A_SOURCES})
  target_include_directories(sagomi_${folder} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src> $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/sagomi>)
  target_link_libraries(sagomi_${folder} PUBLIC ${A_LINK} PRIVATE ${A_LINK_PRIVATE}
    $<BUILD_INTERFACE:sagomi_regole> $<BUILD_INTERFACE:sagomi_regole_meccanica>)
  install(TARGETS sagomi_${folder} EXPORT sagomi ARCHIVE COMPONENT sviluppo)
  install(DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/sagomi/${folder}
          COMPONENT sviluppo FILES_MATCHING PATTERN "*.h" PATTERN ui EXCLUDE)
  foreach(l IN LISTS A_LINK A_LINK_PRIVATE)
    if(l MATCHES "^Qt6|_ui$")
      message(FATAL_ERROR "sagomi_${folder} is mechanics and cannot link ${l}")
    endif()
  endforeach()
endfunction()

# sagomi_precompila(<target> <kind> <header>...): the large headers of others, read once for all targets of a kind.
function(sagomi_precompila target kind)
  # More false alarms of GCC 12 in std::string, seen through a precompiled header alone.
  set(regole $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow -Wno-array-bounds>)
  set(testa sagomi_testa_${kind})
  if(NOT TARGET ${testa})
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/${testa}.cpp CONTENT "" @ONLY)
    add_library(${testa} OBJECT ${PROJECT_BINARY_DIR}/${testa}.cpp)
    target_link_libraries(${testa} PRIVATE sagomi_regole)
    if(kind MATCHES "ui$")
      target_link_libraries(${testa} PRIVATE Qt6::Widgets)
      target_compile_definitions(${testa} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
    endif()
    if(kind MATCHES "^prove")
      target_link_libraries(${testa} PRIVATE GTest::gmock)
    endif()
    target_compile_options(${testa} PRIVATE ${regole})
    target_precompile_headers(${testa} PRIVATE ${ARGN})
  endif()
  target_precompile_headers(${target} REUSE_FROM ${testa})
  # A compiler cache that reads a precompiled header while another build writes it runs away in memory.
  set_target_properties(${testa} ${target} PROPERTIES CXX_COMPILER_LAUNCHER "")
  target_compile_options(${target} PRIVATE ${regole})
endfunction()

# sagomi_schermi(<folder> SOURCES ... LINK ...): the screens of a layer, with Qt.
function(sagomi_schermi folder)
  cmake_parse_arguments(A "" "" "SOURCES;LINK" ${ARGN})
  add_library(sagomi_${folder}_ui STATIC ${A_SOURCES})
  set_target_properties(sagomi_${folder}_ui PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
  target_include_directories(sagomi_${folder}_ui PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_compile_definitions(sagomi_${folder}_ui PUBLIC QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
  target_link_libraries(sagomi_${folder}_ui PUBLIC ${A_LINK} PRIVATE sagomi_regole)
  sagomi_precompila(sagomi_${folder}_ui ui <QtWidgets/QtWidgets>)
endfunction()

# sagomi_prova(<name> [SCHERMI] SOURCES ... LINK ...): one test program, its cases known to ctest one by one; with
# windows it runs once more in an Italian locale.
function(sagomi_prova name)
  cmake_parse_arguments(A "SCHERMI" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${A_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE SAGOMI_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data"
                                             SAGOMI_CATALOGUE_DATA="${PROJECT_SOURCE_DIR}/data/catalogue"
                                             SAGOMI_BIN="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
  target_link_libraries(${name} PRIVATE ${A_LINK} GTest::gmock sagomi_regole)
  if(A_SCHERMI)
    sagomi_precompila(${name} prove_ui <gmock/gmock.h> <QtWidgets/QtWidgets>)
  else()
    sagomi_precompila(${name} prove <gmock/gmock.h>)
  endif()
  set(env "ASAN_OPTIONS=detect_leaks=1")
  if(A_SCHERMI)
    list(APPEND env "QT_QPA_PLATFORM=offscreen")
    set(env "QT_QPA_PLATFORM=offscreen")
    target_link_libraries(${name} PRIVATE Qt6::Test)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
  else()
    target_link_libraries(${name} PRIVATE sagomi_principale)
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES ENVIRONMENT "${env}" TIMEOUT 300)
  if(A_SCHERMI)
    # The same windows where the comma is the decimal separator.
    add_test(NAME ${name}_it_IT COMMAND ${name})
    set_tests_properties(${name}_it_IT PROPERTIES ENVIRONMENT "${env};LC_ALL=it_IT.UTF-8" TIMEOUT 600)
  endif()
endfunction()

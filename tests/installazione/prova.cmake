# Installs into an empty folder, then builds and runs a program that finds the package there.
# -DCOSTRUZIONE=<build tree> -DCARTELLA=<empty folder> -DCOMPILATORE=<compiler>

function(esegue)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE esito OUTPUT_VARIABLE detto ERROR_VARIABLE detto)
  if(NOT esito EQUAL 0)
    message(FATAL_ERROR "${ARGV}: ${detto}")
  endif()
  message(STATUS "${detto}")
endfunction()

file(REMOVE_RECURSE ${CARTELLA})
esegue(${CMAKE_COMMAND} --install ${COSTRUZIONE} --prefix ${CARTELLA}/usr)
esegue(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${CARTELLA}/build -G Ninja
       -DCMAKE_PREFIX_PATH=${CARTELLA}/usr -DCMAKE_CXX_COMPILER=${COMPILATORE})
esegue(${CMAKE_COMMAND} --build ${CARTELLA}/build)
esegue(${CARTELLA}/build/consumatore ${CARTELLA}/usr/share/sagomi/Sagomi.xls)
file(REMOVE_RECURSE ${CARTELLA})

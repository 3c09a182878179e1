# Installs the build into a scratch prefix, then configures, builds and runs the consumer against
# the build tree and against the prefix.
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "failed (${rc}): ${ARGN}\n${out}\n${err}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix)

foreach(mode build install)
  if(mode STREQUAL "build")
    set(locate -Dorvanta_panel_DIR=${BUILD_DIR})
  else()
    set(locate -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
  endif()
  set(bin ${WORK_DIR}/consumer-${mode})
  run(${CMAKE_COMMAND} -S ${CONSUMER_SRC} -B ${bin} -G ${GENERATOR}
      -DCMAKE_CXX_COMPILER=${CXX} "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
      "-DCMAKE_EXE_LINKER_FLAGS=${LINKER_FLAGS}" ${locate})
  run(${CMAKE_COMMAND} --build ${bin})
  run(${bin}/consumer)
  message(STATUS "consumer against the ${mode} tree: ok")
endforeach()

# Installs the build tree BUILD into the empty folder STAGE/prefix, so that nothing of an earlier
# installation can help.
file(REMOVE_RECURSE ${STAGE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${STAGE}/prefix
  COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)

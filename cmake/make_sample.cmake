# Runs a sample's script in a home folder of its own, so that the home that ships does not list the
# samples as recently used, and saves the project.
#
# CLI: kelvor-cli   HOME_FOLDER: the home to copy   SCRIPT: the sample   PROJECT: the file to make
# SCRATCH: a folder to work in

file(REMOVE_RECURSE "${SCRATCH}")
file(COPY "${HOME_FOLDER}/kvor.ini" "${HOME_FOLDER}/kvrwork.tpl" "${HOME_FOLDER}/DataBase"
          "${HOME_FOLDER}/Reports"
     DESTINATION "${SCRATCH}")
file(READ "${SCRIPT}" commands)
get_filename_component(name "${PROJECT}" NAME)
file(WRITE "${SCRATCH}/script.kvs" "${commands}\nsave \"${SCRATCH}/${name}\"\n")
execute_process(COMMAND "${CLI}" --home "${SCRATCH}" --script "${SCRATCH}/script.kvs"
                OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
if(NOT result EQUAL 0 OR output MATCHES "message \\[")
  message(FATAL_ERROR "${SCRIPT} does not run through:\n${output}")
endif()
get_filename_component(folder "${PROJECT}" DIRECTORY)
file(COPY "${SCRATCH}/${name}" DESTINATION "${folder}")

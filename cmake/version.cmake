# The version of the program stands in project() alone. What --version and About tell beside it is collected here:
# the commit, and the libraries that the program is built with.

configure_file("${CMAKE_SOURCE_DIR}/cmake/version_facts.h.in" "${CMAKE_BINARY_DIR}/version/version_facts.h" @ONLY)

# A commit is written to the log of the checkout, so that the log is what the header waits for. An archive has none.
execute_process(
  COMMAND git rev-parse --path-format=absolute --git-path logs/HEAD
  WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}"
  OUTPUT_VARIABLE commit_log
  OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
if(NOT EXISTS "${commit_log}")
  set(commit_log)
endif()
add_custom_command(
  OUTPUT "${CMAKE_BINARY_DIR}/version/commit.h"
  COMMAND "${CMAKE_COMMAND}" -D "SOURCES=${CMAKE_SOURCE_DIR}" -D "HEADER=${CMAKE_BINARY_DIR}/version/commit.h" -P
          "${CMAKE_SOURCE_DIR}/cmake/write_commit.cmake"
  DEPENDS ${commit_log} "${CMAKE_SOURCE_DIR}/packaging/commit.txt" "${CMAKE_SOURCE_DIR}/cmake/write_commit.cmake"
  COMMENT "Noting the commit"
  VERBATIM)

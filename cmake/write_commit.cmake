# Writes a header with the commit that the sources are of: as an archive of them says, or else as the checkout does.
#
# SOURCES: the top folder of the sources   HEADER: the file to write

file(READ "${SOURCES}/packaging/commit.txt" commit)
string(STRIP "${commit}" commit)
if(commit MATCHES "Format")
  execute_process(
    COMMAND git rev-parse --short HEAD
    WORKING_DIRECTORY "${SOURCES}"
    OUTPUT_VARIABLE commit
    OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
if(NOT commit)
  set(commit "unknown")
endif()
file(WRITE "${HEADER}" "#define KELVOR_COMMIT \"${commit}\"\n")

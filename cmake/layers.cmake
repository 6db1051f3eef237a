# Layers. Each library gets an include folder of its own in the build tree that holds nothing but a
# link to its source folder, so `#include "catalogue/catalogue.h"` compiles only in a target that
# links kelvor_catalogue. A layer that reaches upwards does not build.

function(kelvor_expose target folder)
  set(root "${CMAKE_BINARY_DIR}/include/${target}")
  get_filename_component(parent "${root}/${folder}" DIRECTORY)
  file(MAKE_DIRECTORY "${parent}")
  file(CREATE_LINK "${CMAKE_SOURCE_DIR}/src/${folder}" "${root}/${folder}" SYMBOLIC)
  get_target_property(type ${target} TYPE)
  set(scope PUBLIC)
  if(type STREQUAL "INTERFACE_LIBRARY")
    set(scope INTERFACE)
  endif()
  target_include_directories(${target} ${scope} "${root}")
endfunction()

# kelvor_library(<name> FOLDER <folder below src> SOURCES <files> LINKS <libraries of lower layers>
#                [PRECOMPILED <set, if not that of the core>])
function(kelvor_library name)
  cmake_parse_arguments(arg "" "FOLDER;PRECOMPILED" "SOURCES;LINKS" ${ARGN})
  if(NOT arg_PRECOMPILED)
    set(arg_PRECOMPILED kelvor_precompiled_core)
  endif()
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC ${arg_LINKS} PRIVATE kelvor_options)
  kelvor_precompile(${name} "${arg_PRECOMPILED}")
  kelvor_expose(${name} ${arg_FOLDER})
endfunction()

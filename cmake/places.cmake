# Where an installation has what, and the ways from the programs to their data and modules: an installed folder can be
# moved as a whole.
include(GNUInstallDirs)
set(KELVOR_DATA_DIR "${CMAKE_INSTALL_DATADIR}/kelvor")
set(KELVOR_MODULE_DIR "${CMAKE_INSTALL_LIBDIR}/kelvor")
file(RELATIVE_PATH KELVOR_DATA_FROM_PROGRAMS "/${CMAKE_INSTALL_BINDIR}" "/${KELVOR_DATA_DIR}")
file(RELATIVE_PATH KELVOR_MODULES_FROM_PROGRAMS "/${CMAKE_INSTALL_BINDIR}" "/${KELVOR_MODULE_DIR}")

# A folder that carries its libraries with it, see packaging/make-bundle, looks for them beside the programs first, those of
# the libraries and of the toolkit's plug-ins too.
option(KELVOR_BUNDLE "Installed programs look for libraries in their own folder" OFF)
if(KELVOR_BUNDLE)
  set(CMAKE_INSTALL_RPATH "$ORIGIN/../lib")
  add_link_options(LINKER:--disable-new-dtags)
endif()

# The headers that nearly every source reads are compiled once: of the language, and for those who use them
# of the test library and of the toolkit. A target that links kelvor_options gets them by kelvor_precompile.

# kelvor_precompiled(<name> LINKS <libraries> HEADERS <headers>): a set of precompiled headers.
function(kelvor_precompiled name)
  cmake_parse_arguments(arg "" "" "LINKS;HEADERS" ${ARGN})
  set(source "${CMAKE_BINARY_DIR}/precompiled/${name}.cpp")
  file(CONFIGURE OUTPUT "${source}" CONTENT "// Carries the precompiled headers ${name}.\n")
  add_library(${name} OBJECT "${source}")
  target_link_libraries(${name} PRIVATE kelvor_options ${arg_LINKS})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

# kelvor_precompile(<target> <set>)
function(kelvor_precompile target set)
  target_precompile_headers(${target} REUSE_FROM ${set})
endfunction()

set(KELVOR_LANGUAGE_HEADERS
    <algorithm>
    <array>
    <cstddef>
    <cstdint>
    <exception>
    <functional>
    <initializer_list>
    <memory>
    <optional>
    <span>
    <stdexcept>
    <string>
    <string_view>
    <unordered_map>
    <utility>
    <variant>
    <vector>
    <SQLiteCpp/SQLiteCpp.h>)

kelvor_precompiled(kelvor_precompiled_core LINKS SQLiteCpp HEADERS ${KELVOR_LANGUAGE_HEADERS})
if(Qt6_FOUND)
  set(KELVOR_TOOLKIT_HEADERS <QApplication> <QComboBox> <QLabel> <QLineEdit> <QMdiArea> <QMdiSubWindow> <QPushButton>
                             <QTableView> <QTabWidget>)
  kelvor_precompiled(kelvor_precompiled_desktop LINKS SQLiteCpp Qt6::Widgets
                     HEADERS ${KELVOR_LANGUAGE_HEADERS} ${KELVOR_TOOLKIT_HEADERS})
endif()

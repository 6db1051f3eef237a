#pragma once

#include <vector>

#include "reports/document/document.h"
#include "reports/pages/type_setter.h"

namespace kelvor {

/// The widths of a table's columns, in points; together the width of the text. Each column gets what its
/// cells need if there is room; else the wide ones are narrowed, whose texts are then broken.
std::vector<double> ColumnWidths(const TypeSetter& setter, const blocks::Table& table, const TextStyle& cells,
                                 const TextStyle& headings, double width, double padding);

}  // namespace kelvor

#pragma once

#include <vector>

#include "reports/document/document.h"
#include "reports/pages/strip.h"
#include "reports/pages/type_setter.h"

namespace kelvor {

/// Sets a table as wide as the text. Its headings are repeated on each page that it goes on to, unless they
/// take more than a third of one; they never stand without a row, and never one row alone.
std::vector<Strip> TableStrips(const TypeSetter& setter, const blocks::Table& table, double width,
                               double pageHeight);

}  // namespace kelvor

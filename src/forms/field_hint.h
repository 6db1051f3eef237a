#pragma once

#include <string>

#include "forms/screen_context.h"

namespace kelvor {

/// What a field wants, for a tool tip or a status line: the description of its variable, and the range that
/// it allows in the active unit system, or that its value is computed.
std::string FieldHint(const ScreenContext& context, const Control& field);

/// The same for the cells of a column.
std::string ColumnHint(const ScreenContext& context, const GridColumn& column);

}  // namespace kelvor

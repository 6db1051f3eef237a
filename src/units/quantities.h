#pragma once

#include <string_view>

namespace kelvor {

/// The variable that holds the unit of a quantity of the cost grids, row by row; null for any other variable.
const char* UnitOfQuantity(std::string_view variable);

}  // namespace kelvor

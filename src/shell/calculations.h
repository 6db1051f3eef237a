#pragma once

#include <span>
#include <string_view>

#include "calc/dispatch.h"

namespace kelvor {

/// All calculations of the program: the one place that joins the folders' key tables.
Dispatch JoinCalculations();

/// The keys that the catalogue may name but whose calculations are still to be written.
std::span<const std::string_view> AwaitedFieldKeys();
std::span<const std::string_view> AwaitedCellKeys();

}  // namespace kelvor

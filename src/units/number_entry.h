#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "units/units.h"

namespace kelvor {

/// Reads what an engineer may type into the field of a variable instead of a plain number, and gives it as a
/// plain number in the variable's unit of the active system:
///
/// - a multiple: "5M" is 5,000,000 and "250k" is 250,000
/// - a fraction, alone or behind a whole number: "1/2", "6 1/2"
/// - a sum of such: "6+1.5", "10 + 1/2"; no difference, as "6-1/2" is written for six and a half
/// - any of them with a unit behind it: "150 mm", "1/2 in", "12 kPa", "95 %"
///
/// A unit must measure what the variable's own unit measures; the factor between the two systems is that of
/// the catalogue, so that "150 mm" is what 150 is in metric mode. A comma may only group digits by three: it
/// is never a decimal mark. Nothing for any other text, for what no double holds, and for a division by 0.
std::optional<std::string> ReadNumberEntry(const Units& units, std::string_view variable,
                                           std::string_view text);

}  // namespace kelvor

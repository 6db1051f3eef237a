#pragma once

#include <string>

namespace kelvor {

// What adjustment factors say of the existing slab (1993 AASHTO Guide, Part III, Section 5.6.5). The bounds
// of the bands belong to them; a factor below all bands or between two of them, such as 0.955, says nothing.

/// Of the durability adjustment factor, from 0.80 to 1.0.
std::string DurabilityText(double factor);

/// Of the fatigue damage adjustment factor, from 0.90 to 1.0.
std::string FatigueText(double factor);

/// What the number of an axle type says: 1 single, 2 tandem, 3 tridem; any other says nothing.
std::string AxleTypeName(double type);

}  // namespace kelvor

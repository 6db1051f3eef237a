#pragma once

#include <vector>

#include "forms/control.h"

namespace kelvor {

/// The types of axle groups with the letters that are typed for them, in the order of their codes from 1.
std::vector<LetterWord> AxleTypes();

/// The periods in which traffic is counted, likewise.
std::vector<LetterWord> CountPeriods();

}  // namespace kelvor

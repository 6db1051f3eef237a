#pragma once

#include "platform/real.h"

namespace kelvor {

/// The value held within its bounds; a value of exactly 0, which means not entered, stays 0.
Real ClampValue(Real value, Real minimum, Real maximum);

}  // namespace kelvor

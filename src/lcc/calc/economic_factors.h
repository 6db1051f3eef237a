#pragma once

#include "calc/dispatch.h"

namespace kelvor {

/// The calculations of the economic factors: `DISCOUNTRATE`.
KeyTable EconomicFactorKeys();

}  // namespace kelvor

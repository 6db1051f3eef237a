#pragma once

#include "calc/dispatch.h"

namespace kelvor {

/// The calculations of the cost grids: costs and present worth of their items, and the totals. A total is
/// that of the pavement in whose grid the user works, and the maintenance costs are those of the row.
KeyTable CostKeys();

}  // namespace kelvor

#pragma once

namespace kelvor {

// What can be laid, and what the design equation answers for, in inches.

/// Of a slab on its own.
inline constexpr double kThinnestSlab = 4.0;

/// Of any slab; also where the search for a thickness starts from above.
inline constexpr double kThickestSlab = 20.0;

/// Of an overlay that is bonded to the slab below it.
inline constexpr double kThinnestBonded = 2.0;

}  // namespace kelvor

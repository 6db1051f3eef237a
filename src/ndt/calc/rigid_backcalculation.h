#pragma once

#include <string_view>

#include "calc/calc_context.h"

namespace kelvor {

// One test on a bare slab: the cells of its row and, for all tests alike, `Radius` of the load plate, inches,
// `POISSON`, Poisson's ratio, and `EXISTDEPTH`, the slab thickness, inches. A missing input empties the
// result; a fault leaves it as it was. The closed forms and their bounds are those of slab_basin.h (1993
// AASHTO Guide, Part III, Section 5.6.5).

/// AREA of the deflection basin, inches, from `D0`, `D12`, `D24` and `D36`, mils. Emptied if one is missing.
void CalcArea(CalcContext& context, std::string_view target, int row, int dim2);

/// The radius of relative stiffness, inches, from `AREA`. Emptied unless AREA is above 0 and below 36.
void CalcRadiusOfStiffness(CalcContext& context, std::string_view target, int row, int dim2);

/// The dynamic k, psi/in, from the load `NDTLOAD`, pounds, `D0`, `BACKL` and `Radius`. Emptied if one of them
/// or one of the outer deflections is missing. A fault ends it here, and not in who called it.
void CalcDynamicK(CalcContext& context, std::string_view target, int row, int dim2);

/// The static k, psi/in, from `DYNK`. Emptied without one.
void CalcStaticK(CalcContext& context, std::string_view target, int row, int dim2);

/// The modulus of the slab, ksi, from `POISSON`, `EXISTDEPTH`, `BACKL` and the dynamic k, `DYNK`. It is
/// always written to `NDTE`; the target is what is emptied if one of the four is missing.
void CalcSlabModulus(CalcContext& context, std::string_view target, int row, int dim2);

}  // namespace kelvor

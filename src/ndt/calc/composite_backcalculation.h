#pragma once

#include <string_view>

#include "calc/calc_context.h"
#include "platform/real.h"

namespace kelvor {

// One test on asphalt over a slab: the cells of its row and, for all tests alike, `NDTEAC` and `ACACPCACT`,
// the modulus, psi, and the thickness, inches, of the asphalt, `BOND`, 0 where it lies unbonded, and
// `Radius`, `POISSON` and `EXISTDEPTH` as for a bare slab. A missing input empties the variable of the
// routine, whatever its target; a fault leaves it as it was. The closed forms and their bounds are those of
// slab_basin.h (1993 AASHTO Guide, Part III, Section 5.7.5).

/// The central deflection of a test, mils, without what the asphalt is compressed by: `D0C` less a regression
/// on thickness over modulus of the asphalt, one for bonded layers and one for others. 0 if the modulus or
/// the load `NDTLOADC` is missing; not bounded, so that a thick or soft layer may make it negative. Raises
/// ArithmeticFault for a negative thickness or modulus. (1993 AASHTO Guide, Part III, Section 5.7.5.)
Real CorrectedD0(const CalcContext& context, int row, int dim2);

/// AREA of the deflection basin, inches, from the corrected central deflection and `D12C`, `D24C`, `D36C` as
/// they are, mils. Always written to `AREAC`. Emptied if the load or one of the deflections, `D0C` among
/// them, is missing; without a modulus of the asphalt it is a fault.
void CalcAreaComposite(CalcContext& context, std::string_view target, int row, int dim2);

/// The radius of relative stiffness, inches, from `AREAC`. Always written to `BACKLC`. Emptied unless AREA is
/// above 0 and below 36.
void CalcRadiusOfStiffnessComposite(CalcContext& context, std::string_view target, int row, int dim2);

/// The dynamic k, psi/in, from the load, the corrected central deflection, `BACKLC` and `Radius`. `DYNKC` is
/// emptied if one of them or one of the outer deflections is missing, or without a modulus of the asphalt.
void CalcDynamicKComposite(CalcContext& context, std::string_view target, int row, int dim2);

/// The static k, psi/in, from `DYNKC`; `STATKC` is emptied without one.
void CalcStaticKComposite(CalcContext& context, std::string_view target, int row, int dim2);

/// The modulus of the slab, ksi, from `POISSON`, `EXISTDEPTH`, `BACKLC` and `DYNKC`. Always written to
/// `NDTEC`, which is emptied if one of the four is missing.
void CalcSlabModulusComposite(CalcContext& context, std::string_view target, int row, int dim2);

}  // namespace kelvor

#pragma once

#include <string_view>

#include "calc/calc_context.h"
#include "ndt/calc/two_layer_deflection.h"

namespace kelvor {

/// The moduli of a pavement that are searched, psi, and how close, in mils, the deflection must come.
inline constexpr double kLeastPavementModulus = 5'000.0;
inline constexpr double kLargestPavementModulus = 2'000'000.0;
inline constexpr double kCloseDeflection = 0.01;

/// The subgrade modulus, psi, of one test on flexible pavement, for design: C 0.24 P / (dr r), with the load
/// P `NDTLOADF` in pounds, the deflection dr `DR` in mils at the distance r `NDTR` in inches, and the
/// correction C `NDTRMC`. Emptied if P, dr, r or the central deflection `D0F` was not entered, though the
/// last takes no part; a C that was not entered gives 0. Not bounded. (1993 AASHTO Guide, Part III,
/// Section 5.4.5, where MR = 0.24 P / (dr r) and C comes later; here the stored modulus holds it.)
void CalcSubgradeModulus(CalcContext& context, std::string_view target, int row, int dim2);

/// The effective modulus Ep, psi, of all layers above the subgrade, of one test on flexible pavement: the
/// modulus for which the two-layer equation gives the deflection `D0F`, mils, below a plate of the radius
/// `Radius`, inches, under the load `NDTLOADF`, pounds. The subgrade has the modulus `NDTRM` of the row
/// without its correction `NDTRMC`, the layers the thickness `NDTEFFD`, inches, which may be 0. Emptied if
/// the radius, the load, the subgrade modulus or the correction is missing.
///
/// The search halves the range from 5,000 to 2,000,000 psi, beginning at 1,000,000, at most 25 times, and
/// ends within a hundredth of a mil. A deflection that no modulus of the range gives leaves the result at
/// its end, without a word. A fault ends the search with the modulus of its last step. (1993 AASHTO
/// Guide, Part III, Section 5.4.5, which reads Ep from Figure 5.5.)
void CalcEffectivePavementModulus(CalcContext& context, std::string_view target, int row, int dim2);

/// The pavement of a test: `Radius`, `NDTLOADF`, `NDTRM` without its correction `NDTRMC`, and `NDTEFFD`.
/// Raises ArithmeticFault without a correction.
TwoLayerPavement ReadTwoLayerPavement(const CalcContext& context, int row, int dim2);

}  // namespace kelvor

#pragma once

#include <string_view>

#include "calc/calc_context.h"

namespace kelvor {

/// The flexible ESALs of the design lane over the design life, from the trucks of a day and an average number
/// of ESALs to a truck, written to `target`. The trucks are given as such or as a share of all vehicles, as
/// chosen on the screen.
void CalcFactorEsalFlexible(CalcContext& context, std::string_view target);

/// The rigid ones.
void CalcFactorEsalRigid(CalcContext& context, std::string_view target);

}  // namespace kelvor

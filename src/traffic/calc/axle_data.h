#pragma once

#include <string_view>

#include "calc/calc_context.h"

namespace kelvor {

/// The rigid ESALs of one row of the axle data, over the design life, written to that row of `target`.
void CalcRowEsalRigid(CalcContext& context, std::string_view target, int row, int dim2);

/// The flexible ones.
void CalcRowEsalFlexible(CalcContext& context, std::string_view target, int row, int dim2);

/// The plain sum of the rigid ESALs of all rows, in row order; 0 if no row has any.
void SumRigid(CalcContext& context, std::string_view target);

/// The flexible ones.
void SumFlexible(CalcContext& context, std::string_view target);

}  // namespace kelvor

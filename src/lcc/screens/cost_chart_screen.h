#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `CostChart`: one category of cost as two bars. Its hidden box Dim2 tells which: 1 initial costs, 2
/// maintenance, 3 rehabilitation, 4 present worth, 5 annual cost; initial costs if it tells none.
FormType CostChartForm();

}  // namespace kelvor

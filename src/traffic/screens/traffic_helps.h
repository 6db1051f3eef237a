#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `H_TrIn`, `H_TrFa` and `H_TrDLD`: they explain a few inputs, which can be changed there.
FormType TrafficInputHelp();
FormType TrafficFactorsHelp();
FormType DistributionHelp();

}  // namespace kelvor

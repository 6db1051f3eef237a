#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `H_SRM`: estimates the resilient modulus of the roadbed soil from a CBR or an R-value.
FormType SubgradeModulusHelp();

}  // namespace kelvor

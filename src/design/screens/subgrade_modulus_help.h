#pragma once

#include <string>

#include "forms/form_type.h"

namespace kelvor {

/// `H_SRM`: estimates the resilient modulus of the roadbed soil from a CBR or an R-value.
FormType SubgradeModulusHelp();

/// The help of a field whose modulus it works out.
HelpRoute WorkOutSoilModulus(const std::string& variable);

}  // namespace kelvor

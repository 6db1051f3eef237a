#pragma once

#include <string>

#include "forms/form_type.h"

namespace kelvor {

/// The help of a field whose modulus of subgrade reaction the screen `H_K` works out.
HelpRoute WorkOutK(const std::string& variable);

/// The help of a field whose soil resilient modulus the screen `H_SRM` works out.
HelpRoute WorkOutSoilModulus(const std::string& variable);

}  // namespace kelvor

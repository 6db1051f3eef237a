#pragma once

#include <string>

#include "forms/form_type.h"

namespace kelvor {

/// `H_K`: works out the effective modulus of subgrade reaction from soil and subbase, following the typing.
FormType CompositeKHelp();

/// The help of a field whose k it works out.
HelpRoute WorkOutK(const std::string& variable);

}  // namespace kelvor

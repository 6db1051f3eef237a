#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `H_K`: works out the effective modulus of subgrade reaction from soil and subbase, following the typing.
FormType CompositeKHelp();

}  // namespace kelvor

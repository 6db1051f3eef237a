#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `SNHelp`: the effective structural number from what deflection tests tell, the thickness of the pavement
/// and its effective modulus.
FormType DeflectionSNHelp();

}  // namespace kelvor

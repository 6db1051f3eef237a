#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `FjcHelp`: the joint and crack factor of an overlay from what a survey of the slab has counted.
FormType JointFactorHelp();

}  // namespace kelvor

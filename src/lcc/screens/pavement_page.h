#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `LcA1`: the geometry of a pavement, from which the quantities of its costs follow.
FormType PavementPage();

}  // namespace kelvor

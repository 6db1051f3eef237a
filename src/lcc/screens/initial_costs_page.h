#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `LcA1_2`: what a pavement costs before it is opened to traffic.
FormType InitialCostsPage();

}  // namespace kelvor

#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `H_SN` and `H_SRMII`: a field's title and explanation, and one box for its value.
FormType StructuralNumberHelp();
FormType SoilModulusHelp();

}  // namespace kelvor

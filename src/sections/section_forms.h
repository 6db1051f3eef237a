#pragma once

#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// The forms that draw the pavements of the design and overlay screens: `DeFCS` and its like to scale, `CSec`
/// and `CSec2` as diagrams.
std::vector<FormDeclaration> SectionForms();

}  // namespace kelvor

#pragma once

#include <string>
#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// The drawings of cross sections: a form for each design and overlay screen, called like it with "CS"
/// behind. Each is made anew from the project when it is opened, comes to the front, or the units are
/// switched. `DeSCS` has the flexible pavement beside the rigid one, to one scale.
std::vector<FormDeclaration> SectionChartForms();

/// The screen whose section a form draws: "DeF" for `DeFCS`; empty for a form that draws none.
std::string ScreenDrawnBy(const std::string& form);

}  // namespace kelvor

#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// What stands behind the name of a screen in the name of the form that draws its pavement.
inline constexpr const char* kSectionSuffix = "CS";

/// The button of a design or overlay screen that draws its pavement, and what it does.
ButtonItem CrossSectionButton();
Handler OpeningCrossSection();

}  // namespace kelvor

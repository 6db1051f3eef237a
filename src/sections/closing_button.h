#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// The page of the help that all drawings of sections share.
inline constexpr const char* kSectionHelpPage = "CrossSections";

/// The button that closes a drawing, and what it does.
ButtonItem ClosingButton();
Handler ClosingByButton();

}  // namespace kelvor

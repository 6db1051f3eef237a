#pragma once

#include <string>

#include "forms/form_type.h"
#include "forms/screen_context.h"

namespace kelvor {

inline constexpr const char* kBlankForm = "Blank";

/// `Blank`: a form with nothing on it but what every built screen may have.
FormType BlankForm();

/// Makes a blank form the screen of a name, from the catalogue's rows alone: titles, fixed texts, fields,
/// grid and page buttons in a coarse grid of letters and rows. False, with a message, if the catalogue has no
/// such screen.
bool BuildScreen(ScreenContext& context, const std::string& name, Form& form);

/// Opens a screen that is built so. A built screen that is open closes first; it may refuse.
void OpenBuiltScreen(ScreenContext& context, const std::string& name);

}  // namespace kelvor

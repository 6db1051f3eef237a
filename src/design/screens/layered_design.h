#pragma once

#include <string>

#include "forms/form_type.h"
#include "forms/screen_context.h"

namespace kelvor {

/// `LayDet`: turns a structural number into layers, and carries their total back.
FormType LayeredDesignForm();

/// Opens `LayDet` for a structural number of another screen, which may take the total when it closes.
void OpenLayeredDesign(ScreenContext& context, Form& caller, const std::string& variable);

}  // namespace kelvor

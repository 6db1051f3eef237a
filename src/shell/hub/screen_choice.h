#pragma once

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

/// A click on one of the hub's buttons that open screens: the first option that is selected says which one.
/// With none selected it does nothing.
void OpenChosenScreen(ScreenEvent& event);

/// Takes off every option whose screen is not declared, and every button all of whose options are. A button
/// of the hub for whose click nobody cares is off too.
void OfferDeclaredScreens(const ScreenContext& context, Form& hub);

}  // namespace kelvor

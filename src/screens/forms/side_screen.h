#pragma once

#include <string>

#include "screens/forms/screen_context.h"

namespace kelvor {

/// A side screen works out a value for a field of another form and hands it back when it closes. Its form has
/// the hidden boxes FormName, the caller, and FieldName, the field; both are empty if nobody called it.

/// Opens a side screen for a field of a form. Null if it did not open: a value being typed was refused.
Form* OpenSideScreen(ScreenContext& context, const std::string& sideScreen, Form& caller,
                     const std::string& field);

/// Tells the caller, when a side screen closes, whether a value was taken over: its indicator then warns, and
/// the focus goes back to the field.
void ReturnFromSideScreen(ScreenContext& context, const Form& sideScreen, bool valueTaken);

}  // namespace kelvor

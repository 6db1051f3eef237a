#pragma once

#include <string>
#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// What every overlay screen does beyond the common routines, by its Solve For button: its outputs are
/// worked out anew when it comes in front and when a value was refused, and its thickness when the button was
/// pressed. The thickness is the last output of its catalogue rows; a screen without outputs does none of it.
/// Nothing of this repaints an indicator or marks the project as changed.
std::vector<Handler> OverlayHandlers(const std::string& solveButton);

/// Empties the survey of joints and cracks when a screen closes that asks for it, so that the next one starts
/// from an empty one.
Handler ClearingOfSurvey();

/// Keeps the field in hand in the hidden box SolveForFiled when its help is asked for.
Handler NotingOfField();

}  // namespace kelvor

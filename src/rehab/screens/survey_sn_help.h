#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `SNCHELP`: the layers of an existing flexible pavement as the condition survey rates them; its OK hands
/// their structural number to the overlay.
FormType SurveySNHelp();

}  // namespace kelvor

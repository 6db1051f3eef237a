#pragma once

#include "forms/screen_context.h"

namespace kelvor {

// The names of a pavement's items stand on two pages: those of the layers, `LayerType`, and those of the
// initial costs, `InitialItem`. Going from one to the other carries them along, all rows, blank ones too.

/// Leaving the page of the pavement for the next one. How many names, blank ones apart, had others in their
/// place before.
int CarryItemsForward(ScreenContext& context, const Form& page);

/// Leaving the page of initial costs for the one before.
void CarryItemsBack(ScreenContext& context, const Form& page);

}  // namespace kelvor

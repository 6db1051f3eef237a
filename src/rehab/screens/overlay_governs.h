#pragma once

#include "forms/form_type.h"

namespace kelvor {

// What decides the overlay thickness of a screen, in words, from the stored cells alone: which effective
// value is taken, which limit holds a value, and why there is none. Values are in the active units.

StatusLine AsphaltOverlayGoverns(const ScreenContext& context);  // `OvAA`
StatusLine FracturedSlabGoverns(const ScreenContext& context);   // `OvAFP`
StatusLine SlabGoverns(const ScreenContext& context);            // `OvAP`
StatusLine CompositeGoverns(const ScreenContext& context);       // `OvAAP`
StatusLine BondedGoverns(const ScreenContext& context);          // `OvBP`
StatusLine UnbondedGoverns(const ScreenContext& context);        // `OvUP`
StatusLine WhitetoppingGoverns(const ScreenContext& context);    // `OvWT`

}  // namespace kelvor

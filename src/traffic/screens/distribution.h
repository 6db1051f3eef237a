#pragma once

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

/// Which fields of the distribution to lane and direction a form offers follows from how the traffic is
/// given: none for the traffic of the design lane, and the direction for two-way traffic only.
void OfferDistribution(const ScreenContext& context, Form& form);

}  // namespace kelvor

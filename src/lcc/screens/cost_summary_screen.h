#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `LcS`: what both pavements cost, side by side, worked out when it opens.
FormType CostSummaryForm();

}  // namespace kelvor

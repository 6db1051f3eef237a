#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `LcA1_3`: a record of routine maintenance for the report; it enters neither the summary nor a chart.
FormType MaintenancePage();

}  // namespace kelvor

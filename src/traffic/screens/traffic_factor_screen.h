#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `TrTr`: the ESALs of a daily traffic and the average ESALs of a truck.
FormType TrafficFactorForm();

}  // namespace kelvor

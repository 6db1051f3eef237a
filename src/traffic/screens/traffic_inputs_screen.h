#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `TrFa`: the inputs that all routes to the ESALs share.
FormType TrafficInputsForm();

}  // namespace kelvor

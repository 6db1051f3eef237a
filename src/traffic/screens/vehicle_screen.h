#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `TrVe`: the ESALs of six classes of vehicles, by the types and loads of their axles.
FormType VehicleForm();

}  // namespace kelvor

#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `TrAx`: the ESALs of a spectrum of axle loads, one axle group a row.
FormType AxleDataForm();

}  // namespace kelvor

#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `About`: which program this is, and which version of it.
FormType AboutForm();

}  // namespace kelvor

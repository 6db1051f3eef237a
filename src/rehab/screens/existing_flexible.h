#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `ExF`: an existing flexible pavement, its subgrade and its layers.
FormType ExistingFlexibleForm();

}  // namespace kelvor

#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `DeF`: balances the flexible design equation for a new pavement.
FormType FlexibleDesignForm();

}  // namespace kelvor

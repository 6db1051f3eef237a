#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `DeR`: balances the design equation of a new rigid pavement.
FormType RigidDesignForm();

/// `DeS`: balances a rigid and a flexible design side by side, each with its own indicator.
FormType BothDesignsForm();

}  // namespace kelvor

#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `LcA1_4`: what a pavement costs after its opening; the first row is the annual maintenance.
FormType RehabilitationPage();

}  // namespace kelvor

#pragma once

#include "calc/dispatch.h"

namespace kelvor {

/// The equations of the screens of new pavements. The one that shows both designs has the rigid terms 1 to
/// 11 and the flexible terms 12 to 18.
KeyTable NewPavementEquations();

}  // namespace kelvor

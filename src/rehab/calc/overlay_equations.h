#pragma once

#include "calc/dispatch.h"

namespace kelvor {

/// The equations of the seven overlay screens: each asks for what future traffic needs.
KeyTable OverlayEquations();

}  // namespace kelvor

#pragma once

#include "design/calc/dispatch.h"

namespace kelvor {

/// The calculations of the layered flexible structure (1993 AASHTO Guide, Part II, Section 3.1.5).
KeyTable LayeredStructureKeys();

}  // namespace kelvor

#pragma once

#include "calc/dispatch.h"

namespace kelvor {

/// The calculations of existing pavements and of their overlays (1993 AASHTO Guide, Part III, Chapter 5).
KeyTable RehabKeys();

}  // namespace kelvor

#pragma once

#include "calc/dispatch.h"

namespace kelvor {

/// The calculations of deflection tests: backcalculation of flexible, rigid and composite pavements, and the
/// averages over all tests (1993 AASHTO Guide, Part III, Chapter 5).
KeyTable NdtKeys();

}  // namespace kelvor

#pragma once

#include "calc/dispatch.h"

namespace kelvor {

/// The calculations of the traffic: ESALs by axle data, by vehicles and by traffic factors (1993 AASHTO
/// Guide, Appendix D).
KeyTable TrafficKeys();

}  // namespace kelvor

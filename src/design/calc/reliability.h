#pragma once

#include <optional>

#include "platform/dialogs.h"
#include "platform/real.h"

namespace kelvor {

/// One interval of the reliability table, and the fraction of it that was last used.
struct ReliabilityInterval {
    Real lowerReliability;
    Real upperReliability;
    Real lowerZR;
    Real upperZR;
    Real fraction;
};

/// What the look-ups keep from one call to the next, for the life of the process.
struct ReliabilityState {
    Real ZR;  // the standard normal deviate of the last reliability looked up
    ReliabilityInterval interval;
};

/// The standard normal deviate of a reliability in per cent, by straight lines between the rows of the
/// 1993 AASHTO Guide's table (Part I, Table 4.1). Below 50 the first interval and between 99.99 and 100
/// the last one is extrapolated; from 100 on the interval of the previous call is, and if there was
/// none, the overflow message is shown and `zr` stays as it was. Keeps the interval used.
void ReliabilityToZR(ReliabilityInterval& interval, Dialogs& dialogs, Real reliability, Real& zr);

/// The deviate of a reliability below 100 per cent by the same table, from nothing but that; nothing for 100
/// and more.
std::optional<Real> DeviateOf(Real reliability);

/// The reliability, in per cent, of a standard normal deviate: 0 on success, -1 on failure with its
/// message and `reliability` unwritten. A deviate above 0 is out of bounds, one of -3.75 or below
/// overflows. Between -0.841 and -0.674 the result is extrapolated from the interval 80 to 85, so a
/// reliability between 75 and 80 does not come back as it was.
int ZRToReliability(Dialogs& dialogs, Real& reliability, Real zr);

}  // namespace kelvor

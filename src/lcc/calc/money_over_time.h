#pragma once

#include "platform/real.h"

namespace kelvor {

// What money of one time is worth at another, at a rate of interest a year as a fraction (5 % is 0.05): the
// usual formulas of engineering economy, as in the 1993 AASHTO Guide, Part I, Chapter 3. Each raises
// ArithmeticFault where it has no value; a series has none at a rate of 0.

/// The present worth of an amount that is spent once, after so many years.
Real WorthOfPayment(Real amount, Real rate, Real years);

/// The present worth of an amount that is spent at the end of each of so many years.
Real WorthOfSeries(Real amount, Real rate, Real years);

/// The yearly payment, over so many years, that a present worth of 1 is equal to. The rate is in per cent.
Real AnnualShare(Real ratePercent, Real years);

}  // namespace kelvor

#pragma once

#include <vector>

#include "calc/calc_context.h"

namespace kelvor {

/// A cost that is paid once.
struct Payment {
    Real amount;
    Real year;
};

/// What a pavement costs, and when: in money of today.
struct CashFlow {
    Real initial;  // in year 0
    Real yearly;   // the annual maintenance, at the end of each year of the period
    Real period;   // years
    std::vector<Payment> payments;
};

/// The cash flow of a pavement, from the cells that the cost summary takes: the total of the initial costs,
/// and the rows 1 to 35 of maintenance and rehabilitation whose cost is not 0. Raises ArithmeticFault where
/// a double does not hold it.
CashFlow ReadCashFlow(const CalcContext& context, int pavement);

/// Its present worth at a discount rate in per cent, 0 included: there the annual maintenance counts for as
/// often as it is paid. (1993 AASHTO Guide, Part I, Chapter 3.)
Real PresentWorthAt(const CashFlow& flow, Real ratePercent);

/// What has been paid by the end of each year, as present worth: from year 0 to the end of the period, or to
/// the last payment where that is later, at most to year 100. A broken year counts to the one that it ends
/// in.
std::vector<Real> CumulatedPresentWorth(const CashFlow& flow, Real ratePercent);

/// The discount rates between 0 and `greatestPercent`, in per cent, at which two cash flows have the same
/// present worth and on either side of which another one has the lower, in ascending order. Two of them
/// less than 0.1 per cent apart may be missed.
std::vector<double> BreakEvenRates(const CashFlow& a, const CashFlow& b, double greatestPercent);

}  // namespace kelvor

#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "calc/calc_context.h"
#include "platform/real.h"

namespace kelvor {

/// What a pavement costs over its analysis period.
struct PavementCosts {
    Real initial;         // the initial costs, `ItemTotal2`
    Real rehabilitation;  // the costs of maintenance and rehabilitation, `ItemTotal4`
    Real todays;          // both together, in money of today
    Real inflated;        // the same in the money of the years in which it is spent
    Real discounted;      // the present worth
    Real euac;            // the equivalent uniform annual cost of the present worth
};

/// The costs of both pavements side by side. It lives as long as the process: an annual cost that cannot be
/// worked out anew stays what it was.
struct CostSummary {
    std::array<PavementCosts, 2> pavements;  // A, B
    PavementCosts difference;                // A less B
};

/// Told of each step that has no value; the summary goes on with the next one.
using FaultReport = std::function<void(const ArithmeticFault&)>;

/// Works out the cost summary from the totals of the grids and the rows 1 to 35 of maintenance and
/// rehabilitation; a row whose cost is 0 is passed over. A step without a value keeps what was gathered
/// before it, and is reported. Nothing is written to the project. (1993 AASHTO Guide, Part I, Chapter 3.)
///
/// With the inflation rate f, the discount rate d and the period n of the pavement:
/// - A cost C of the year y is C (1 + f)^y inflated and C / (1 + d)^y discounted, also beyond the period.
/// - An annual maintenance A, row 1, is A ((1 + f)^n - 1) / d inflated: the growth is that of inflation and
///   the divisor the discount rate, unlike the sum of a series, which has one rate. Discounted it is the
///   uniform series A ((1 + d)^n - 1) / ((1 + d)^n d). Neither has a value at d = 0.
/// - The annual cost spreads the present worth evenly over the period. It is worked out only if neither the
///   discount rate nor the period is 0.
///
/// There is no salvage value, and pavements of different periods are compared as they are.
void ComputeCostSummary(const CalcContext& context, CostSummary& summary, const FaultReport& report);

/// The same without the differences of the two.
void ComputePavementCosts(const CalcContext& context, CostSummary& summary, const FaultReport& report);

/// A value in whole money, "#,##0"; nothing counts as 0.
std::string FormatWhole(std::optional<Real> value);

}  // namespace kelvor

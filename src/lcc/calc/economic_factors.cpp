#include "lcc/calc/economic_factors.h"

#include <array>

#include "platform/real.h"

namespace kelvor {

namespace {

/// The real rate of interest, percent, from the interest rate and the inflation rate, both percent: what is
/// left of the interest once money has lost its value (engineering economy, the Fisher relation). A rate that
/// was not entered counts as 0.
void CalcDiscountRate(CalcContext& context, std::string_view target) {
    const Real interest = context.Get("InterestRate");
    const Real inflation = context.Get("InflationRate");
    context.Put(target, (interest - inflation) / (1.0 + inflation / 100.0));
}

constexpr std::array kFields = {FieldKey{"DISCOUNTRATE", CalcDiscountRate}};

}  // namespace

KeyTable EconomicFactorKeys() { return {kFields, {}}; }

}  // namespace kelvor

#include "lcc/calc/cost_verdict.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "lcc/calc/cash_flow.h"
#include "lcc/calc/cost_summary.h"
#include "lcc/calc/money_over_time.h"
#include "lcc/calc/pavements.h"
#include "platform/number_picture.h"

namespace kelvor {

namespace {

constexpr double kGreatestRate = 15.0;  // per cent, beyond what agencies discount with

const char* NameOfPavement(int pavement) { return pavement == kPavementA ? "A" : "B"; }

std::string Rate(double percent) { return FormatNumber(percent, "0.0"); }

/// "12 per cent less", or only "less" where a part of nothing would have to be told.
std::string HowMuchLess(double low, double high) {
    if (low <= 0.0) return "less";
    const std::string percent = FormatNumber((high - low) / high * 100.0, "0");
    return (percent == "0" ? "less than 1" : percent) + " per cent less";
}

std::string CompareAnnualCosts(const CostSummary& summary) {
    const double a = summary.pavements[0].euac.value();
    const double b = summary.pavements[1].euac.value();
    if (FormatWhole(a) == FormatWhole(b)) return "Both pavements cost " + FormatWhole(a) + " a year.";
    const bool isB = b < a;
    return std::string("Pavement ") + (isB ? "B" : "A") + " costs " +
           HowMuchLess(std::min(a, b), std::max(a, b)) + " a year than " + (isB ? "A" : "B") + ": " +
           FormatWhole(std::min(a, b)) + " against " + FormatWhole(std::max(a, b)) + ".";
}

/// Which has the lower present worth, from the lowest rate to the highest.
std::string TellBreakEven(const CashFlow& a, const CashFlow& b) {
    const std::vector<double> rates = BreakEvenRates(a, b, kGreatestRate);
    if (rates.empty()) return "Between 0 and 15 per cent the present worths do not cross.";
    const double below = rates.front() / 2.0;
    bool isA = PresentWorthAt(a, below).value() < PresentWorthAt(b, below).value();
    std::string text =
        "Below " + Rate(rates.front()) + " per cent " + (isA ? "A" : "B") + " has the lower present worth";
    for (std::size_t i = 0; i < rates.size(); ++i) {
        isA = !isA;
        const bool isLast = i + 1 == rates.size();
        text +=
            isLast ? ", above " + Rate(rates[i]) : ", from " + Rate(rates[i]) + " to " + Rate(rates[i + 1]);
        text += isA ? " A" : " B";
    }
    return text + ".";
}

/// Two numbers that were worked out alike differ by no more than rounding.
bool IsSame(Real one, Real other) {
    const double greatest = std::max(std::fabs(one.value()), std::fabs(other.value()));
    return std::fabs((one - other).value()) <= 1e-9 * greatest;
}

/// True if the period or the rate has changed since the annual maintenance was priced.
bool IsStale(const CalcContext& context, const CashFlow& flow, int pavement) {
    const Real cost = context.Get("RehabItemCost", kAnnualMaintenanceRow, pavement);
    const Real worth = context.Get("PWCostR", kAnnualMaintenanceRow, pavement);
    const Real rate = context.Get("DiscountRate") / 100.0;
    return !IsSame(cost, flow.yearly * flow.period) ||
           !IsSame(worth, WorthOfSeries(flow.yearly, rate, flow.period));
}

std::string TellStalePages(const CalcContext& context, const CashFlow& a, const CashFlow& b) {
    std::string text;
    for (const int pavement : kPavements) {
        if (!IsStale(context, pavement == kPavementA ? a : b, pavement)) continue;
        const std::string name = NameOfPavement(pavement);
        text += " The annual maintenance of pavement " + name +
                " was priced with another period or rate: open Pavement (" + name +
                ") Maintenance & Rehabilitation Costs first.";
    }
    return text;
}

}  // namespace

std::string CostVerdict(const CalcContext& context) {
    const bool spreads = context.Get("DiscountRate") != 0.0 && AnalysisPeriod(context, kPavementA) != 0.0 &&
                         AnalysisPeriod(context, kPavementB) != 0.0;
    if (!spreads) return {};
    bool complete = true;
    CostSummary summary;
    ComputeCostSummary(context, summary, [&](const ArithmeticFault&) { complete = false; });
    if (!complete) return {};
    try {
        const CashFlow a = ReadCashFlow(context, kPavementA);
        const CashFlow b = ReadCashFlow(context, kPavementB);
        return CompareAnnualCosts(summary) + " " + TellBreakEven(a, b) + TellStalePages(context, a, b);
    } catch (const ArithmeticFault&) {
        return {};
    }
}

}  // namespace kelvor

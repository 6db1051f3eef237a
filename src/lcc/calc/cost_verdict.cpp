#include "lcc/calc/cost_verdict.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "lcc/calc/cash_flow.h"
#include "lcc/calc/cost_summary.h"
#include "lcc/calc/money_over_time.h"
#include "lcc/calc/pavements.h"
#include "platform/number_picture.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr double kGreatestRate = 15.0;  // per cent, beyond what agencies discount with

const char* NameOfPavement(int pavement) { return pavement == kPavementA ? "A" : "B"; }

std::string Rate(double percent) { return FormatNumber(percent, "0.0"); }

/// Of two costs a year which is less, and by how much: of which part of nothing is not told.
std::string TellCheaper(double low, double high, const char* cheaper, const char* dearer) {
    const std::string lowText = FormatWhole(low);
    const std::string highText = FormatWhole(high);
    if (low <= 0.0) {
        return Filled(Translated("Pavement %1 costs less a year than %2: %3 against %4."),
                      {cheaper, dearer, lowText, highText});
    }
    const std::string percent = FormatNumber((high - low) / high * 100.0, "0");
    if (percent == "0") {
        return Filled(
            Translated("Pavement %1 costs less than 1 per cent less a year than %2: %3 against %4."),
            {cheaper, dearer, lowText, highText});
    }
    return Filled(Translated("Pavement %1 costs %5 per cent less a year than %2: %3 against %4."),
                  {cheaper, dearer, lowText, highText, percent});
}

std::string CompareAnnualCosts(const CostSummary& summary) {
    const double a = summary.pavements[0].euac.value();
    const double b = summary.pavements[1].euac.value();
    if (FormatWhole(a) == FormatWhole(b)) {
        return Filled(Translated("Both pavements cost %1 a year."), {FormatWhole(a)});
    }
    return b < a ? TellCheaper(b, a, "B", "A") : TellCheaper(a, b, "A", "B");
}

/// Which has the lower present worth, from the lowest rate to the highest.
std::string TellBreakEven(const CashFlow& a, const CashFlow& b) {
    const std::vector<double> rates = BreakEvenRates(a, b, kGreatestRate);
    if (rates.empty()) return Translated("Between 0 and 15 per cent the present worths do not cross.");
    const double below = rates.front() / 2.0;
    bool isA = PresentWorthAt(a, below).value() < PresentWorthAt(b, below).value();
    const auto name = [&] { return isA ? "A" : "B"; };
    std::string text =
        Filled(Translated("Below %1 per cent %2 has the lower present worth"), {Rate(rates.front()), name()});
    for (std::size_t i = 0; i + 1 < rates.size(); ++i) {
        isA = !isA;
        text = Filled(Translated("%1, from %2 to %3 %4"), {text, Rate(rates[i]), Rate(rates[i + 1]), name()});
    }
    isA = !isA;
    return Filled(Translated("%1, above %2 %3."), {text, Rate(rates.back()), name()});
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
        text +=
            " " + Filled(Translated("The annual maintenance of pavement %1 was priced with another period or "
                                    "rate: open Pavement (%1) Maintenance & Rehabilitation Costs first."),
                         {name});
    }
    return text;
}

/// Of a pavement that costs nothing; empty if both cost something.
std::string TellMissingCosts(const CostSummary& summary) {
    const auto isFree = [](const PavementCosts& costs) {
        return costs.initial == 0.0 && costs.rehabilitation == 0.0 && costs.discounted == 0.0;
    };
    const bool a = isFree(summary.pavements[0]);
    const bool b = isFree(summary.pavements[1]);
    if (a && b) return Translated("Neither pavement has costs yet.");
    if (!a && !b) return {};
    return Filled(Translated("Pavement %1 has no costs yet: there is nothing to compare."), {a ? "A" : "B"});
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
    if (std::string missing = TellMissingCosts(summary); !missing.empty()) return missing;
    try {
        const CashFlow a = ReadCashFlow(context, kPavementA);
        const CashFlow b = ReadCashFlow(context, kPavementB);
        return CompareAnnualCosts(summary) + " " + TellBreakEven(a, b) + TellStalePages(context, a, b);
    } catch (const ArithmeticFault&) {
        return {};
    }
}

}  // namespace kelvor

#include "lcc/calc/cash_flow.h"

#include <algorithm>
#include <cmath>

#include "lcc/calc/money_over_time.h"
#include "lcc/calc/pavements.h"

namespace kelvor {

namespace {

constexpr double kLastYear = 100.0;
constexpr double kRateStep = 0.1;        // per cent, between the rates that are looked at
constexpr double kRateTolerance = 1e-6;  // per cent

/// The year in which a payment is made, of those that are told apart.
std::size_t YearOf(Real years) {
    return static_cast<std::size_t>(std::clamp(std::ceil(years.value()), 0.0, kLastYear));
}

class Difference {
  public:
    Difference(const CashFlow& a, const CashFlow& b) : a_(a), b_(b) {}

    [[nodiscard]] double At(double ratePercent) const {
        return (PresentWorthAt(a_, ratePercent) - PresentWorthAt(b_, ratePercent)).value();
    }

    /// The rate at which the sign changes between two others.
    [[nodiscard]] double Root(double below, double above) const {
        const bool positive = At(below) > 0.0;
        while (above - below > kRateTolerance) {
            const double middle = (below + above) / 2.0;
            ((At(middle) > 0.0) == positive ? below : above) = middle;
        }
        return (below + above) / 2.0;
    }

  private:
    const CashFlow& a_;
    const CashFlow& b_;
};

}  // namespace

CashFlow ReadCashFlow(const CalcContext& context, int pavement) {
    CashFlow flow;
    flow.initial = context.Get("ItemTotal2", 1, pavement);
    flow.period = AnalysisPeriod(context, pavement);
    if (context.Get("RehabItemCost", kAnnualMaintenanceRow, pavement) != 0.0) {
        flow.yearly = context.Get("RehabQuantity", kAnnualMaintenanceRow, pavement) *
                      context.Get("RehabUnitCost", kAnnualMaintenanceRow, pavement);
    }
    for (int row = kAnnualMaintenanceRow + 1; row <= kLastCostRow; ++row) {
        const Real amount = context.Get("RehabItemCost", row, pavement);
        if (amount != 0.0) flow.payments.push_back({amount, context.Get("RehabYear", row, pavement)});
    }
    return flow;
}

Real PresentWorthAt(const CashFlow& flow, Real ratePercent) {
    const Real rate = ratePercent / 100.0;
    Real worth = flow.initial;
    if (flow.yearly != 0.0) {
        worth += rate == 0.0 ? flow.yearly * flow.period : WorthOfSeries(flow.yearly, rate, flow.period);
    }
    for (const Payment& payment : flow.payments) worth += WorthOfPayment(payment.amount, rate, payment.year);
    return worth;
}

std::vector<Real> CumulatedPresentWorth(const CashFlow& flow, Real ratePercent) {
    const Real rate = ratePercent / 100.0;
    std::size_t last = YearOf(Floor(flow.period));
    for (const Payment& payment : flow.payments) last = std::max(last, YearOf(payment.year));
    std::vector<Real> paid(last + 1);
    paid[0] = flow.initial;
    for (std::size_t year = 1; year <= YearOf(Floor(flow.period)); ++year) {
        paid[year] += WorthOfPayment(flow.yearly, rate, static_cast<double>(year));
    }
    for (const Payment& payment : flow.payments) {
        paid[YearOf(payment.year)] += WorthOfPayment(payment.amount, rate, payment.year);
    }
    for (std::size_t year = 1; year < paid.size(); ++year) paid[year] += paid[year - 1];
    return paid;
}

std::vector<double> BreakEvenRates(const CashFlow& a, const CashFlow& b, double greatestPercent) {
    const Difference difference(a, b);
    std::vector<double> rates;
    double last = 0.0;  // the rate of the last difference that was not 0
    double sign = 0.0;  // and that difference
    const int steps = static_cast<int>(std::lround(greatestPercent / kRateStep));
    for (int i = 0; i <= steps; ++i) {
        const double rate = greatestPercent * i / steps;
        const double here = difference.At(rate);
        if (here == 0.0) continue;
        if (sign != 0.0 && (here > 0.0) != (sign > 0.0)) rates.push_back(difference.Root(last, rate));
        last = rate;
        sign = here;
    }
    return rates;
}

}  // namespace kelvor

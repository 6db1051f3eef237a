#include "lcc/calc/cost_chart_values.h"

#include "calc/ignore_faults.h"
#include "lcc/calc/cost_summary.h"
#include "lcc/calc/pavements.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

std::optional<Real> CostOfCategory(const PavementCosts& costs, Real annualMaintenance,
                                   std::string_view category) {
    if (category == "InitialCost") return costs.initial;
    if (category == "MaintCost") return annualMaintenance;
    if (category == "RehabCost") return costs.rehabilitation;
    if (category == "TotalExpenditures") return costs.todays;
    if (category == "PW") return costs.discounted;
    if (category == "EUAC") return costs.euac;
    return std::nullopt;
}

}  // namespace

std::optional<std::array<double, 2>> CostSummaryValues(const CalcContext& context,
                                                       std::string_view category) {
    CostSummary summary;
    ComputeCostSummary(context, summary, [](const ArithmeticFault&) {});
    std::array<double, 2> values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        PavementCosts& costs = summary.pavements[i];
        const Real maintenance = context.Get("RehabItemCost", kAnnualMaintenanceRow, kPavements[i]);
        IgnoreFaults([&] { costs.rehabilitation = costs.rehabilitation - maintenance; });
        const std::optional<Real> cost = CostOfCategory(costs, maintenance, category);
        if (!cost) return std::nullopt;
        values[i] = ParseNumber(FormatWhole(cost));
    }
    return values;
}

}  // namespace kelvor

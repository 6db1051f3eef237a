#include "lcc/calc/cost_summary.h"

#include "lcc/calc/money_over_time.h"
#include "lcc/calc/pavements.h"
#include "platform/number_picture.h"

namespace kelvor {

namespace {

/// Adds up the costs of pavements, step by step.
class Summation {
  public:
    Summation(const CalcContext& context, const FaultReport& report)
        : context_(context),
          report_(report),
          inflation_(context.Get("InflationRate") / 100.0),
          discount_(context.Get("DiscountRate") / 100.0) {}

    void Gather(PavementCosts& costs, int pavement) const {
        costs.initial = context_.Get("ItemTotal2", 1, pavement);
        costs.rehabilitation = context_.Get("ItemTotal4", 1, pavement);
        Step([&] { costs.todays = costs.rehabilitation + costs.initial; });
        costs.inflated = costs.initial;
        costs.discounted = costs.initial;
        if (ItemCost(kAnnualMaintenanceRow, pavement) != 0.0) AddAnnualMaintenance(costs, pavement);
        for (int row = kAnnualMaintenanceRow + 1; row <= kLastCostRow; ++row) {
            if (ItemCost(row, pavement) != 0.0) AddItem(costs, row, pavement);
        }
    }

    void SpreadOverYears(PavementCosts& costs, int pavement) const {
        const Real ratePercent = context_.Get("DiscountRate");
        const Real years = AnalysisPeriod(context_, pavement);
        if (ratePercent == 0.0 || years == 0.0) return;
        Step([&] { costs.euac = costs.discounted * AnnualShare(ratePercent, years); });
    }

    void Compare(CostSummary& summary) const {
        for (Real PavementCosts::*const cost :
             {&PavementCosts::initial, &PavementCosts::rehabilitation, &PavementCosts::todays,
              &PavementCosts::inflated, &PavementCosts::discounted, &PavementCosts::euac}) {
            Step([&] { summary.difference.*cost = summary.pavements[0].*cost - summary.pavements[1].*cost; });
        }
    }

  private:
    template <typename Action>
    void Step(Action action) const {
        try {
            action();
        } catch (const ArithmeticFault& fault) {
            report_(fault);
        }
    }

    [[nodiscard]] Real ItemCost(int row, int pavement) const {
        return context_.Get("RehabItemCost", row, pavement);
    }

    void AddAnnualMaintenance(PavementCosts& costs, int pavement) const {
        const Real years = AnalysisPeriod(context_, pavement);
        const auto yearly = [&] {
            return context_.Get("RehabQuantity", kAnnualMaintenanceRow, pavement) *
                   context_.Get("RehabUnitCost", kAnnualMaintenanceRow, pavement);
        };
        Step([&] { costs.inflated += yearly() * (Pow(1.0 + inflation_, years) - 1.0) / discount_; });
        Step([&] { costs.discounted += WorthOfSeries(yearly(), discount_, years); });
    }

    void AddItem(PavementCosts& costs, int row, int pavement) const {
        const Real cost = ItemCost(row, pavement);
        const Real year = context_.Get("RehabYear", row, pavement);
        Step([&] { costs.inflated += cost * Pow(1.0 + inflation_, year); });
        Step([&] { costs.discounted += WorthOfPayment(cost, discount_, year); });
    }

    const CalcContext& context_;
    const FaultReport& report_;
    Real inflation_;
    Real discount_;
};

}  // namespace

void ComputePavementCosts(const CalcContext& context, CostSummary& summary, const FaultReport& report) {
    const Summation summation(context, report);
    for (std::size_t i = 0; i < kPavements.size(); ++i) summation.Gather(summary.pavements[i], kPavements[i]);
    for (std::size_t i = 0; i < kPavements.size(); ++i) {
        summation.SpreadOverYears(summary.pavements[i], kPavements[i]);
    }
}

void ComputeCostSummary(const CalcContext& context, CostSummary& summary, const FaultReport& report) {
    ComputePavementCosts(context, summary, report);
    Summation(context, report).Compare(summary);
}

std::string FormatWhole(std::optional<Real> value) {
    return FormatNumber(value.value_or(0.0).value(), "#,##0");
}

}  // namespace kelvor

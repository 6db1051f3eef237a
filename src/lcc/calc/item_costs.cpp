#include "lcc/calc/item_costs.h"

#include "lcc/calc/money_over_time.h"
#include "lcc/calc/pavements.h"

namespace kelvor {

namespace {

Real DiscountRate(const CalcContext& context) { return context.Get("DiscountRate") / 100.0; }

}  // namespace

void CalcInitialItemCost(CalcContext& context, std::string_view target, int row, int pavement) {
    context.Put(
        target, row, pavement,
        context.Get("InitialQuantity", row, pavement) * context.Get("InitialUnitCost", row, pavement));
}

void CalcInitialItem(CalcContext& context, std::string_view /*target*/, int row, int pavement) {
    CalcInitialItemCost(context, "InitialItemCost", row, pavement);
}

void CalcRehabItemCost(CalcContext& context, std::string_view target, int row, int pavement) {
    Real cost = context.Get("RehabQuantity", row, pavement) * context.Get("RehabUnitCost", row, pavement);
    if (row == kAnnualMaintenanceRow) cost = cost * AnalysisPeriod(context, pavement);
    context.Put(target, row, pavement, cost);
}

void CalcRehabPresentWorth(CalcContext& context, std::string_view target, int row, int pavement) {
    const Real rate = DiscountRate(context);
    if (row == kAnnualMaintenanceRow) {
        const Real yearly =
            context.Get("RehabQuantity", row, pavement) * context.Get("RehabUnitCost", row, pavement);
        context.Put(target, row, pavement, WorthOfSeries(yearly, rate, AnalysisPeriod(context, pavement)));
        return;
    }
    const Real cost = context.Get("RehabItemCost", row, pavement);
    context.Put(target, row, pavement, WorthOfPayment(cost, rate, context.Get("RehabYear", row, pavement)));
}

void CalcMaintItemCost(CalcContext& context, std::string_view target) {
    const int row = context.values.gridRow;
    const int pavement = context.values.dim2;
    const Real cost = context.Get("MaintQuantity", row, pavement) *
                      context.Get("MaintUnitCost", row, pavement) * AnalysisPeriod(context, pavement);
    context.Put(target, row, pavement, cost);
}

void CalcMaintPresentWorth(CalcContext& context, std::string_view target) {
    const int row = context.values.gridRow;
    const int pavement = context.values.dim2;
    const Real cost = context.Get("MaintItemCost", row, pavement);
    context.Put(target, row, pavement,
                WorthOfPayment(cost, DiscountRate(context), context.Get("MaintYear", row, pavement)));
}

}  // namespace kelvor

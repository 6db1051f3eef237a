#include "lcc/calc/cost_totals.h"

#include <optional>

namespace kelvor {

namespace {

void PutTotal(CalcContext& context, std::string_view target, int pavement, std::optional<Real> sum) {
    context.Put(target, 1, pavement, sum.value_or(0.0));
}

}  // namespace

void SumInitialCosts(CalcContext& context, std::string_view target, int pavement) {
    PutTotal(context, target, pavement, context.store.SQLSum("InitialItemCost", pavement));
}

void SumRehabCosts(CalcContext& context, std::string_view target, int pavement) {
    PutTotal(context, target, pavement, context.store.SQLSum("RehabItemCost", pavement));
}

void SumRehabPresentWorth(CalcContext& context, std::string_view target, int pavement) {
    PutTotal(context, target, pavement, context.store.SQLSum("PWCostR", pavement));
}

void SumMaintCosts(CalcContext& context, std::string_view target, int pavement) {
    PutTotal(context, target, pavement, context.store.SQLSum("MaintItemCost"));
}

void SumMaintPresentWorth(CalcContext& context, std::string_view target, int pavement) {
    PutTotal(context, target, pavement, context.store.SQLSum("PWCostM"));
}

}  // namespace kelvor

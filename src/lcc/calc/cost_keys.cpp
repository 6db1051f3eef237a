#include "lcc/calc/cost_keys.h"

#include <array>

#include "lcc/calc/cost_totals.h"
#include "lcc/calc/item_costs.h"

namespace kelvor {

namespace {

using Total = void (*)(CalcContext& context, std::string_view target, int pavement);

/// A total of the pavement that the current screen shows.
template <Total total>
void OfShownPavement(CalcContext& context, std::string_view target) {
    total(context, target, context.values.dim2);
}

constexpr std::array kFields = {
    FieldKey{"ItemTotal2", OfShownPavement<SumInitialCosts>},
    FieldKey{"ItemTotal3", OfShownPavement<SumMaintCosts>},
    FieldKey{"ItemTotal4", OfShownPavement<SumRehabCosts>},
    FieldKey{"PrWorthTotal3", OfShownPavement<SumMaintPresentWorth>},
    FieldKey{"PrWorthTotal4", OfShownPavement<SumRehabPresentWorth>},
    FieldKey{"MaintItemCost", CalcMaintItemCost},
    FieldKey{"PWCostM", CalcMaintPresentWorth},
};
constexpr std::array kCells = {
    CellKeyRoutine{"InitialItemCost", CalcInitialItemCost},
    CellKeyRoutine{"InitialItem", CalcInitialItem},
    CellKeyRoutine{"RehabItemCost", CalcRehabItemCost},
    CellKeyRoutine{"PWCostR", CalcRehabPresentWorth},
};

}  // namespace

KeyTable CostKeys() { return {kFields, kCells}; }

}  // namespace kelvor

#include "lcc/screens/cost_grid_page.h"

#include <algorithm>
#include <span>
#include <string>

#include "forms/form.h"
#include "lcc/calc/item_quantity.h"
#include "lcc/screens/cost_page.h"
#include "platform/text.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// The name in the active system of a stored one; what it was if there is none. On the way to metric units
/// the first pair of the catalogue is passed over, on the way back it is not.
std::string SwappedName(const ScreenContext& context, const std::string& stored) {
    const bool metric = context.units.bMetric();
    std::span<const UnitPair> pairs = context.catalogue.unitPairs();
    if (metric && !pairs.empty()) pairs = pairs.subspan(1);
    const auto found = std::find_if(pairs.begin(), pairs.end(), [&](const UnitPair& pair) {
        return Like(metric ? pair.english : pair.metric, stored);
    });
    if (found == pairs.end()) return stored;
    return metric ? found->metric : found->english;
}

/// The English quantity behind a metric one was worked out by the unit that its row had then.
bool HasMetricQuantity(const ScreenContext& context, const CostGrid& grid, int row, int pavement) {
    const CellValue* quantity = context.calc.store.FindCell(grid.quantity, row, pavement);
    return context.units.bMetric() && quantity != nullptr && quantity->number.has_value();
}

}  // namespace

void FollowCostCell(ScreenContext& context, Form& page, const CostGrid& grid) {
    const GridData& shown = *page.FindGrid()->grid;
    const std::string& variable = shown.current().variable;
    const int pavement = PavementOf(page);
    if (EqualNoCase(variable, grid.unit) && HasMetricQuantity(context, grid, shown.row, pavement)) {
        ShowUnitNote(page, Translated("The quantity was entered for another unit: enter it again."));
    } else if (EqualNoCase(variable, grid.item)) {
        const std::string item = context.units.GetDisplayValue(variable, shown.row, pavement);
        if (!item.empty()) FillItem(context.calc, context.lists, grid, shown.row, pavement, item);
    }
}

void SwapUnitNames(const ScreenContext& context, const Form& page, const CostGrid& grid) {
    const Variable* unit = context.catalogue.FindVariable(grid.unit);
    for (int row = 1; unit != nullptr && row <= unit->dim1; ++row) {
        const CellValue* cell = context.calc.store.FindCell(grid.unit, row, PavementOf(page));
        if (cell == nullptr || !cell->text) continue;
        const std::string name = SwappedName(context, *cell->text);
        if (name != *cell->text) {
            context.calc.store.SetCell(grid.unit, row, PavementOf(page), {std::nullopt, name});
        }
    }
}

}  // namespace kelvor

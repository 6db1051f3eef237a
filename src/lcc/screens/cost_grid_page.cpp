#include "lcc/screens/cost_grid_page.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>

#include "forms/form.h"
#include "lcc/calc/item_quantity.h"
#include "lcc/calc/pavements.h"
#include "lcc/screens/cost_page.h"
#include "platform/number_text.h"
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

/// Two numbers that differ by less, of their size, were the same before they were rounded.
constexpr double kRoundedOff = 1e-9;

/// True if the English quantity behind a metric one was worked out by another unit than the row has now.
bool IsOfAnotherUnit(const ScreenContext& context, const CostGrid& grid, int row, int pavement) {
    const CellValue* quantity = context.calc.store.FindCell(grid.quantity, row, pavement);
    const CellValue* unit = context.calc.store.FindCell(grid.unit, row, pavement);
    if (!context.units.bMetric() || quantity == nullptr || unit == nullptr) return false;
    if (!quantity->number || !quantity->text || !IsNumeric(*quantity->text)) return false;
    const double factor = context.units.UnitFactor(context.units.EnglishUnit(unit->text.value_or("")));
    const double byUnit = *quantity->number / factor;
    return std::abs(byUnit - ParseNumber(*quantity->text)) > kRoundedOff * std::abs(byUnit);
}

}  // namespace

void FollowCostCell(ScreenContext& context, Form& page, const CostGrid& grid) {
    const GridData& shown = *page.FindGrid()->grid;
    const std::string& variable = shown.current().variable;
    const int pavement = PavementOf(page);
    if (EqualNoCase(variable, grid.unit) && IsOfAnotherUnit(context, grid, shown.row, pavement)) {
        ShowUnitNote(page, Translated("The quantity was entered for another unit: enter it again."));
    } else if (EqualNoCase(variable, grid.item)) {
        const std::string item = context.units.GetDisplayValue(variable, shown.row, pavement);
        if (!item.empty()) FillItem(context.calc, context.lists, grid, shown.row, pavement, item);
    }
}

bool StandsInOtherUnits(const ScreenContext& context, const CostGrid& grid) {
    const Variable* unit = context.catalogue.FindVariable(grid.unit);
    for (int row = 1; unit != nullptr && row <= unit->dim1; ++row) {
        for (const int pavement : kPavements) {
            const CellValue* cell = context.calc.store.FindCell(grid.unit, row, pavement);
            if (cell != nullptr && cell->text && SwappedName(context, *cell->text) != *cell->text)
                return true;
        }
    }
    return false;
}

bool SwapUnitNames(const ScreenContext& context, const Form& page, const CostGrid& grid) {
    bool swapped = false;
    const Variable* unit = context.catalogue.FindVariable(grid.unit);
    for (int row = 1; unit != nullptr && row <= unit->dim1; ++row) {
        const CellValue* cell = context.calc.store.FindCell(grid.unit, row, PavementOf(page));
        if (cell == nullptr || !cell->text) continue;
        const std::string name = SwappedName(context, *cell->text);
        if (name == *cell->text) continue;
        context.calc.store.SetCell(grid.unit, row, PavementOf(page), {std::nullopt, name});
        swapped = true;
    }
    return swapped;
}

}  // namespace kelvor

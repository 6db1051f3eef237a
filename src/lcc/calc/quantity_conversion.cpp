#include "lcc/calc/quantity_conversion.h"

#include <string>

#include "calc/ignore_faults.h"
#include "lcc/calc/cost_grid.h"
#include "lcc/calc/cost_totals.h"
#include "lcc/calc/item_costs.h"
#include "lcc/calc/pavements.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

/// The cell as it is; an empty one where there is none.
CellValue CellOf(const CalcContext& context, const char* column, int row, int pavement) {
    const CellValue* cell = context.store.FindCell(column, row, pavement);
    return cell == nullptr ? CellValue{} : *cell;
}

/// The number of a quantity in the active system, from its text; what it was if there is none.
std::optional<double> Converted(const CalcContext& context, const CellValue& quantity, double factor) {
    const std::string& english = *quantity.text;
    const bool metric = context.units.bMetric();
    if (!IsNumeric(english) || (metric && factor == 1.0)) return quantity.number;
    const Real number = ParseNumber(english);
    return (metric ? number * factor : number / factor).value();
}

/// True if the row has another unit then.
bool ConvertRow(CalcContext& context, const CostGrid& grid, int row, int pavement) {
    const CellValue unit = CellOf(context, grid.unit, row, pavement);
    const CellValue quantity = CellOf(context, grid.quantity, row, pavement);
    const double factor = context.units.UnitFactor(unit.text.value_or(""));
    const std::string active = unit.text ? context.units.ActiveUnit(*unit.text) : "";
    if (unit.text) context.store.SetCell(grid.unit, row, pavement, {std::nullopt, active});
    if (!quantity.text) {
        context.Clear(grid.quantity, row, pavement);
    } else {
        IgnoreFaults([&] {
            context.store.SetCell(grid.quantity, row, pavement,
                                  {Converted(context, quantity, factor), quantity.text});
        });
    }
    return unit.text && *unit.text != active;
}

/// Converts the rows of both pavements; `calculate` works out each, and one without a quantity costs 0.
/// True if any has another unit then.
template <typename Calculation>
bool ConvertRows(CalcContext& context, const CostGrid& grid, Calculation calculate) {
    bool converted = false;
    for (const int pavement : kPavements) {
        for (int row = 1; row <= kLastConvertedRow; ++row) {
            converted = ConvertRow(context, grid, row, pavement) || converted;
            calculate(row, pavement);
        }
    }
    return converted;
}

}  // namespace

bool ConvertInitialQuantities(CalcContext& context) {
    const bool converted = ConvertRows(context, kInitialGrid, [&](int row, int pavement) {
        IgnoreFaults([&] { CalcInitialItemCost(context, "InitialItemCost", row, pavement); });
    });
    for (const int pavement : kPavements) {
        IgnoreFaults([&] { SumInitialCosts(context, "ItemTotal2", pavement); });
    }
    return converted;
}

bool ConvertRehabQuantities(CalcContext& context) {
    const bool converted = ConvertRows(context, kRehabGrid, [&](int row, int pavement) {
        IgnoreFaults([&] { CalcRehabItemCost(context, "RehabItemCost", row, pavement); });
        IgnoreFaults([&] { CalcRehabPresentWorth(context, "PWCostR", row, pavement); });
    });
    for (const int pavement : kPavements) {
        IgnoreFaults([&] { SumRehabCosts(context, "ItemTotal4", pavement); });
        IgnoreFaults([&] { SumRehabPresentWorth(context, "PrWorthTotal4", pavement); });
    }
    return converted;
}

}  // namespace kelvor

#include "lcc/calc/item_quantity.h"

#include <cmath>
#include <string>

#include "calc/ignore_faults.h"
#include "lcc/calc/quantity_table.h"
#include "platform/number_text.h"

namespace kelvor {

void FillItem(CalcContext& context, ListDatabase& lists, const CostGrid& grid, int row, int pavement,
              std::string_view item) {
    const std::optional<double> place = lists.FindPlace(grid.items, item, context.units.bMetric());
    const double number = std::nearbyint(place.value_or(0.0));
    if (number < 1.0 || number > kMeasuredItems) return;
    const QuantityTable table = BuildQuantityTable(context.units, pavement);
    const auto& [quantity, unit] = table[static_cast<std::size_t>(number) - 1];
    context.store.SetCell(grid.unit, row, pavement, {std::nullopt, std::string(unit)});
    IgnoreFaults([&] {
        const double value = quantity.value();
        context.store.SetCell(grid.quantity, row, pavement,
                              context.units.QuantityCell(value, NumberToText(value), unit));
    });
}

}  // namespace kelvor

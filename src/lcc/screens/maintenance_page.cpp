#include "lcc/screens/maintenance_page.h"

#include <utility>

#include "forms/form.h"
#include "lcc/screens/cost_page.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// These costs are worked out for the row in which the user works: here for each that was written.
void RowsWritten(ScreenEvent& event) {
    ScreenContext& context = event.context;
    for (const int row : event.form.FindGrid()->grid->writtenRows) {
        const int current = std::exchange(context.values.gridRow, row);
        context.calculations.CalcField(context.calc, "MaintItemCost", "MaintItemCost");
        context.calculations.CalcField(context.calc, "PWCostM", "PWCostM");
        context.values.gridRow = current;
    }
}

void UnitsSwitched(ScreenEvent& event) {
    ShowUnitNote(event.form,
                 Translated("Quantities and unit costs of this page do not convert: they stay as entered."));
}

}  // namespace

FormType MaintenancePage() {
    constexpr int kRowsShown = 10;
    FormType type =
        CostPage("LcA1_3", {
                               {FormEvent::RowsWritten, "Grid", HandlerOrder::Before, RowsWritten},
                               {FormEvent::UnitsSwitched, "", HandlerOrder::After, UnitsSwitched},
                           });
    type.caption = "Pavement (A) Maintenance Costs";
    type.layout = Rows({
        Grid("Grid",
             {{.variable = "MaintItem", .list = true, .letters = 22.0},
              {.variable = "MaintYear", .letters = 6.0},
              {.variable = "MaintQuantity", .letters = 12.0},
              {.variable = "MaintUnit", .list = true, .letters = 10.0},
              {.variable = "MaintUnitCost", .letters = 12.0},
              {"MaintItemCost"},
              {"PWCostM"}},
             kRowsShown),
        UnitNote(),
        Fields({{"ItemTotal3"}, {"PrWorthTotal3"}}),
    });
    return type;
}

}  // namespace kelvor

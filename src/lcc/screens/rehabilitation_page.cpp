#include "lcc/screens/rehabilitation_page.h"

#include "forms/form.h"
#include "forms/recalculation.h"
#include "lcc/calc/pavements.h"
#include "lcc/calc/quantity_conversion.h"
#include "lcc/screens/cost_grid_page.h"
#include "lcc/screens/cost_page.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

std::string ReadQuantity(const ScreenContext& context, const Form& form, int row) {
    return context.units.GetQuantityDisplay(kRehabGrid.quantity, row, PavementOf(form));
}

/// The first row is that of the annual maintenance, which has no year of its own.
void Loaded(ScreenEvent& event) {
    const int pavement = PavementOf(event.form);
    GridData& grid = *event.form.FindGrid()->grid;
    grid.row = kAnnualMaintenanceRow;
    grid.column = grid.Find(kRehabGrid.quantity).value_or(0);  // the first that can be entered
    event.context.units.SetDisplayValue("RehabItem", kAnnualMaintenanceRow, pavement, "Annual Maintenance");
    event.context.units.SetDisplayValue("RehabYear", kAnnualMaintenanceRow, pavement, "N/A");
}

/// The name and the year of the annual maintenance stay as they are.
bool MayEdit(const ScreenContext& context, const Form& form, int row, const GridColumn& column) {
    const bool fixed = column.variable == "RehabItem" || column.variable == "RehabYear";
    return !(fixed && row == kAnnualMaintenanceRow) && HasCell(context, form, row, column);
}

bool MayDelete(ScreenContext& context, Form& /*form*/, int row) {
    if (row != kAnnualMaintenanceRow) return true;
    context.calc.dialogs.ShowMessage(
        {.text = Translated("The row of the annual maintenance cannot be deleted. Empty its "
                            "quantity if there is none."),
         .title = "Delete"});
    return false;
}

/// The quantities convert before the names of their units do; the unit costs do not.
void BringOver(ScreenEvent& event) {
    const bool converted = ConvertRehabQuantities(event.context.calc);
    const bool swapped = SwapUnitNames(event.context, event.form, kRehabGrid);
    RefreshScreen(event.context, event.form);
    if (converted || swapped) ShowUnitCostsStay(event.form);
}

void UnitsSwitched(ScreenEvent& event) {
    BringOver(event);
    ShowUnitCostsStay(event.form);
}

void CellChanged(ScreenEvent& event) { FollowCostCell(event.context, event.form, kRehabGrid); }

}  // namespace

FormType RehabilitationPage() {
    constexpr int kRowsShown = 10;
    FormType type =
        CostPage("LcA1_4", {
                               {FormEvent::Load, "", HandlerOrder::After, Loaded},
                               {FormEvent::Activate, "", HandlerOrder::After, BringOver},
                               {FormEvent::UnitsSwitched, "", HandlerOrder::Instead, UnitsSwitched},
                               {FormEvent::CellChanged, "Grid", HandlerOrder::After, CellChanged},
                           });
    type.standsInOtherUnits = [](const ScreenContext& context) {
        return StandsInOtherUnits(context, kRehabGrid);
    };
    type.caption = "Pavement (A) Maintenance & Rehabilitation Costs";
    type.layout = Rows({
        LayoutElement{layout::Grid{"Grid",
                                   {{.variable = "RehabItem", .list = true, .letters = 30.0},
                                    {.variable = "RehabYear", .letters = 8.0},
                                    {.variable = "RehabQuantity",
                                     .letters = 12.0,
                                     .routines = {.read = ReadQuantity},
                                     .writtenLast = true},
                                    {.variable = "RehabUnit", .list = true, .letters = 10.0},
                                    {.variable = "RehabUnitCost", .letters = 12.0},
                                    {"RehabItemCost"},
                                    {"PWCostR"}},
                                   kRowsShown,
                                   {.mayDelete = MayDelete, .mayEdit = MayEdit},
                                   kLastCostRow}},
        UnitNote(),
        Fields({{"ItemTotal4"}, {"PrWorthTotal4"}}),
    });
    return type;
}

}  // namespace kelvor

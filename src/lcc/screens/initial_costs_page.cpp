#include "lcc/screens/initial_costs_page.h"

#include "forms/form.h"
#include "forms/recalculation.h"
#include "lcc/calc/quantity_conversion.h"
#include "lcc/screens/cost_grid_page.h"
#include "lcc/screens/cost_page.h"

namespace kelvor {

namespace {

std::string ReadQuantity(const ScreenContext& context, const Form& form, int row) {
    return context.units.GetQuantityDisplay(kInitialGrid.quantity, row, PavementOf(form));
}

/// The quantities convert before the names of their units do; the unit costs do not.
void BringOver(ScreenEvent& event) {
    const bool converted = ConvertInitialQuantities(event.context.calc);
    const bool swapped = SwapUnitNames(event.context, event.form, kInitialGrid);
    RefreshScreen(event.context, event.form);
    if (converted || swapped) ShowUnitCostsStay(event.form);
}

void UnitsSwitched(ScreenEvent& event) {
    BringOver(event);
    ShowUnitCostsStay(event.form);
}

void CellChanged(ScreenEvent& event) { FollowCostCell(event.context, event.form, kInitialGrid); }

}  // namespace

FormType InitialCostsPage() {
    constexpr int kRowsShown = 10;
    FormType type =
        CostPage("LcA1_2", {
                               {FormEvent::Activate, "", HandlerOrder::After, BringOver},
                               {FormEvent::UnitsSwitched, "", HandlerOrder::Instead, UnitsSwitched},
                               {FormEvent::CellChanged, "Grid", HandlerOrder::After, CellChanged},
                           });
    type.standsInOtherUnits = [](const ScreenContext& context) {
        return StandsInOtherUnits(context, kInitialGrid);
    };
    type.caption = "Pavement (A) Initial Costs";
    type.layout = Rows({
        Grid("Grid",
             {{.variable = kInitialGrid.item, .list = true, .letters = 32.0, .listName = kInitialGrid.items},
              {.variable = "InitialQuantity", .routines = {.read = ReadQuantity}, .writtenLast = true},
              {.variable = "InitialUnit", .list = true, .letters = 12.0},
              {"InitialUnitCost"},
              {"InitialItemCost"}},
             kRowsShown),
        UnitNote(),
        Fields({{"ItemTotal2"}}),
    });
    return type;
}

}  // namespace kelvor

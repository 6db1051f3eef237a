#include "rehab/screens/survey_sn_help.h"

#include "design/calc/material_coefficient.h"
#include "forms/form.h"
#include "forms/form_events.h"
#include "forms/side_screen.h"
#include "platform/translation.h"
#include "rehab/screens/existing_layers_grid.h"

namespace kelvor {

namespace {

constexpr const char* kHandedOver = "CONDEFFSN";

/// A material brings its coefficient with it.
void MaterialChanged(ScreenEvent& event) {
    const GridData& grid = *event.control->grid;
    if (!EqualNoCase(grid.current().variable, "EXISTMAT")) return;
    Units& units = event.context.units;
    const int dim2 = event.form.dim2().value_or(1);
    SetLayerCoefFromMaterial(units, grid.row, units.GetDisplayValue("EXISTMAT", grid.row, dim2));
}

/// OK alone hands the total over; the close box and Esc leave without it.
void OkClick(ScreenEvent& event) {
    event.form.workedOut = true;
    FormEvents(event.context).Close(event.form);
}

/// True if the overlay's structural number is another one now.
bool HandOver(CalcContext& calc) {
    const auto stored = [&] {
        const CellValue* cell = calc.store.FindCell(kHandedOver, 1, 1);
        return cell == nullptr ? CellValue{} : *cell;
    };
    const CellValue before = stored();
    calc.Put(kHandedOver, calc.Get("SNEFFTOT"));
    return !IsSameValue(stored(), before);
}

void Closing(ScreenEvent& event) {
    const bool taken = event.form.workedOut && HandOver(event.context.calc);
    ReturnFromSideScreen(event.context, event.form, taken);
}

}  // namespace

FormType SurveySNHelp() {
    FormType type;
    type.name = "SNCHELP";
    type.caption = "Help Screen for Effective Structural Number for Condition Survey";
    type.isHelp = true;
    type.layout = Rows({
        ExistingLayersGrid(Translated("also sets its layer coefficient")),
        Fields({{"SNEFFTOT"}}),
    });
    type.handlers = {{FormEvent::Activate, "", HandlerOrder::After, RecalcExistingLayers},
                     {FormEvent::CellChanged, "", HandlerOrder::Before, MaterialChanged},
                     {FormEvent::Click, kOkButton, HandlerOrder::Instead, OkClick},
                     {FormEvent::Unload, "", HandlerOrder::Before, Closing}};
    return type;
}

}  // namespace kelvor

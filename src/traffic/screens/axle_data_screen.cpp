#include "traffic/screens/axle_data_screen.h"

#include "forms/form.h"
#include "forms/recalculation.h"
#include "platform/translation.h"
#include "traffic/screens/traffic_inputs.h"
#include "traffic/screens/traffic_words.h"

namespace kelvor {

namespace {

constexpr double kColumnLetters = 16.0;
constexpr int kRowsShown = 10;

void RecalcRowsThenTotals(ScreenEvent& event) {
    RecalcFilledRows(event.context, event.form);
    RecalcOutputs(event.context, event.form, "", 0);
}

/// A parameter that was changed meanwhile reaches every row.
void Activated(ScreenEvent& event) {
    ShowPeriod(event.context, event.form);
    RecalcRowsThenTotals(event);
}

void UnitsSwitched(ScreenEvent& event) { RecalcOutputs(event.context, event.form, "", 0); }

}  // namespace

FormType AxleDataForm() {
    FormType type;
    type.name = "TrAx";
    type.caption = "ESAL Conversion From Axle Data";
    type.rowName = {ToTranslate("axle"), ToTranslate("axles")};
    type.layout = Rows({
        TrafficInputCopies(),
        Grid("Grid",
             {{.variable = "AxleType", .list = true, .words = AxleTypes(), .letters = kColumnLetters},
              {.variable = "AxleWeight", .letters = kColumnLetters},
              {.variable = "NumOfAxles", .letters = kColumnLetters},
              {.variable = "RE18", .letters = kColumnLetters},
              {.variable = "FE18", .letters = kColumnLetters}},
             kRowsShown),
        Columns({Fields({{.variable = "RIGE18", .label = "Total Rigid ESAL"}}),
                 Fields({{.variable = "FLEXE18", .label = "Total Flexible ESAL"}})}),
    });
    type.handlers = {
        {FormEvent::Activate, "", HandlerOrder::After, Activated},
        {FormEvent::RowDeleted, "", HandlerOrder::Instead, RecalcRowsThenTotals},
        {FormEvent::UnitsSwitched, "", HandlerOrder::Instead, UnitsSwitched},
    };
    return type;
}

}  // namespace kelvor

#include "traffic/screens/axle_data_screen.h"

#include "forms/form.h"
#include "forms/recalculation.h"
#include "traffic/screens/traffic_inputs.h"
#include "traffic/screens/traffic_words.h"

namespace kelvor {

namespace {

constexpr double kColumnLetters = 16.0;
constexpr int kRowsShown = 10;

/// A parameter that was changed meanwhile reaches every row, and then the totals.
void Activated(ScreenContext& context, Form& form, Control* /*control*/) {
    ShowPeriod(context, form);
    RecalcFilledRows(context, form);
    RecalcOutputs(context, form, "", 0);
}

void UnitsSwitched(ScreenContext& context, Form& form, Control* /*control*/) {
    RecalcOutputs(context, form, "", 0);
}

}  // namespace

FormType AxleDataForm() {
    FormType type;
    type.name = "TrAx";
    type.tag = "TrAx";
    type.caption = "ESAL Conversion From Axle Data";
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
        Buttons({{"cmdAction", "&OK"}, {"SSHelp", "Hel&p"}}),
        Hidden({"Dim1", "Dim2"}),
    });
    type.handlers = {
        {FormEvent::Activate, "", HandlerOrder::After, Activated},
        {FormEvent::UnitsSwitched, "", HandlerOrder::Instead, UnitsSwitched},
    };
    return type;
}

}  // namespace kelvor

#include "design/screens/flexible_design.h"

#include "design/screens/layered_design.h"
#include "platform/number_text.h"
#include "screens/forms/balance_state.h"
#include "screens/forms/form.h"

namespace kelvor {

namespace {

/// Solves, unless the serviceability at the end is not below the one at the start.
void SolveClick(ScreenContext& context, Form& form, Control* /*button*/) {
    const double initial = ParseNumber(form.HiddenText("FLEXPO"));
    const double terminal = ParseNumber(form.HiddenText("FLEXPT"));
    if (!(initial > terminal)) {
        context.calc.dialogs.ShowMessage(
            {.text = "          Error:   Pt  >=  Po          ", .title = "Values"});
        return;
    }
    SolveForClick(context, form, BalanceFlag::DeF);
}

void LayersClick(ScreenContext& context, Form& form, Control* /*button*/) {
    OpenLayeredDesign(context, form, "SN");
}

}  // namespace

FormType FlexibleDesignForm() {
    FormType type;
    type.name = "DeF";
    type.tag = "DeF";
    type.caption = "Flexible Design Inputs";
    type.layout = Rows({
        Columns({
            Frame("Frame1", "Design Inputs",
                  {Fields({{"FLEXE18"}, {"FLEXREL"}, {"FLEXDEV"}, {"RM"}, {"SN"}, {"FLEXPO"}, {"FLEXPT"}})}),
            Rows({SolveForFrame("Frame2", "SolveFor", "Command1"),
                  Buttons({{"Command2", "&Layer Determ."}, {"cmdbCS", "&Cross Section", true}})}),
        }),
        Buttons({{"cmdAction", "&OK", false}, {"SSHelp", "Hel&p", true}}),
        Hidden({"SolveForSide", "Dim1", "Dim2"}),
    });
    type.handlers = {
        {FormEvent::Click, "Command1", HandlerOrder::Instead, SolveClick},
        {FormEvent::Click, "Command2", HandlerOrder::Instead, LayersClick},
    };
    type.balance = BalanceFlag::DeF;
    return type;
}

}  // namespace kelvor

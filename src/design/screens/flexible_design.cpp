#include "design/screens/flexible_design.h"

#include "design/screens/layered_design.h"
#include "forms/form.h"

namespace kelvor {

namespace {

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
        Buttons({{"cmdAction", "&OK"}, {"SSHelp", "Hel&p"}}),
        Hidden({"SolveForSide", "Dim1", "Dim2"}),
    });
    type.handlers = {
        {FormEvent::Click, "Command2", HandlerOrder::Instead, LayersClick},
    };
    type.equations = {{.flag = BalanceFlag::DeF}};
    type.helpRoutes = {{"RM", "H_SRM"}, {"SN", "H_SN"}};
    return type;
}

}  // namespace kelvor

#include "design/screens/flexible_design.h"

#include "design/screens/layered_design.h"
#include "forms/form.h"
#include "forms/section_button.h"
#include "forms/work_out_help.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

void LayersClick(ScreenEvent& event) { OpenLayeredDesign(event.context, event.form, "SN"); }

}  // namespace

FormType FlexibleDesignForm() {
    FormType type;
    type.name = "DeF";
    type.caption = "Flexible Design Inputs";
    type.equations = {{.flag = BalanceFlag::DeF}};
    type.layout = Columns({
        Frame("Frame1", Translated("Design Inputs"),
              {Fields({{"FLEXE18"}, {"FLEXREL"}, {"FLEXDEV"}, {"RM"}, {"SN"}, {"FLEXPO"}, {"FLEXPT"}})}),
        Rows({SolveForFrame("Frame2", type.equations[0]),
              Buttons({{"Command2", "&Layer Determ.",
                        Translated("Find layers that reach this structural number")},
                       CrossSectionButton()})}),
    });
    type.handlers = {
        {FormEvent::Click, "Command2", HandlerOrder::Instead, LayersClick},
        OpeningCrossSection(),
    };
    type.helpRoutes = {WorkOutSoilModulus("RM"), {"SN", "H_SN"}};
    return type;
}

}  // namespace kelvor

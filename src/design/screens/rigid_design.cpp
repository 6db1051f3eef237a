#include "design/screens/rigid_design.h"

#include "forms/form.h"
#include "forms/section_button.h"
#include "forms/work_out_help.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

LayoutElement RigidInputs() {
    return Fields({{"DEPTH"},
                   {"RIGE18"},
                   {"RIGREL"},
                   {"RIGDEV"},
                   {"MR"},
                   {"EC"},
                   {"J"},
                   {"K"},
                   {"C"},
                   {"RIGPO"},
                   {"RIGPT"}});
}

LayoutElement FlexibleInputs() {
    return Fields({{"SN"}, {"FLEXE18"}, {"FLEXREL"}, {"FLEXDEV"}, {"RM"}, {"FLEXPO"}, {"FLEXPT"}});
}

}  // namespace

FormType RigidDesignForm() {
    FormType type;
    type.name = "DeR";
    type.caption = Translated("Rigid Design Inputs");
    type.equations = {{.flag = BalanceFlag::DeR}};
    type.layout = Columns({
        Frame("Frame1", Translated("Design Inputs"), {RigidInputs()}),
        Rows({SolveForFrame("Frame2", type.equations[0]), Buttons({CrossSectionButton()})}),
    });
    type.handlers = {OpeningCrossSection()};
    type.helpRoutes = {WorkOutK("K")};
    return type;
}

FormType BothDesignsForm() {
    FormType type;
    type.name = "DeS";
    type.caption = Translated("Rigid and Flexible Design Inputs");
    type.equations = {{.flag = BalanceFlag::DeS},
                      {.flag = BalanceFlag::DeS2,
                       .indicator = "SolveFor2",
                       .button = "Command2",
                       .target = "TARGET2",
                       .check = "CHECK2"}};
    type.layout = Columns({
        Rows({Frame("Frame1", Translated("Rigid Pavement Design"), {RigidInputs()}),
              SolveForFrame("Frame2", type.equations[0], FrameShape::Wide)}),
        Rows({Frame("Frame3", Translated("Flexible Pavement Design"), {FlexibleInputs()}),
              SolveForFrame("Frame4", type.equations[1], FrameShape::Wide, "So&lve For"),
              Buttons({CrossSectionButton()})}),
    });
    type.handlers = {OpeningCrossSection()};
    type.helpRoutes = {WorkOutK("K"), WorkOutSoilModulus("RM")};
    return type;
}

}  // namespace kelvor

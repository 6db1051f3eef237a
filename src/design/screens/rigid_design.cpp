#include "design/screens/rigid_design.h"

#include "forms/form.h"

namespace kelvor {

namespace {

LayoutNode RigidInputs() {
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

LayoutNode FlexibleInputs() {
    return Fields({{"SN"}, {"FLEXE18"}, {"FLEXREL"}, {"FLEXDEV"}, {"RM"}, {"FLEXPO"}, {"FLEXPT"}});
}

const ButtonItem kCrossSection{"cmdbCS", "&Cross Section", true};

LayoutNode FootButtons() { return Buttons({{"cmdAction", "&OK"}, {"SSHelp", "Hel&p"}}); }

}  // namespace

FormType RigidDesignForm() {
    FormType type;
    type.name = "DeR";
    type.tag = "DeR";
    type.caption = "Rigid Design Inputs";
    type.layout = Rows({
        Columns({
            Frame("Frame1", "Design Inputs", {RigidInputs()}),
            Rows({SolveForFrame("Frame2", "SolveFor", "Command1"), Buttons({kCrossSection})}),
        }),
        FootButtons(),
        Hidden({"SolveForSide", "Dim1", "Dim2"}),
    });
    type.equations = {{.flag = BalanceFlag::DeR}};
    type.helpRoutes = {{"K", "H_K"}};
    return type;
}

FormType BothDesignsForm() {
    FormType type;
    type.name = "DeS";
    type.tag = "DeS";
    type.caption = "Rigid and Flexible Design Inputs";
    type.layout = Rows({
        Columns({
            Rows({Frame("Frame1", "Rigid Pavement Design", {RigidInputs()}),
                  SolveForFrame("Frame2", "SolveFor", "Command1")}),
            Rows({Frame("Frame3", "Flexible Pavement Design", {FlexibleInputs()}),
                  SolveForFrame("Frame4", "SolveFor2", "Command2", "Sol&ve For"), Buttons({kCrossSection})}),
        }),
        FootButtons(),
        Hidden({"SolveForSide", "Dim1", "Dim2"}),
    });
    type.equations = {{.flag = BalanceFlag::DeS},
                      {.flag = BalanceFlag::DeS2,
                       .indicator = "SolveFor2",
                       .button = "Command2",
                       .target = "TARGET2",
                       .check = "CHECK2"}};
    type.helpRoutes = {{"K", "H_K"}, {"RM", "H_SRM"}};
    return type;
}

}  // namespace kelvor

#include "design/screens/layered_design.h"

#include <array>

#include "design/calc/layered_structure.h"
#include "forms/form.h"
#include "forms/form_events.h"
#include "forms/recalculation.h"
#include "forms/side_screen.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

constexpr const char* kForm = "LayDet";
constexpr const char* kEnough = "OK";
constexpr const char* kTooLittle = "Selected Structure is Less Than Required.";

/// The layer coefficient of a material.
struct MaterialCoefficient {
    std::string_view material;
    double coefficient;
};

constexpr std::array kCoefficients = {
    MaterialCoefficient{"Cement Fly Ash", 0.2},
    MaterialCoefficient{"Graded Stone Base", 0.14},
    MaterialCoefficient{"Crushed Stone Base", 0.12},
    MaterialCoefficient{"Granular Subbase", 0.1},
};

/// 0 for any other material.
double CoefficientOf(std::string_view material) {
    for (const MaterialCoefficient& row : kCoefficients) {
        if (row.material == material) return row.coefficient;
    }
    return 0.0;
}

/// Compares the two structural numbers as they are shown.
void ShowVerdict(Form& form) {
    Control* verdict = form.Find("Res");
    if (verdict == nullptr) return;
    const bool enough = ParseNumber(form.HiddenText("SSN")) >= ParseNumber(form.HiddenText("SN"));
    verdict->text = enough ? kEnough : kTooLittle;
    verdict->foreColor = enough ? colours::kBlue : colours::kRed;
}

int CurrentRow(Form& form) { return form.FindGrid()->grid->row; }

/// The total goes back to the variable for which the screen is opened.
void Loaded(ScreenContext& /*context*/, Form& form, Control* /*control*/) {
    form.SetHiddenText("SNCarry", form.HiddenText("FieldName"));
}

void Activated(ScreenContext& context, Form& form, Control* /*control*/) {
    RecalcAllOutputs(context, form);
    ClearAdditThick(context.calc, context.calculations, CurrentRow(form));
    RefreshScreen(context, form);
    ShowVerdict(form);
}

void UnitsSwitched(ScreenContext& /*context*/, Form& form, Control* /*control*/) { ShowVerdict(form); }

/// A material also sets the coefficient of the existing layer in the same row.
void MaterialChanged(ScreenContext& context, Form& form, Control* control) {
    const GridData& grid = *control->grid;
    if (!EqualNoCase(grid.current().variable, "LDLayerMat")) return;
    SetLayerCoefFromMaterial(context, form, grid.row, context.units.GetDisplayValue("LDLayerMat", grid.row));
}

void RowsWritten(ScreenContext& context, Form& form, Control* /*control*/) {
    ClearAdditThick(context.calc, context.calculations, CurrentRow(form));
    RefreshScreen(context, form);
    ShowVerdict(form);
}

void RowChanged(ScreenContext& context, Form& form, Control* /*control*/) {
    ClearAdditThick(context.calc, context.calculations, CurrentRow(form));
    RefreshScreen(context, form);
}

void RowDeleted(ScreenContext& context, Form& form, Control* control) {
    context.calculations.CalcField(context.calc, "SSN", "SSN");
    RowsWritten(context, form, control);
}

/// Offers the total to the screen that asked for it.
void Closing(ScreenContext& context, Form& form, Control* /*control*/) {
    const std::string total = form.HiddenText("SSN");
    bool taken = false;
    if (!total.empty() && !form.HiddenText("FieldName").empty()) {
        const Answer answer = context.calc.dialogs.ShowMessage(
            {.text = "Do you want to use this Structural Number on the previous form?",
             .title = "Structural Number",
             .style = MessageStyle::YesNo});
        taken = answer == Answer::Yes;
    }
    if (taken) context.units.SetDisplayValue(form.HiddenText("SNCarry"), 1, 1, total);
    ReturnFromSideScreen(context, form, taken);
}

}  // namespace

void SetLayerCoefFromMaterial(ScreenContext& context, Form& form, int row, const std::string& material) {
    context.units.SetDisplayNumber("ACSURFLC", row, 1, CoefficientOf(material));
    RefreshScreen(context, form);
}

FormType LayeredDesignForm() {
    FormType type;
    type.name = kForm;
    type.tag = kForm;
    type.caption = "Flexible Pavement Layer Thickness Determination";
    type.layout = Rows({
        Grid("Grid", {{.variable = "LDLayerMat", .list = true},
                      {.variable = "LDLayerCoef"},
                      {.variable = "LDDrainCoef"},
                      {.variable = "LDLayerThick"},
                      {.variable = "LDLayerStructNo"},
                      {.variable = "LDAdditThick"}}),
        Columns({Fields({{.variable = "SN", .label = "Required Structural Number", .locked = true},
                         {.variable = "SSN"}}),
                 Verdict("Res")}),
        Buttons({{"cmdAction", "&OK"}, {"SSHelp", "Hel&p"}}),
        Hidden({"SNCarry", "FieldName", "FormName", "Dim1", "Dim2", "Column"}),
    });
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::After, Loaded},
        {FormEvent::Activate, "", HandlerOrder::After, Activated},
        {FormEvent::CellChanged, "", HandlerOrder::Before, MaterialChanged},
        {FormEvent::RowsWritten, "", HandlerOrder::After, RowsWritten},
        {FormEvent::RowChanged, "", HandlerOrder::After, RowChanged},
        {FormEvent::RowDeleted, "", HandlerOrder::After, RowDeleted},
        {FormEvent::UnitsSwitched, "", HandlerOrder::After, UnitsSwitched},
        {FormEvent::Unload, "", HandlerOrder::Before, Closing},
    };
    type.helpRoutes = {{"LDLayerCoef", "H_LDLayerCoef"}};
    return type;
}

void OpenLayeredDesign(ScreenContext& context, Form& caller, const std::string& variable) {
    FormEvents(context).Open({.form = kForm, .call = MakeCall(caller, variable)});
}

}  // namespace kelvor

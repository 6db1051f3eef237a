#include "design/screens/layered_design.h"

#include "calc/ignore_faults.h"
#include "design/calc/layered_structure.h"
#include "design/calc/material_coefficient.h"
#include "forms/form.h"
#include "forms/form_events.h"
#include "forms/recalculation.h"
#include "forms/side_screen.h"
#include "platform/number_text.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kForm = "LayDet";
constexpr const char* kEnough = "OK";
constexpr const char* kTooLittle = "Selected Structure is Less Than Required.";

/// The box that shows the additional thickness of every layer at once: each by which that layer alone would
/// do. The project keeps, and the report prints, that of the layer under the cursor.
constexpr const char* kEveryLayer = "EveryLayer";

std::string ReadAdditionalThickness(const ScreenContext& context, const Form& form, int layer) {
    constexpr const char* kName = "LDAdditThick";
    std::string text = context.units.GetDisplayValue(kName, layer);
    const Control* box = form.Find(kEveryLayer);
    if (!text.empty() || box == nullptr || !box->value) return text;
    IgnoreFaults([&] {
        const std::optional<Real> thickness = AdditionalThickness(context.calc, layer);
        if (thickness) text = context.units.DisplayNumber(kName, thickness->value());
    });
    return text;
}

/// Compares the two structural numbers as they are shown.
void ShowVerdict(Form& form) {
    Control* verdict = form.Find("Res");
    if (verdict == nullptr) return;
    const bool enough = ParseNumber(form.TextOf("SSN")) >= ParseNumber(form.TextOf("SN"));
    verdict->text = enough ? kEnough : kTooLittle;
    verdict->foreColor = enough ? colours::kBlue : colours::kRed;
}

int CurrentRow(Form& form) { return form.FindGrid()->grid->row; }

/// The total goes back to the variable for which the screen is opened. From the last layer Tab goes on to OK.
void Loaded(ScreenEvent& event) {
    event.form.SetText("SNCarry", event.form.TextOf("FieldName"));
    event.form.Get(kEveryLayer).passedOver = true;
}

void Activated(ScreenEvent& event) {
    RecalcAllOutputs(event.context, event.form);
    ClearAdditThick(event.context.calc, event.context.calculations, CurrentRow(event.form));
    RefreshScreen(event.context, event.form);
    ShowVerdict(event.form);
}

void UnitsSwitched(ScreenEvent& event) { ShowVerdict(event.form); }

/// A material also sets the coefficient of the existing layer in the same row.
void MaterialChanged(ScreenEvent& event) {
    const GridData& grid = *event.control->grid;
    if (!EqualNoCase(grid.current().variable, "LDLayerMat")) return;
    Units& units = event.context.units;
    SetLayerCoefFromMaterial(units, grid.row, units.GetDisplayValue("LDLayerMat", grid.row));
    RefreshScreen(event.context, event.form);
}

void RowsWritten(ScreenEvent& event) {
    ClearAdditThick(event.context.calc, event.context.calculations, CurrentRow(event.form));
    RefreshScreen(event.context, event.form);
    ShowVerdict(event.form);
}

void RowChanged(ScreenEvent& event) {
    ClearAdditThick(event.context.calc, event.context.calculations, CurrentRow(event.form));
    RefreshScreen(event.context, event.form);
}

void RowDeleted(ScreenEvent& event) {
    event.context.calculations.CalcField(event.context.calc, "SSN", "SSN");
    RowsWritten(event);
}

/// Offers the total to the screen that asked for it.
void Closing(ScreenEvent& event) {
    const std::string total = event.form.TextOf("SSN");
    bool taken = false;
    if (!total.empty() && !event.form.TextOf("FieldName").empty()) {
        const Answer answer = event.context.calc.dialogs.ShowMessage(
            {.text = "Do you want to use this Structural Number on the previous form?",
             .title = "Structural Number",
             .style = MessageStyle::YesNo});
        taken = answer == Answer::Yes;
    }
    if (taken) event.context.units.SetDisplayValue(event.form.TextOf("SNCarry"), 1, 1, total);
    ReturnFromSideScreen(event.context, event.form, taken);
}

}  // namespace

FormType LayeredDesignForm() {
    FormType type;
    type.name = kForm;
    type.caption = "Flexible Pavement Layer Thickness Determination";
    type.rowName = {ToTranslate("layer"), ToTranslate("layers")};
    type.layout = Rows({
        Grid("Grid", {{.variable = "LDLayerMat",
                       .list = true,
                       .alsoSets = Translated("also sets the layer coefficient of this row of the existing "
                                              "pavement")},
                      {.variable = "LDLayerCoef"},
                      {.variable = "LDDrainCoef"},
                      {.variable = "LDLayerThick"},
                      {.variable = "LDLayerStructNo"},
                      {.variable = "LDAdditThick", .routines = {.read = ReadAdditionalThickness}}}),
        Columns(
            {Fields({{.variable = "SN", .label = Translated("Required Structural Number"), .locked = true},
                     {.variable = "SSN"}}),
             Verdict("Res")}),
        Checks({{kEveryLayer, Translated("&Additional Thickness of Every Layer"),
                 Translated("Show for each layer how much thicker it alone would have to be")}}),
        Hidden({"SNCarry", "FieldName", "FormName", "Column"}),
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

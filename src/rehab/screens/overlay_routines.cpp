#include "rehab/screens/overlay_routines.h"

#include <array>

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

namespace {

/// The survey that all screens with a joint and crack factor share.
constexpr std::array kSurvey = {"APDETTOT", "APDETJTS", "APDETCRKS", "APDETPNCH", "APDETEXP", "APBOLFJC"};

/// Works one output out and shows it.
void WorkOut(ScreenContext& context, Form& form, const Field& output) {
    if (!context.calc.store.IsOpen()) return;
    context.calculations.CalcField(context.calc, output.name, output.equation);
    Control* box = form.FindField(output.name);
    if (box != nullptr) box->text = context.units.GetDisplayValue(output.name);
}

void WorkOutAll(ScreenEvent& event) {
    for (const Field* output : event.context.catalogue.OutputsOfScreen(event.form.tag)) {
        WorkOut(event.context, event.form, *output);
    }
}

/// After the button, whether it has solved or refused.
void WorkOutThickness(ScreenEvent& event) {
    const auto outputs = event.context.catalogue.OutputsOfScreen(event.form.tag);
    if (!outputs.empty()) WorkOut(event.context, event.form, *outputs.back());
}

void ClearSurvey(ScreenEvent& event) {
    if (!event.context.calc.store.IsOpen()) return;
    for (const char* count : kSurvey) event.context.calc.store.SetCell(count, 1, 1, {});
}

void NoteField(ScreenEvent& event) {
    const Control& button = *event.control;
    if (!button.worksOut.empty()) event.form.SetText("SolveForFiled", button.worksOut);
    if (button.name == kHelpButton) event.form.SetText("SolveForFiled", event.form.TextOf("SolveForField"));
}

}  // namespace

std::vector<Handler> OverlayHandlers(const std::string& solveButton) {
    return {{FormEvent::Activate, "", HandlerOrder::After, WorkOutAll},
            {FormEvent::Click, solveButton, HandlerOrder::After, WorkOutThickness}};
}

Handler ClearingOfSurvey() { return {FormEvent::Unload, "", HandlerOrder::After, ClearSurvey}; }

Handler NotingOfField() { return {FormEvent::Click, "", HandlerOrder::Before, NoteField}; }

}  // namespace kelvor

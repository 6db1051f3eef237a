#include "rehab/screens/deflection_sn_help.h"

#include <array>

#include "forms/form.h"
#include "forms/side_screen.h"
#include "platform/number_picture.h"
#include "rehab/calc/effective_sn.h"

namespace kelvor {

namespace {

constexpr const char* kThickness = "NDTEFFD";
constexpr const char* kModulus = "NDTEFFEP2";
constexpr const char* kResult = "NDTEFFSN";
constexpr const char* kPlainPicture = "#0.00";
constexpr std::array kInputs = {kThickness, kModulus};
constexpr const char* kAtOpening = "AtOpening";  // the inputs then

const char* const kAboutMethod =
    "The NDT method of SNeff determination follows an assumption that the structural capacity of the "
    "pavement is a function of the total thickness and overall stiffness.";
const char* const kAboutModulus =
    "The effective modulus of all pavement layers may be backcalculated from deflection data using "
    "DEFLECTION TESTNIG INFORMATION section of the program.";

/// The number in the unit and picture of the variable that it is shown for.
std::string ResultText(const ScreenContext& context, Real number) {
    const Variable* variable = context.catalogue.FindVariable(kResult);
    if (variable == nullptr) return FormatNumber(number.value(), kPlainPicture);
    const Real shown = number * Real(context.units.UnitFactor(variable->units));
    return FormatNumber(shown.value(), variable->format);
}

/// Shows what the stored inputs give. A negative modulus has no root: the number of before stays.
void ComputeNDTEffectiveSN(const ScreenContext& context, Form& form) {
    const Real number = EffectiveSNFromDeflections(context.calc.Get(kThickness), context.calc.Get(kModulus));
    form.SetText(kResult, ResultText(context, number));
}

void Show(ScreenEvent& event) { ComputeNDTEffectiveSN(event.context, event.form); }

void NoteInputs(ScreenEvent& event) {
    event.form.SetText(kAtOpening, ContentOf(event.context.calc.store, kInputs));
}

/// The number, as it is shown, goes to the field for which the screen was opened, unless it was only looked
/// at.
void Closing(ScreenEvent& event) {
    const std::string field = event.form.TextOf("FieldName");
    const bool changed = ContentOf(event.context.calc.store, kInputs) != event.form.TextOf(kAtOpening);
    bool taken = false;
    if (changed && !field.empty()) {
        const CellValue before = CalledField(event.context, event.form);
        event.context.units.SetDisplayValue(field, 1, 1, event.form.TextOf(kResult));
        taken = !IsSameValue(CalledField(event.context, event.form), before);
    }
    ReturnFromSideScreen(event.context, event.form, taken);
}

}  // namespace

FormType DeflectionSNHelp() {
    FormType type;
    type.name = "SNHelp";
    type.caption = "Determining SNeff from NDT";
    type.isHelp = true;
    type.layout = Rows({
        Text("LabMethod", kAboutMethod),
        Text("LabModulus", kAboutModulus),
        Fields({{.variable = kThickness,
                 .label = "Total thickness, D of all pavement layers above the subgrade : D = "},
                {.variable = kModulus,
                 .label = "Effective modulus, Ep of all pavement layers above the subgrade : Ep = "},
                {.variable = kResult, .label = "Effective Structural Number, SNeff :", .computed = true}}),
        Hidden({kAtOpening}),
    });
    type.handlers = {{FormEvent::Load, "", HandlerOrder::After, NoteInputs},
                     {FormEvent::Activate, "", HandlerOrder::After, Show},
                     {FormEvent::LostFocus, "", HandlerOrder::After, Show},
                     {FormEvent::Stored, "", HandlerOrder::After, Show},
                     {FormEvent::UnitsSwitched, "", HandlerOrder::After, Show},
                     {FormEvent::Unload, "", HandlerOrder::Before, Closing}};
    return type;
}

}  // namespace kelvor

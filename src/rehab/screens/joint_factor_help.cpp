#include "rehab/screens/joint_factor_help.h"

#include <array>

#include "forms/field_help.h"
#include "forms/form.h"
#include "forms/side_screen.h"
#include "platform/number_picture.h"
#include "platform/number_text.h"
#include "rehab/calc/joint_factor.h"

namespace kelvor {

namespace {

constexpr std::array kCounts = {"APDETJTS", "APDETCRKS", "APDETPNCH", "APDETEXP"};
constexpr const char* kTotal = "APDETTOT";
constexpr const char* kFactor = "APBOLFJC";
constexpr const char* kUnbondedField = "UBOLFJCU";
constexpr std::array kFields = {"ACACPCFJC", "ACPCFJC", "BOLFJC", kUnbondedField};
constexpr const char* kLastFactor = "LastFactor";  // with all its digits
constexpr const char* kAtOpening = "AtOpening";    // the counts then

const char* const kPurpose =
    "This factor adjusts for the extra loss in PSI caused by deteriorated reflected cracks in the overlay "
    "that could result from any unrepaired deteriorated joints, cracks, and other discontinuities i the "
    "existing slab.";
const char* const kMinimum = "  According to figure 5.12 in the AASHTO Guide, the minimum for Fjc is 0.56.";
const char* const kAdvice =
    "  It is recomended that all deteriorated joints and cracks and any other major discountinuities in the "
    "existing PCC slab be repaired full-depth prior to placing the overlay so that Fjc = 1.0.";
const char* const kNeeded =
    "  If it is not possible to repair all deteriorated areas , the following information is needed to "
    "determine Fjc:";

Real Shown(const Form& form, const char* name) { return ParseNumber(form.TextOf(name)); }

FjcCurve CurveOf(const Form& form) {
    return EqualNoCase(form.TextOf("FieldName"), kUnbondedField) ? FjcCurve::Unbonded : FjcCurve::Bonded;
}

/// Without a count the total is left blank.
std::string TotalText(const ScreenContext& context, double total) {
    if (total == 0.0) return {};
    return context.units.bMetric() ? NumberToText(total) : FormatNumber(total, "#,##0");
}

std::string FactorText(double factor) { return factor == 0.0 ? "" : FormatNumber(factor, "##0.00"); }

/// Takes the counts as they stand on the screen; they are per mile in either unit system.
void ComputeFjc(const ScreenContext& context, Form& form) {
    const FjcCounts counts{.joints = Shown(form, "APDETJTS"),
                           .cracks = Shown(form, "APDETCRKS"),
                           .punchouts = Shown(form, "APDETPNCH"),
                           .expansionJoints = Shown(form, "APDETEXP")};
    const FjcSurvey survey = EvaluateFjc(counts, CurveOf(form), Shown(form, kLastFactor));
    form.SetText(kLastFactor, NumberToText(survey.factor.value()));
    form.SetText(kTotal, TotalText(context, survey.total.value()));
    form.SetText(kFactor, FactorText(survey.factor.value()));
}

void Show(ScreenEvent& event) { ComputeFjc(event.context, event.form); }

void Load(ScreenEvent& event) {
    RecallField(event.context, event.form, {kFields.begin(), kFields.end()});
    event.form.SetText(kAtOpening, ContentOf(event.context.calc.store, kCounts));
}

/// True if what the screen works out is wanted: a count has changed, or the overlay has no factor yet.
bool IsWanted(const ScreenContext& context, const Form& form) {
    const bool changed = ContentOf(context.calc.store, kCounts) != form.TextOf(kAtOpening);
    return changed || !CalledField(context, form).IsFilled();
}

/// Stores what follows from the counts, which are stored as they are left.
void StoreSurvey(const ScreenContext& context, const Form& form) {
    for (const char* name : {kTotal, kFactor}) context.units.SetDisplayValue(name, 1, 1, form.TextOf(name));
}

/// Gives the factor to the field for which the screen was opened. True if that has another value now.
bool HandOver(const ScreenContext& context, const Form& form) {
    const std::string field = form.TextOf("FieldName");
    if (field.empty()) return false;
    const CellValue before = CalledField(context, form);
    context.units.SetDisplayValue(field, 1, 1, form.TextOf(kFactor));
    return !IsSameValue(CalledField(context, form), before);
}

void Closing(ScreenEvent& event) {
    StoreSurvey(event.context, event.form);
    const bool taken = IsWanted(event.context, event.form) && HandOver(event.context, event.form);
    ReturnFromSideScreen(event.context, event.form, taken);
}

}  // namespace

FormType JointFactorHelp() {
    FormType type;
    type.name = "FjcHelp";
    type.caption = "Joint and Crack Adj. Factor";
    type.isHelp = true;
    type.layout = Rows({
        Text("LabPurpose", kPurpose),
        Text("LabMinimum", kMinimum),
        Text("LabAdvice", kAdvice),
        Text("LabNeeded", kNeeded),
        Fields({{"APDETJTS"},
                {"APDETCRKS"},
                {"APDETPNCH"},
                {"APDETEXP"},
                {.variable = kTotal, .computed = true},
                {.variable = kFactor, .computed = true}}),
        Hidden({kLastFactor, kAtOpening}),
    });
    type.handlers = {{FormEvent::Load, "", HandlerOrder::After, Load},
                     {FormEvent::Activate, "", HandlerOrder::After, Show},
                     {FormEvent::LostFocus, "", HandlerOrder::After, Show},
                     {FormEvent::Stored, "", HandlerOrder::After, Show},
                     {FormEvent::UnitsSwitched, "", HandlerOrder::After, Show},
                     {FormEvent::Unload, "", HandlerOrder::Before, Closing}};
    return type;
}

}  // namespace kelvor

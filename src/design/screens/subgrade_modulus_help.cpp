#include "design/screens/subgrade_modulus_help.h"

#include <array>
#include <optional>
#include <utility>

#include "calc/calc_messages.h"
#include "design/calc/subgrade_modulus.h"
#include "forms/field_entry.h"
#include "forms/form.h"
#include "forms/side_screen.h"
#include "platform/number_text.h"
#include "platform/real.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kForm = "H_SRM";
constexpr double kMpaPerPsi = 0.006894757;

const char* const kAboutTests =
    "Empirical relationships have been developed between the CBR (California Bearing Ratio) value (using "
    "dynamic compaction), the R-value, and the in-site resilient modulus of the soil.";

const char* const kAboutCorrelation =
    "The correlation used in this program were developed under NCHRP Project 128, 'Evaluation of AASHTO "
    "Interim Guide for the Design of Pavement Structures.'"
    "  This study found a non-linear relationship between resilient modulus and CBR or R-Value."
    "  Although equation 1.5.1 of the AASHTO Guide suggests a relationship of 1500 * CBR for the resilient "
    "modulus of the subgrade, this correlation is only valid for fine-grained soils with low CBR value."
    "  Other studies (Indiana, Ohio) have shown a correlation as low as 800 * CBR, and ranging from 750 to "
    "3,000 times the CBR value."
    "  This range agrees with the correlation established in NCHRP Project 128.";

/// Both estimates from the tests as they stand; nothing, with a message, for values out of range.
std::optional<SubgradeModulus> Estimate(const ScreenContext& context, const Form& form) {
    try {
        return ComputeSubgradeModulus(FieldNumber(context, form, form.Get("CBR")),
                                      FieldNumber(context, form, form.Get("RVAL")));
    } catch (const ArithmeticFault&) {
        ReportMathOverflow(context.calc.dialogs);
        return std::nullopt;
    }
}

/// Each output with its estimate, in the active units and in the order in which they are shown.
std::array<std::pair<const char*, double>, 3> Outputs(const ScreenContext& context,
                                                      const SubgradeModulus& modulus) {
    const double unit = context.units.bMetric() ? kMpaPerPsi : 1.0;
    return {{{"ORVAL", modulus.byRValue * unit},
             {"OCBR", modulus.byCbr * unit},
             {"V", modulus.governing * unit}}};
}

/// Shows and stores both estimates and the one that governs.
void StoreEstimate(ScreenContext& context, Form& form) {
    const auto modulus = Estimate(context, form);
    if (!modulus) return;
    for (const auto& [output, value] : Outputs(context, *modulus)) {
        context.units.SetDisplayNumber(output, 1, 1, value);
        form.SetText(output, context.units.GetDisplayValue(output));
    }
}

/// An empty test counts as 0, so that both left empty give 0 all over.
void TestLeft(ScreenEvent& event) {
    if (event.control->name == "CBR" || event.control->name == "RVAL")
        StoreEstimate(event.context, event.form);
}

/// Hands the governing modulus, as it is shown, to the field for which the screen was opened, unless nobody
/// changed a test: a modulus typed by hand survives a look at the estimates.
void Closing(ScreenEvent& event) {
    const std::string field = event.form.TextOf("FieldName");
    const std::string value = event.form.TextOf("V");
    bool warns = false;
    if (event.form.edited && !field.empty() && ParseNumber(value) != 0.0) {
        const CellValue before = CalledField(event.context, event.form);
        event.context.units.SetDisplayValue(field, 1, 1, value);
        const bool differs = !IsSameValue(CalledField(event.context, event.form), before);
        if (differs) event.context.bProjectChanged = true;
        warns = differs && EqualNoCase(field, "RM");
    }
    ReturnFromSideScreen(event.context, event.form, warns);
}

}  // namespace

FormType SubgradeModulusHelp() {
    FormType type;
    type.name = kForm;
    type.caption = "Soil Resilient Modulus";
    type.isHelp = true;
    type.layout = Rows({
        Text("LabTests", kAboutTests),
        Text("LabCorrelation", kAboutCorrelation),
        Columns({Frame("Frame1", Translated("By CBR"),
                       {Fields({{.variable = "CBR", .label = "CBR Value:"},
                                {.variable = "OCBR", .label = "Resilient Modulus:", .computed = true}})}),
                 Frame("Frame2", Translated("By R-Value"),
                       {Fields({{.variable = "RVAL", .label = "R-Value:"},
                                {.variable = "ORVAL",
                                 .label = "Resilient Modulus, psi:",
                                 .metricLabel = "Resilient Modulus, MPa:",
                                 .computed = true}})})}),
        Fields({{.variable = "V", .label = "Subgrade Resilient Modulus:", .computed = true}}),
    });
    type.handlers = {{FormEvent::LostFocus, "", HandlerOrder::After, TestLeft},
                     {FormEvent::Unload, "", HandlerOrder::Before, Closing}};
    return type;
}

}  // namespace kelvor

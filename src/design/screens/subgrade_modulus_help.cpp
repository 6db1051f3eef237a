#include "design/screens/subgrade_modulus_help.h"

#include "design/calc/reliability.h"
#include "design/calc/subgrade_modulus.h"
#include "platform/number_text.h"
#include "platform/real.h"
#include "screens/forms/balance_state.h"
#include "screens/forms/form.h"
#include "screens/forms/side_screen.h"

namespace kelvor {

namespace {

constexpr double kMpaPerPsi = 0.006894757;

const char* const kAboutTests =
    "Empirical relationships have been developed between the CBR (California Bearing Ratio) value (using "
    "dynamic "
    "compaction), the R-value, and the in-site resilient modulus of the soil.";

const char* const kAboutCorrelation =
    "The correlation used in this program were developed under NCHRP Project 128, 'Evaluation of AASHTO "
    "Interim "
    "Guide for the Design of Pavement Structures.'"
    "  This study found a non-linear relationship between resilient modulus and CBR or R-Value."
    "  Although equation 1.5.1 of the AASHTO Guide suggests a relationship of 1500 * CBR for the resilient "
    "modulus "
    "of the subgrade, this correlation is only valid for fine-grained soils with low CBR value."
    "  Other studies (Indiana, Ohio) have shown a correlation as low as 800 * CBR, and ranging from 750 to "
    "3,000 "
    "times the CBR value."
    "  This range agrees with the correlation established in NCHRP Project 128.";

/// Shows and stores both estimates and the one that governs. Values out of range are told, and the estimates
/// stay as they were.
void Compute(ScreenContext& context, Form& form, Control* /*field*/) {
    SubgradeModulus modulus;
    try {
        modulus =
            ComputeSubgradeModulus(ParseNumber(form.HiddenText("CBR")), ParseNumber(form.HiddenText("RVAL")));
    } catch (const ArithmeticFault&) {
        ReportMathOverflow(context.calc.dialogs);
        return;
    }
    const double unit = context.units.bMetric() ? kMpaPerPsi : 1.0;
    context.units.SetDisplayNumber("ORVAL", 1, 1, modulus.byRValue * unit);
    context.units.SetDisplayNumber("OCBR", 1, 1, modulus.byCbr * unit);
    context.units.SetDisplayNumber("V", 1, 1, modulus.governing * unit);
    form.workedOut = true;
    RefreshScreen(context, form);
}

/// Hands the governing modulus, as it is shown, to the field for which the screen was opened.
void Closing(ScreenContext& context, Form& form, Control* /*control*/) {
    const std::string field = form.HiddenText("FieldName");
    const std::string value = form.HiddenText("V");
    bool warns = false;
    if (form.workedOut && !field.empty() && ParseNumber(value) != 0.0) {
        const CellValue before = CalledField(context, form);
        context.units.SetDisplayValue(field, 1, 1, value);
        const bool differs = CalledField(context, form) != before;
        if (differs) context.bProjectChanged = true;
        warns = differs && EqualNoCase(field, "RM");
    }
    ReturnFromSideScreen(context, form, warns);
}

}  // namespace

FormType SubgradeModulusHelp() {
    FormType type;
    type.name = "H_SRM";
    type.tag = "H_SRM";
    type.caption = "Soil Resilient Modulus";
    type.isHelp = true;
    type.layout = Rows({
        Text("LabTests", kAboutTests),
        Text("LabCorrelation", kAboutCorrelation),
        Columns(
            {Frame("Frame1", "By CBR",
                   {Fields({{.variable = "CBR", .label = "CBR Value:"},
                            {.variable = "OCBR", .label = "Resilient Modulus:", .computed = true}})}),
             Frame("Frame2", "By R-Value",
                   {Fields({{.variable = "RVAL", .label = "R-Value:"},
                            {.variable = "ORVAL", .label = "Resilient Modulus, psi:", .computed = true}})})}),
        Fields({{.variable = "V", .label = "Subgrade Resilient Modulus:", .computed = true}}),
        Buttons({{"cmdAction", "&OK"}, {"SSHelp", "Hel&p"}}),
        Hidden({"FieldName", "FormName"}),
    });
    type.handlers = {{FormEvent::Stored, "", HandlerOrder::After, Compute},
                     {FormEvent::Unload, "", HandlerOrder::Before, Closing}};
    return type;
}

}  // namespace kelvor

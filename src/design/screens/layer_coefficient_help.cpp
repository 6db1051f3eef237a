#include "design/screens/layer_coefficient_help.h"

#include <utility>

#include "design/calc/layer_coefficient.h"
#include "forms/field_help.h"
#include "forms/form.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr int kLeastModulus = 100;  // ksi
constexpr int kGreatestModulus = 500;
constexpr int kModulusStep = 20;

ChartData CoefficientChart() {
    ChartData chart;
    chart.title = "Fig 2.5 AASHTO Guide";
    chart.across = {.title = "Elastic Modulus, Eac (ksi), of   Asphalt Concrete (at 68\u00B0F)",
                    .least = kLeastModulus,
                    .greatest = kGreatestModulus,
                    .step = 100.0,
                    .picture = "0"};
    chart.up = {
        .title = "Layer Coefficient, a", .least = 0.1, .greatest = 0.5, .step = 0.1, .picture = "0.0"};
    chart.series = {{"Layer Coefficient, a", "#1F5FBF"}};
    for (int ksi = kLeastModulus; ksi <= kGreatestModulus; ksi += kModulusStep) {
        chart.rows.push_back({std::to_string(ksi), {AsphaltCoefficient(ksi).value()}});
    }
    return chart;
}

void Load(ScreenEvent& event) {
    const bool ofGrid = event.form.Find("Column") != nullptr;
    RecallField(event.context, event.form, {ofGrid ? "LDLayerCoef" : "ACACOLLC"});
    ShowCalledField(event.context, event.form);
}

FormType CoefficientHelp(const char* name, const char* caption, std::vector<std::string> hidden) {
    FormType type;
    type.name = name;
    type.caption = caption;
    type.modal = true;
    type.isHelp = true;
    type.layout = Rows({
        Chart("Chart1", CoefficientChart()),
        Text("LabCurve",
             Translated(
                 "The curve is the published fit a = 0.171 ln(E) - 1.784, with E in psi (100 ksi is 690 "
                 "MPa).")),
        Fields({{.label = "Value", .box = "TextBox", .labelName = "Label", .unitName = "Units"}}),
        Hidden(std::move(hidden)),
    });
    type.foot = {BackToFieldButton(kOkButton)};
    type.handlers = {{FormEvent::Load, "", HandlerOrder::After, Load},
                     {FormEvent::LostFocus, "", HandlerOrder::Before, DropCommas},
                     {FormEvent::Unload, "", HandlerOrder::Before, CloseValueHelp}};
    return type;
}

}  // namespace

FormType LayerCoefficientHelp() {
    return CoefficientHelp("H_LDLayerCoef", "Help Screen for Layer Coefficient", {"Column", "Dim1"});
}

FormType OverlayCoefficientHelp() {
    return CoefficientHelp("H_ACACOLLC", "Help Screen for AC Overlay Layer Coefficient", {"Dim1"});
}

}  // namespace kelvor

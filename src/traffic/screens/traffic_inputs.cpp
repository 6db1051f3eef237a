#include "traffic/screens/traffic_inputs.h"

#include "forms/coded_list.h"
#include "traffic/screens/traffic_words.h"

namespace kelvor {

namespace {

/// As wide as the boxes of numbers.
constexpr double kPeriodLetters = 14.0;

}  // namespace

LayoutElement TrafficInputCopies() {
    const auto copy = [](const char* variable, const char* box) {
        return FieldItem{.variable = variable, .locked = true, .box = box};
    };
    return Frame("Frame1", "Pavement && Traffic Inputs",
                 {Columns({Fields({copy("TrafficDEPTH", "TRAFFICDEPTH"), copy("TrafficSN", "TRAFFICSN"),
                                   copy("PT", "PT")}),
                           Fields({copy("Life", "Life"),
                                   copy("GrowthRate", "GrowthRate"),
                                   {.label = "Traffic Input By (M/D/Y)",
                                    .locked = true,
                                    .box = "TrPer",
                                    .letters = kPeriodLetters}})})});
}

void ShowPeriod(const ScreenContext& context, Form& form) {
    form.SetText("TrPer", WordOf(CountPeriods(), context.calc.store.GetVar("TrPer").value()));
}

}  // namespace kelvor

#include "lcc/screens/graphs_screen.h"

#include <array>

#include "forms/form.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr std::array kChecks = {"InitialCost", "MaintenanceCosts", "RehabilitationCosts"};
constexpr std::array kLabels = {"Label3", "Label4", "Label5"};

void EnableGraphChecks(Form& form, bool enabled) {
    for (const char* name : kChecks) form.Get(name).enabled = enabled;
    for (const char* name : kLabels) form.Get(name).enabled = enabled;
}

void DisableGraphChecks(Form& form) {
    EnableGraphChecks(form, false);
    for (const char* name : kChecks) form.Get(name).value = false;
}

void SumClick(ScreenEvent& event) { EnableGraphChecks(event.form, true); }
void HistogramClick(ScreenEvent& event) { DisableGraphChecks(event.form); }

std::string CountsThemIn() { return Translated("Tick it to count these costs in"); }

}  // namespace

FormType GraphsForm() {
    FormType type;
    type.name = "Graphs";
    type.caption = "Graphs";
    type.layout = Columns({
        Frame("Frame1", Translated("Graph"),
              {Options(
                  {{"PW", "Present Worth", Translated("A graph of present worths")},
                   {"EUAC", "EUAC", Translated("A graph of equivalent annual costs")},
                   {"PWH", "Present  Worth Histogram", Translated("The present worth of each year's costs")},
                   {"EUACH", "EUAC Histogram", Translated("The annual cost year by year")}})}),
        Frame("Frame2", Translated("Costs in it"),
              {Matrix({At(0, 0, Checks({{"InitialCost", "Initial Cost", CountsThemIn()}})),
                       At(0, 1, Caption("Label3", Translated("before the opening"))),
                       At(1, 0, Checks({{"MaintenanceCosts", "Maintenance Cost", CountsThemIn()}})),
                       At(1, 1, Caption("Label4", Translated("in every year"))),
                       At(2, 0, Checks({{"RehabilitationCosts", "Rehabilitation Cost", CountsThemIn()}})),
                       At(2, 1, Caption("Label5", Translated("once, in their years")))})}),
    });
    type.handlers = {
        {FormEvent::Click, "PW", HandlerOrder::After, SumClick},
        {FormEvent::Click, "EUAC", HandlerOrder::After, SumClick},
        {FormEvent::Click, "PWH", HandlerOrder::After, HistogramClick},
        {FormEvent::Click, "EUACH", HandlerOrder::After, HistogramClick},
    };
    return type;
}

}  // namespace kelvor

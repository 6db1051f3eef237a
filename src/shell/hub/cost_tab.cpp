#include <algorithm>
#include <array>

#include "shell/hub/screen_choice.h"
#include "shell/hub/tabs.h"

namespace kelvor {

namespace {

constexpr std::array kGraphs = {"InitialCost", "MaintenanceCosts",    "RehabilitationCosts", "PW",
                                "EUAC",        "ExpenditureHistogram"};

void GraphsClick(ScreenEvent& event) {
    const bool any = std::any_of(kGraphs.begin(), kGraphs.end(),
                                 [&](const char* option) { return event.form.Get(option).value; });
    if (any) {
        OpenChosenScreen(event);
    } else {
        event.context.calc.dialogs.ShowMessage({.text = "Please select the graph.", .title = "Graphs"});
    }
}

}  // namespace

HubPage CostTab() {
    return {Page("Life Cycle Costing",
                 {Columns({Rows({Frame("FrameEc", "Economic Factors",
                                       {Fields({{"InterestRate"},
                                                {"InflationRate"},
                                                {.variable = "DiscountRate", .computed = true},
                                                {"AnalysisPeriodA"},
                                                {"AnalysisPeriodB"}})}),
                                 Frame("FrameLc", "Costs",
                                       {Options({{"oLcA1", "Pavement (A) Cost Information"},
                                                 {"oLcA2", "Pavement (B) Cost Information"},
                                                 {"oLcS", "Life-Cycle Cost Summary"}}),
                                        Buttons({{"Command2", "&Costs"}})})}),
                           Frame("GraphsOpt", "Graphs",
                                 {Options({{"InitialCost", "Initial Cost"},
                                           {"MaintenanceCosts", "Maintenance Cost"},
                                           {"RehabilitationCosts", "Rehabilitation Cost"},
                                           {"PW", "Present Worth"},
                                           {"EUAC", "EUAC"},
                                           {"ExpenditureHistogram", "Expenditure Histogram"}}),
                                  Buttons({{"Command8", "Graphs"}})})})}),
            {{FormEvent::Click, "Command2", HandlerOrder::Instead, OpenChosenScreen},
             {FormEvent::Click, "Command8", HandlerOrder::Instead, GraphsClick}}};
}

void LoadCostTab(Form& hub) { hub.Get("DiscountRate").tabStop = true; }

}  // namespace kelvor

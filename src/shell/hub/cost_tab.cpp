#include <algorithm>

#include "platform/translation.h"
#include "shell/hub/screen_choice.h"
#include "shell/hub/tabs.h"

namespace kelvor {

namespace {

void GraphsClick(ScreenEvent& event) {
    const auto rows = HubTable();
    const bool any = std::any_of(rows.begin(), rows.end(), [&](const HubRow& row) {
        return row.group == HubGroup::Graphs && event.form.Get(row.option).value;
    });
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
                                 Frame("FrameLc", Translated("Costs"),
                                       {HubOptions(HubGroup::Costs),
                                        Buttons({{HubButton(HubGroup::Costs), Translated("&Costs"),
                                                  OpensChosenScreen()}})})}),
                           Frame("GraphsOpt", "Graphs",
                                 {HubOptions(HubGroup::Graphs),
                                  Buttons({{HubButton(HubGroup::Graphs), "Graphs",
                                            Translated("Draw the chosen graph")}})})})}),
            {OpeningChosenScreen(HubGroup::Costs),
             {FormEvent::Click, HubButton(HubGroup::Graphs), HandlerOrder::Instead, GraphsClick}}};
}

void LoadCostTab(Form& hub) { hub.Get("DiscountRate").tabStop = true; }

}  // namespace kelvor

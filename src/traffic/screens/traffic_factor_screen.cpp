#include "traffic/screens/traffic_factor_screen.h"

#include <algorithm>
#include <array>

#include "forms/form.h"
#include "forms/form_events.h"
#include "forms/recalculation.h"
#include "forms/side_screen.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr std::array kTrafficFields = {"TrInPerTruck", "TrInADT", "TrInADTT"};

void Offer(Form& form, const char* box, bool offered) {
    Control& control = form.Get(box);
    control.enabled = offered;
    control.backColor = offered ? colours::kWindow : colours::kButtonFace;
}

/// The calculation asks the screen in which way the traffic is given.
void ShowChoice(const ScreenContext& context, Form& form) {
    const bool trucks = context.values.trafficInTrucks;
    form.Get("OpADTT").value = trucks;
    form.Get("OpADT").value = !trucks;
    Offer(form, "TrInADTT", trucks);
    Offer(form, "TrInADT", !trucks);
    Offer(form, "TrInPerTruck", !trucks);
}

void Load(ScreenEvent& event) {
    event.context.values.trafficInTrucks = true;
    ShowChoice(event.context, event.form);
}

void OptionClick(ScreenEvent& event) {
    const bool trucks = event.control->name == "OpADTT";
    if (trucks != event.context.values.trafficInTrucks) {
        event.context.values.trafficInTrucks = trucks;
        event.context.bProjectChanged = true;
        for (const char* result : {"RIGE18", "FLEXE18"}) event.context.calc.store.SetCell(result, 1, 1, {});
    }
    ShowChoice(event.context, event.form);
    RecalcOutputs(event.context, event.form, "", 0);
}

void HelpClick(ScreenEvent& event) {
    const std::string field = event.form.TextOf("SolveForField");
    const bool traffic =
        std::find(kTrafficFields.begin(), kTrafficFields.end(), field) != kTrafficFields.end();
    FormEvents(event.context)
        .Open({.form = traffic ? "H_TrIn" : "H_TrFa", .call = MakeCall(event.form, field)});
}

/// From elsewhere the calculation sees the screen as it is designed.
void Closing(ScreenEvent& event) { event.context.values.trafficInTrucks = true; }

LayoutElement TrafficInput() {
    return Frame(
        "Frame1", "Traffic Input as",
        {Matrix({At(0, 0,
                    Options({{"OpADTT", "Average Daily Truck Traffic (ADTT)",
                              Translated("The trucks of a day are known")}})),
                 At(0, 1, BareBox({"TrInADTT"})),
                 At(1, 0,
                    Options({{"OpADT", "Average Daily Traffic (ADT)",
                              Translated("All vehicles of a day and the share of trucks are known")}})),
                 At(1, 1, BareBox({"TrInADT"})), At(2, 0, LabelOf("TrInPerTruck")),
                 At(2, 1, BareBox({"TrInPerTruck"})), At(2, 2, UnitOf("TrInPerTruck"))})});
}

}  // namespace

FormType TrafficFactorForm() {
    FormType type;
    type.name = "TrTr";
    type.caption = "ESAL Determination by Traffic Factor";
    type.layout = Columns({Rows({TrafficInput(), Frame("Frame2", "ESAL Traffic Factors",
                                                       {Fields({{"TrInFESAL"}, {"TrInRESAL"}})})}),
                           Rows({Frame("Frame3", Translated("Growth"), {Fields({{"GrowthRate"}, {"Life"}})}),
                                 Frame("Frame4", Translated("Design Traffic"),
                                       {Fields({{.variable = "FLEXE18", .label = "Total Flexible ESAL"},
                                                {.variable = "RIGE18", .label = "Total Rigid ESAL"}})})})});
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::After, Load},
        {FormEvent::Click, "OpADTT", HandlerOrder::Instead, OptionClick},
        {FormEvent::Click, "OpADT", HandlerOrder::Instead, OptionClick},
        {FormEvent::Click, kHelpButton, HandlerOrder::Instead, HelpClick},
        {FormEvent::Unload, "", HandlerOrder::After, Closing},
    };
    return type;
}

}  // namespace kelvor

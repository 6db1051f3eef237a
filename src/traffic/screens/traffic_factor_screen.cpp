#include "traffic/screens/traffic_factor_screen.h"

#include <algorithm>
#include <array>

#include "forms/form.h"
#include "forms/form_events.h"
#include "forms/recalculation.h"
#include "forms/side_screen.h"

namespace kelvor {

namespace {

constexpr std::array kTrafficFields = {"TrInPerTruck", "TrInADT", "TrInADTT"};

void Offer(Form& form, const char* box, bool offered) {
    Control& control = *form.Find(box);
    control.enabled = offered;
    control.backColor = offered ? colours::kWindow : colours::kButtonFace;
}

/// The calculation asks the screen in which way the traffic is given.
void ShowChoice(const ScreenContext& context, Form& form) {
    const bool trucks = context.values.trafficInTrucks;
    form.Find("OpADTT")->value = trucks;
    form.Find("OpADT")->value = !trucks;
    Offer(form, "TrInADTT", trucks);
    Offer(form, "TrInADT", !trucks);
    Offer(form, "TrInPerTruck", !trucks);
}

void Load(ScreenContext& context, Form& form, Control* /*control*/) {
    context.values.trafficInTrucks = true;
    ShowChoice(context, form);
}

void OptionClick(ScreenContext& context, Form& form, Control* option) {
    const bool trucks = option->name == "OpADTT";
    if (trucks != context.values.trafficInTrucks) {
        context.values.trafficInTrucks = trucks;
        context.bProjectChanged = true;
        for (const char* result : {"RIGE18", "FLEXE18"}) context.calc.store.SetCell(result, 1, 1, {});
    }
    ShowChoice(context, form);
    RecalcOutputs(context, form, "", 0);
}

void HelpClick(ScreenContext& context, Form& form, Control* /*button*/) {
    const std::string field = form.HiddenText("SolveForField");
    const bool traffic =
        std::find(kTrafficFields.begin(), kTrafficFields.end(), field) != kTrafficFields.end();
    FormEvents(context).Open({.form = traffic ? "H_TrIn" : "H_TrFa", .call = MakeCall(form, field)});
}

/// From elsewhere the calculation sees the screen as it is designed.
void Closing(ScreenContext& context, Form& /*form*/, Control* /*control*/) {
    context.values.trafficInTrucks = true;
}

LayoutNode TrafficInput() {
    return Frame(
        "Frame1", "Traffic Input as",
        {Matrix({At(0, 0, Options({{"OpADTT", "Average Daily Truck Traffic (ADTT)"}})),
                 At(0, 1, Box({"TrInADTT"})), At(1, 0, Options({{"OpADT", "Average Daily Traffic (ADT)"}})),
                 At(1, 1, Box({"TrInADT"})), At(2, 0, Part("LabTrInPerTruck")),
                 At(2, 1, Box({"TrInPerTruck"})), At(2, 2, Part("uTrInPerTruck"))})});
}

}  // namespace

FormType TrafficFactorForm() {
    FormType type;
    type.name = "TrTr";
    type.tag = "TrTr";
    type.caption = "ESAL Determination by Traffic Factor";
    type.layout = Rows({
        Columns({Rows({TrafficInput(),
                       Frame("Frame2", "ESAL Traffic Factors", {Fields({{"TrInFESAL"}, {"TrInRESAL"}})})}),
                 Rows({Frame("Frame3", "Growth", {Fields({{"GrowthRate"}, {"Life"}})}),
                       Frame("Frame4", "Design Traffic",
                             {Fields({{.variable = "FLEXE18", .label = "Total Flexible ESAL"},
                                      {.variable = "RIGE18", .label = "Total Rigid ESAL"}})})})}),
        Buttons({{"cmdAction", "&OK"}, {"SSHelp", "Hel&p"}}),
        Hidden({"Dim1", "Dim2"}),
    });
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::After, Load},
        {FormEvent::Click, "OpADTT", HandlerOrder::Instead, OptionClick},
        {FormEvent::Click, "OpADT", HandlerOrder::Instead, OptionClick},
        {FormEvent::Click, "SSHelp", HandlerOrder::Instead, HelpClick},
        {FormEvent::Unload, "", HandlerOrder::After, Closing},
    };
    return type;
}

}  // namespace kelvor

#include "traffic/screens/traffic_inputs_screen.h"

#include "forms/act_name.h"
#include "forms/coded_list.h"
#include "forms/field_entry.h"
#include "forms/field_help.h"
#include "forms/form.h"
#include "platform/translation.h"
#include "traffic/calc/traffic_codes.h"
#include "traffic/screens/distribution.h"
#include "traffic/screens/traffic_words.h"

namespace kelvor {

namespace {

/// Stores the code of a choice. True if it is another one than before.
bool StoreChoice(ScreenContext& context, const char* variable, int choice) {
    const bool changed = context.calc.store.GetVar(variable) != choice;
    if (changed) context.units.SetDisplayNumber(variable, 1, 1, choice);
    return changed;
}

/// Which of two codes is stored; any other code counts as the second one.
int StoredChoice(const ScreenContext& context, const char* variable, int code, int otherwise) {
    return context.calc.store.GetVar(variable) == code ? code : otherwise;
}

void Select(Form& form, const char* chosen, const char* other) {
    form.Get(chosen).value = true;
    form.Get(other).value = false;
}

/// The traffic counts as one-way, or as two-way.
bool ChooseWay(ScreenContext& context, Form& form, int way) {
    const bool twoWay = way == kTwoWay;
    Select(form, twoWay ? "TRTWOWAY" : "TRONEWAY", twoWay ? "TRONEWAY" : "TRTWOWAY");
    const bool changed = StoreChoice(context, "TRWAY", way);
    OfferDistribution(context, form);
    return changed;
}

/// The traffic is that of the design lane, or of the whole road, which also needs to be told one-way or
/// two-way.
bool ChooseTraffic(ScreenContext& context, Form& form, int traffic) {
    const bool total = traffic == kTotalTraffic;
    Select(form, total ? "Option2" : "Option1", total ? "Option1" : "Option2");
    bool changed = StoreChoice(context, "TRFACTYPE", traffic);
    if (total && ChooseWay(context, form, StoredChoice(context, "TRWAY", kTwoWay, kOneWay))) changed = true;
    OfferDistribution(context, form);
    return changed;
}

void Load(ScreenEvent& event) {
    ChooseTraffic(event.context, event.form,
                  StoredChoice(event.context, "TRFACTYPE", kTotalTraffic, kDesignLane));
}

/// A period that was never given is the day.
void Activated(ScreenEvent& event) {
    Control& period = event.form.Get("TrPer");
    ShowStoredValue(event.context, event.form, period);
    if (!period.text.empty() && period.text != WordOf(period.words, kCountedByDay)) return;
    event.context.units.SetDisplayNumber("TrPer", 1, 1, kCountedByDay);
    ShowStoredValue(event.context, event.form, period);
}

void TrafficClick(ScreenEvent& event) {
    const int traffic = event.control->name == "Option2" ? kTotalTraffic : kDesignLane;
    if (ChooseTraffic(event.context, event.form, traffic)) event.context.bProjectChanged = true;
}

void WayClick(ScreenEvent& event) {
    const int way = event.control->name == "TRTWOWAY" ? kTwoWay : kOneWay;
    if (ChooseWay(event.context, event.form, way)) event.context.bProjectChanged = true;
}

/// A period is stored as soon as it is picked.
void PeriodPicked(ScreenEvent& event) {
    const Control& list = *event.control;
    if (!CodeOf(list.words, list.text)) return;
    event.form.SetFieldChanged(false);
    StoreCode(event.context, event.form, list);
    event.context.act = ChangeOf(event.context, list.tag);
    event.context.bProjectChanged = true;
}

/// A text that is neither the day nor the month counts as the year.
void PeriodLeft(ScreenEvent& event) {
    Control& list = *event.control;
    if (!event.form.fieldChanged() || list.text.empty() || CodeOf(list.words, list.text)) return;
    list.text = WordOf(list.words, kCountedByYear);
    PeriodPicked(event);
}

void HelpClick(ScreenEvent& event) {
    if (event.form.TextOf("SolveForField") != "TrPer") {
        OpenFieldHelp(event.context, event.form);
        return;
    }
    event.context.calc.dialogs.ShowMessage(
        {.text = "No Help Available for 'Traffic Input by'.", .title = "Help"});
}

LayoutElement SharedInputs() {
    return Frame("Frame3", Translated("Pavement and Growth"),
                 {Fields({{.variable = "TrafficDEPTH", .box = "TRAFFICDEPTH"},
                          {.variable = "TrafficSN", .box = "TRAFFICSN"},
                          {"PT"},
                          {"Life"},
                          {"GrowthRate"},
                          {.variable = "TrPer", .words = CountPeriods()}})});
}

LayoutElement Distribution() {
    return Rows({
        Frame("Frame1", "Traffic Input as:",
              {Options(
                  {{"Option1", "Design Lane", Translated("The traffic is given for the design lane alone")},
                   {"Option2", "Total Traffic",
                    Translated("The traffic is given for the road; the design lane takes a share of it")}})}),
        Fields({{"TRNUMLANES"}}),
        Frame("Frame2", Translated("Directions and Lanes"),
              {Options({{"TRONEWAY", "1-way", Translated("All traffic goes in one direction")},
                        {"TRTWOWAY", "2-way", Translated("A direction takes its share of the traffic")}}),
               Fields({{.variable = "TRDIRDIS", .labelName = "Label10", .unitName = "Label11"},
                       {.variable = "TRLANDIS", .labelName = "Label12", .unitName = "Label13"}})}),
    });
}

}  // namespace

FormType TrafficInputsForm() {
    FormType type;
    type.name = "TrFa";
    type.caption = "Pavement & Traffic Inputs";
    type.layout = Columns({SharedInputs(), Distribution()});
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::After, Load},
        {FormEvent::Activate, "", HandlerOrder::After, Activated},
        {FormEvent::Change, "TrPer", HandlerOrder::After, PeriodPicked},
        {FormEvent::LostFocus, "TrPer", HandlerOrder::Before, PeriodLeft},
        {FormEvent::Click, kHelpButton, HandlerOrder::Instead, HelpClick},
    };
    for (const char* option : {"Option1", "Option2"}) {
        type.handlers.push_back({FormEvent::Click, option, HandlerOrder::Instead, TrafficClick});
    }
    for (const char* option : {"TRONEWAY", "TRTWOWAY"}) {
        type.handlers.push_back({FormEvent::Click, option, HandlerOrder::Instead, WayClick});
    }
    for (const char* field : {"TRLANDIS", "TRDIRDIS", "Option1", "Option2", "TRONEWAY", "TRTWOWAY"}) {
        type.helpRoutes.push_back({field, "H_TrDLD"});
    }
    return type;
}

}  // namespace kelvor

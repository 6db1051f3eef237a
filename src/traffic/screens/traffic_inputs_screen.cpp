#include "traffic/screens/traffic_inputs_screen.h"

#include "forms/coded_list.h"
#include "forms/field_entry.h"
#include "forms/field_help.h"
#include "forms/form.h"
#include "traffic/calc/traffic_codes.h"
#include "traffic/screens/distribution.h"
#include "traffic/screens/traffic_words.h"

namespace kelvor {

namespace {

/// Stores a choice between two. True if it is another one than before.
bool StoreChoice(ScreenContext& context, const char* variable, double choice) {
    const bool changed = context.calc.store.GetVar(variable) != choice;
    if (changed) context.units.SetDisplayNumber(variable, 1, 1, choice);
    return changed;
}

void Select(Form& form, const char* chosen, const char* other) {
    form.Find(chosen)->value = true;
    form.Find(other)->value = false;
}

bool ChooseWay(ScreenContext& context, Form& form, bool twoWay) {
    Select(form, twoWay ? "TRTWOWAY" : "TRONEWAY", twoWay ? "TRONEWAY" : "TRTWOWAY");
    const bool changed = StoreChoice(context, "TRWAY", twoWay ? kTwoWay : kOneWay);
    OfferDistribution(context, form);
    return changed;
}

/// Total traffic also needs to be told one-way or two-way.
bool ChooseTraffic(ScreenContext& context, Form& form, bool total) {
    Select(form, total ? "Option2" : "Option1", total ? "Option1" : "Option2");
    bool changed = StoreChoice(context, "TRFACTYPE", total ? kTotalTraffic : kDesignLane);
    if (total && ChooseWay(context, form, context.calc.store.GetVar("TRWAY") == kTwoWay)) changed = true;
    OfferDistribution(context, form);
    return changed;
}

void Load(ScreenContext& context, Form& form, Control* /*control*/) {
    ChooseTraffic(context, form, context.calc.store.GetVar("TRFACTYPE") == kTotalTraffic);
}

/// A period that was never given is the day.
void Activated(ScreenContext& context, Form& form, Control* /*control*/) {
    Control& period = *form.Find("TrPer");
    ShowStoredValue(context, form, period);
    if (!period.text.empty() && period.text != WordOf(period.words, kCountedByDay)) return;
    context.units.SetDisplayNumber("TrPer", 1, 1, kCountedByDay);
    ShowStoredValue(context, form, period);
}

void TrafficClick(ScreenContext& context, Form& form, Control* option) {
    if (ChooseTraffic(context, form, option->name == "Option2")) context.bProjectChanged = true;
}

void WayClick(ScreenContext& context, Form& form, Control* option) {
    if (ChooseWay(context, form, option->name == "TRTWOWAY")) context.bProjectChanged = true;
}

/// A period is stored as soon as it is picked.
void PeriodPicked(ScreenContext& context, Form& form, Control* list) {
    if (!CodeOf(list->words, list->text)) return;
    form.SetFieldChanged(false);
    StoreCode(context, form, *list);
    context.bProjectChanged = true;
}

/// A text that is neither the day nor the month counts as the year.
void PeriodLeft(ScreenContext& context, Form& form, Control* list) {
    if (!form.fieldChanged() || list->text.empty() || CodeOf(list->words, list->text)) return;
    list->text = WordOf(list->words, kCountedByYear);
    PeriodPicked(context, form, list);
}

void HelpClick(ScreenContext& context, Form& form, Control* /*button*/) {
    if (form.HiddenText("SolveForField") != "TrPer") {
        OpenFieldHelp(context, form);
        return;
    }
    context.calc.dialogs.ShowMessage({.text = "No Help Available for 'Traffic Input by'.", .title = "Help"});
}

LayoutNode SharedInputs() {
    return Frame("Frame3", "Pavement and Growth",
                 {Fields({{.variable = "TrafficDEPTH", .box = "TRAFFICDEPTH"},
                          {.variable = "TrafficSN", .box = "TRAFFICSN"},
                          {"PT"},
                          {"Life"},
                          {"GrowthRate"},
                          {.variable = "TrPer", .words = CountPeriods()}})});
}

LayoutNode Distribution() {
    return Rows({
        Frame("Frame1",
              "Traffic Input as:", {Options({{"Option1", "Design Lane"}, {"Option2", "Total Traffic"}})}),
        Fields({{"TRNUMLANES"}}),
        Frame("Frame2", "Directions and Lanes",
              {Options({{"TRONEWAY", "1-way"}, {"TRTWOWAY", "2-way"}}),
               Fields({{.variable = "TRDIRDIS", .labelName = "Label10", .unitName = "Label11"},
                       {.variable = "TRLANDIS", .labelName = "Label12", .unitName = "Label13"}})}),
    });
}

}  // namespace

FormType TrafficInputsForm() {
    FormType type;
    type.name = "TrFa";
    type.tag = "TrFa";
    type.caption = "Pavement & Traffic Inputs";
    type.layout = Rows({
        Columns({SharedInputs(), Distribution()}),
        Buttons({{"cmdAction", "&OK"}, {"SSHelp", "Hel&p"}}),
        Hidden({"Dim1", "Dim2"}),
    });
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::After, Load},
        {FormEvent::Activate, "", HandlerOrder::After, Activated},
        {FormEvent::Change, "TrPer", HandlerOrder::After, PeriodPicked},
        {FormEvent::LostFocus, "TrPer", HandlerOrder::Before, PeriodLeft},
        {FormEvent::Click, "SSHelp", HandlerOrder::Instead, HelpClick},
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

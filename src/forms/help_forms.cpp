#include <utility>

#include "forms/field_help.h"
#include "forms/form_events.h"
#include "forms/side_screen.h"
#include "platform/number_picture.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kCaptionStart = "Help Screen for the ";

void CloseClick(ScreenEvent& event) { FormEvents(event.context).Close(event.form); }

void Load(ScreenEvent& event) {
    RecallField(event.context, event.form);
    ShowCalledField(event.context, event.form, kCaptionStart);
}

void LimitsClick(ScreenEvent& event) {
    FormEvents(event.context)
        .Open({.form = "Helpfrm", .call = MakeCall(event.form, event.form.TextOf("FieldName"))});
}

std::vector<Handler> ValueHelpHandlers() {
    return {
        {FormEvent::Load, "", HandlerOrder::After, Load},
        {FormEvent::LostFocus, "", HandlerOrder::Before, DropCommas},
        {FormEvent::Unload, "", HandlerOrder::Before, CloseValueHelp},
        {FormEvent::Click, "Command1", HandlerOrder::Instead, CloseClick},
        {FormEvent::Click, kHelpButton, HandlerOrder::Instead, LimitsClick},
    };
}

/// A help with a field's head, its explanation and a box of a given name.
FormType ValueHelp(const std::string& name, const std::string& box, std::vector<std::string> hidden) {
    FormType type;
    type.name = name;
    type.caption = "Help";
    type.modal = true;
    type.isHelp = true;
    type.layout = Rows({
        Verdict("HelpHead"),
        Text("HelpText", ""),
        Fields({{.label = "Value",
                 .box = box,
                 .labelName = "Label",
                 .unitName = "Units",
                 .choice = "ComboBox"}}),
        Hidden(std::move(hidden)),
    });
    type.foot = {BackToFieldButton("Command1"),
                 {kHelpButton, Translated("&Limits"), Translated("Show what the field takes")}};
    type.handlers = ValueHelpHandlers();
    return type;
}

FormType FieldHelp() { return ValueHelp("HelpForm", "TextBox", {}); }

FormType CellHelp() { return ValueHelp("HelpGrid", "Text1", {"Column", "Dim1"}); }

// --- What the catalogue holds about a variable ---------------------------------------------------------

std::string LimitText(const std::optional<double>& limit, const std::string& picture) {
    return limit ? FormatNumber(*limit, picture) : Translated("none");
}

void LoadFacts(ScreenEvent& event) {
    const Variable* variable = event.context.catalogue.FindVariable(event.form.TextOf("FieldName"));
    if (variable == nullptr) return;
    const Range range = event.context.units.VariableRange(variable->name);
    const std::pair<std::string, std::string> facts[] = {
        {Translated("Name in scripts"), variable->name},
        {Translated("Unit"), event.context.units.UnitLabel(variable->name)},
        {Translated("Least value"), LimitText(range.low, variable->format)},
        {Translated("Greatest value"), LimitText(range.high, variable->format)},
        {Translated("Number format"), variable->format},
    };
    int line = 0;
    for (const auto& [label, text] : facts) {
        const std::string number = std::to_string(++line);
        event.form.SetText("Label" + number, label);
        event.form.SetText("Text" + number, text);
    }
    const bool limited = range.low || range.high;
    event.form.SetText("msg", Filled(limited ? Translated("%1: values outside these limits are refused.")
                                             : Translated("%1: has no limits."),
                                     {variable->desc}));
}

void ReturnFromFacts(ScreenEvent& event) { ReturnFromSideScreen(event.context, event.form, false); }

FormType FactsForm() {
    FormType type;
    type.name = "Helpfrm";
    type.caption = "Help ";
    type.modal = true;
    type.isHelp = true;
    std::vector<FieldItem> lines;
    for (const char* number : {"1", "2", "3", "4", "5"}) {
        lines.push_back({.locked = true,
                         .box = std::string("Text") + number,
                         .labelName = std::string("Label") + number,
                         .unitName = std::string("Unit") + number});
    }
    type.layout = Rows({Text("msg", ""), Fields(std::move(lines))});
    type.foot = {BackToFieldButton("CmdClose")};
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::After, LoadFacts},
        {FormEvent::Unload, "", HandlerOrder::Before, ReturnFromFacts},
        {FormEvent::Click, "CmdClose", HandlerOrder::Instead, CloseClick},
    };
    return type;
}

}  // namespace

std::vector<FormDeclaration> HelpForms() {
    return {{"HelpForm", FieldHelp}, {"HelpGrid", CellHelp}, {"Helpfrm", FactsForm}};
}

}  // namespace kelvor

#include <utility>

#include "forms/field_help.h"
#include "forms/form_events.h"
#include "forms/side_screen.h"
#include "platform/number_picture.h"

namespace kelvor {

namespace {

constexpr const char* kCaptionStart = "Help Screen for the ";

void CloseClick(ScreenContext& context, Form& form, Control* /*button*/) { FormEvents(context).Close(form); }

/// Opened without a field, a help shows the one that was asked for last.
void RecallField(const ScreenContext& context, Form& form) {
    if (!form.HiddenText("FieldName").empty()) return;
    for (const char* name : {"FieldName", "FormName"}) {
        form.SetHiddenText(name, context.units.GetDisplayValue(name));
    }
    if (form.Find("Column") == nullptr) return;
    for (const char* name : {"Dim1", "Column"}) form.SetHiddenText(name, context.units.GetDisplayValue(name));
}

void Load(ScreenContext& context, Form& form, Control* /*control*/) {
    RecallField(context, form);
    ShowCalledField(context, form, kCaptionStart);
}

void LimitsClick(ScreenContext& context, Form& form, Control* /*button*/) {
    FormEvents(context).Open({.form = "Helpfrm", .call = MakeCall(form, form.HiddenText("FieldName"))});
}

std::vector<Handler> ValueHelpHandlers() {
    return {
        {FormEvent::Load, "", HandlerOrder::After, Load},
        {FormEvent::LostFocus, "", HandlerOrder::Before, DropCommas},
        {FormEvent::Unload, "", HandlerOrder::Before, CloseValueHelp},
        {FormEvent::Click, "Command1", HandlerOrder::Instead, CloseClick},
        {FormEvent::Click, "SSHelp", HandlerOrder::Instead, LimitsClick},
    };
}

/// A help with a field's head, its explanation and a box of a given name.
FormType ValueHelp(const std::string& name, const std::string& box, std::vector<std::string> hidden) {
    FormType type;
    type.name = name;
    type.tag = name;
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
        Buttons({{"Command1", "&OK"}, {"SSHelp", "&Limits"}}),
        Hidden(std::move(hidden)),
    });
    type.handlers = ValueHelpHandlers();
    return type;
}

// --- What the catalogue holds about a variable ---------------------------------------------------------

std::string LimitText(const std::optional<double>& limit, const std::string& picture) {
    return limit ? FormatNumber(*limit, picture) : "none";
}

void LoadFacts(ScreenContext& context, Form& form, Control* /*control*/) {
    const Variable* variable = context.catalogue.FindVariable(form.HiddenText("FieldName"));
    if (variable == nullptr) return;
    const Range range = context.units.VariableRange(variable->name);
    const std::pair<std::string, std::string> facts[] = {
        {"Name in scripts", variable->name},
        {"Unit", context.units.UnitLabel(variable->name)},
        {"Least value", LimitText(range.low, variable->format)},
        {"Greatest value", LimitText(range.high, variable->format)},
        {"Number format", variable->format},
    };
    int line = 0;
    for (const auto& [label, text] : facts) {
        const std::string number = std::to_string(++line);
        form.SetHiddenText("Label" + number, label);
        form.SetHiddenText("Text" + number, text);
    }
    const bool limited = range.low || range.high;
    form.SetHiddenText("msg", variable->desc + (limited ? ": values outside these limits are refused."
                                                        : ": has no limits."));
}

void ReturnFromFacts(ScreenContext& context, Form& form, Control* /*control*/) {
    ReturnFromSideScreen(context, form, false);
}

FormType FactsForm() {
    FormType type;
    type.name = "Helpfrm";
    type.tag = "Helpfrm";
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
    type.layout = Rows({Text("msg", ""), Fields(std::move(lines)), Buttons({{"CmdClose", "&OK"}}),
                        Hidden({"FieldName", "FormName"})});
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::After, LoadFacts},
        {FormEvent::Unload, "", HandlerOrder::Before, ReturnFromFacts},
        {FormEvent::Click, "CmdClose", HandlerOrder::Instead, CloseClick},
    };
    return type;
}

}  // namespace

std::vector<FormType> HelpForms() {
    return {ValueHelp("HelpForm", "TextBox", {"FieldName", "FormName", "Dim2"}),
            ValueHelp("HelpGrid", "Text1", {"FieldName", "FormName", "Column", "Dim1", "Dim2"}), FactsForm()};
}

}  // namespace kelvor

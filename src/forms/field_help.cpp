#include "forms/field_help.h"

#include <algorithm>

#include "forms/coded_list.h"
#include "forms/field_entry.h"
#include "forms/form_builder.h"
#include "forms/form_events.h"
#include "forms/grid_entry.h"
#include "forms/side_screen.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

const char* const kTitle = "Help";

/// What help is asked for.
struct Subject {
    std::string variable;  // empty: nothing was selected
    int row = 0;           // of the grid; 0: a field of its own
};

Subject SubjectInHand(const Form& form) {
    const Control* control = form.iCurrentField ? form.controls()[*form.iCurrentField].get() : nullptr;
    if (control != nullptr && control->grid) return {control->grid->current().variable, control->grid->row};
    return {form.TextOf("SolveForField"), 0};
}

void Say(ScreenContext& context, const std::string& text) {
    context.calc.dialogs.ShowMessage({.text = text, .title = kTitle});
}

const HelpRoute* FindRoute(const FormType& type, const std::string& variable) {
    const auto found =
        std::find_if(type.helpRoutes.begin(), type.helpRoutes.end(),
                     [&](const HelpRoute& route) { return EqualNoCase(route.variable, variable); });
    return found == type.helpRoutes.end() ? nullptr : &*found;
}

/// Keeps with the project which field the help is for; a help within a help keeps the first one.
void StoreCall(ScreenContext& context, const Form& form, const Subject& subject) {
    const std::string level = form.type().isHelp ? "2" : "";
    context.units.SetDisplayValue("FieldName" + level, 1, 1, subject.variable);
    context.units.SetDisplayValue("FormName" + level, 1, 1, form.name());
    if (subject.row == 0) return;
    context.units.SetDisplayNumber("Dim1", 1, 1, subject.row);
    context.units.SetDisplayValue("Column", 1, 1, subject.variable);
}

void OpenGeneralHelp(ScreenContext& context, Form& form, const Subject& subject) {
    const Variable* variable = context.catalogue.FindVariable(subject.variable);
    if (variable == nullptr) {
        Say(context, "Variable not found: " + subject.variable);
        return;
    }
    if (!context.catalogue.HelpText(variable->name)) {
        const bool secondary = form.type().isHelp || subject.row > 0;
        Say(context, secondary ? "No help available for: " + variable->name
                               : "No Help Available for " + variable->desc + ".");
        return;
    }
    StoreCall(context, form, subject);
    FormEvents(context).Open({.form = subject.row > 0 ? "HelpGrid" : "HelpForm",
                              .call = MakeCall(form, subject.variable, subject.row)});
}

/// The control on the caller with which the field is typed there; nothing to go by if it has none.
struct CallerField {
    bool locked = false;
    bool computed = false;
    std::vector<std::string> items;
    std::vector<LetterWord> words;  // that letters stand for
    bool coded = false;             // it stores the place of a word; the list of a grid stores its text
};

CallerField FindCallerColumn(const ScreenContext& context, const Form& form, const Form& caller) {
    const GridData& grid = *caller.FindGrid()->grid;
    const auto found = grid.Find(form.TextOf("FieldName"));
    if (!found) return {};
    const GridColumn& column = grid.columns[*found];
    const bool locked = !GridTakesEdit(context, caller, *form.dim1(), column);
    return {locked, column.locked, column.items, column.words};
}

CallerField FindCallerField(const ScreenContext& context, const Form& form) {
    Form* caller = context.forms.Find(form.TextOf("FormName"));
    if (caller == nullptr) return {};
    if (form.dim1() && caller->FindGrid() != nullptr) return FindCallerColumn(context, form, *caller);
    const Control* box = caller->FindField(form.TextOf("FieldName"));
    if (box == nullptr) return {};
    return {box->locked, box->computed, box->items, box->words, box->coded};
}

/// Offers what the caller's list offers, in the same way.
void OfferItems(Control& list, const CallerField& field) {
    list.items = field.items;
    list.words = field.words;
    if (field.coded) MakeCoded(list, field.words);
}

/// Puts the list in the place of the box.
Control& SwapForList(Form& form, Control& box, Control& list) {
    list.visible = true;
    box.visible = false;
    for (const auto& control : form.controls()) {
        if (EqualNoCase(control->labelOf, box.name)) control->labelOf = list.name;
        if (EqualNoCase(control->unitOf, box.name)) control->unitOf = list.name;
    }
    return list;
}

}  // namespace

void OpenFieldHelp(ScreenContext& context, Form& form) {
    const Subject subject = SubjectInHand(form);
    if (subject.variable.empty()) {
        Say(context, "Please select field first.");
    } else if (const HelpRoute* route = FindRoute(form.type(), subject.variable)) {
        StoreCall(context, form, subject);
        FormEvents(context).Open(
            {.form = route->form, .call = MakeCall(form, subject.variable, subject.row)});
    } else {
        OpenGeneralHelp(context, form, subject);
    }
}

void RecallField(const ScreenContext& context, Form& form, const std::vector<std::string>& served) {
    if (!form.TextOf("FieldName").empty()) return;
    const std::string kept = context.units.GetDisplayValue("FieldName");
    const auto isKept = [&](const std::string& field) { return EqualNoCase(field, kept); };
    if (!served.empty() && std::none_of(served.begin(), served.end(), isKept)) return;
    form.SetText("FieldName", kept);
    form.SetText("FormName", context.units.GetDisplayValue("FormName"));
    if (form.Find("Column") == nullptr) return;
    for (const char* name : {"Dim1", "Column"}) form.SetText(name, context.units.GetDisplayValue(name));
}

void ShowCalledField(ScreenContext& context, Form& form, const std::string& captionStart) {
    const Variable* variable = context.catalogue.FindVariable(form.TextOf("FieldName"));
    Control* box = form.Find("TextBox") != nullptr ? form.Find("TextBox") : form.Find("Text1");
    form.SetText("HelpHead", "Help Item");
    if (variable == nullptr || box == nullptr) return;
    const std::string& head = variable->helpHead.empty() ? variable->desc : variable->helpHead;
    if (!captionStart.empty()) form.caption = captionStart + head;
    form.SetText("HelpHead", head);
    form.SetText("HelpText", context.catalogue.HelpText(variable->name).value_or(""));
    form.SetText("Label", variable->desc);

    Control& unit = *form.FindUnitOf(box->name);
    const CallerField field = FindCallerField(context, form);
    Control* list = form.Find("ComboBox");
    if (list != nullptr && !field.items.empty()) {
        OfferItems(*list, field);
        box = &SwapForList(form, *box, *list);
    }
    BindBox(*box, unit, variable->name, variable);
    if (field.computed) {
        box->LockAsComputed();
    } else if (field.locked) {
        box->Lock();
    }
    ShowStoredValue(context, form, *box);
    form.valueAtOpening = CalledField(context, form);
}

void DropCommas(ScreenEvent& event) {
    const bool typed = event.form.fieldChanged() && event.control->kind == ControlKind::TextBox;
    if (typed && IsNumeric(event.control->text)) std::erase(event.control->text, ',');
}

void CloseValueHelp(ScreenEvent& event) {
    const bool changed = !IsSameValue(CalledField(event.context, event.form), event.form.valueAtOpening);
    ReturnFromSideScreen(event.context, event.form, changed);
    Form* caller = event.context.forms.Find(event.form.TextOf("FormName"));
    Control* field = caller == nullptr ? nullptr : caller->FindField(event.form.TextOf("FieldName"));
    if (changed && field != nullptr && field->coded) ShowStoredValue(event.context, *caller, *field);
}

}  // namespace kelvor

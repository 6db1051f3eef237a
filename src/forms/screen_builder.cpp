#include "forms/screen_builder.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/form_events.h"
#include "forms/indicator.h"
#include "forms/side_screen.h"

namespace kelvor {

namespace {

// Where a row of the catalogue counts in letters and rows, these are its constants.
constexpr double kRuleMargin = 5.0;        // a rule is as long as its x less this
constexpr double kBoxMargin = 1.2;         // a box is wider than its picture by this
constexpr double kGridColumnScale = 1.05;  // a grid's width for each letter of its columns

void Show(Form& form, const char* name, const std::string& text) {
    Control* control = form.Find(name);
    control->text = text;
    control->visible = true;
}

void ShowPageButton(Form& form, const char* name, const PageButton& button) {
    if (!button.x) return;
    Control& control = form.Get(name);
    control.place = CoarsePlace{.x = *button.x, .y = button.y.value_or(1.0)};
    control.tag = button.screen;
    control.visible = true;
}

void BuildLabels(const ScreenContext& context, const std::string& name, Form& form) {
    int number = 0;
    for (const ScreenLabel& label : context.catalogue.LabelsOfScreen(name)) {
        Control& control = form.Add(ControlKind::Label, "Label" + std::to_string(++number));
        control.text = label.text;
        control.place = CoarsePlace{.x = label.x, .y = label.y};
        if (label.text.empty() || (label.text.front() != '-' && label.text.front() != '=')) continue;
        // The x of a rule is its width.
        const double length = std::max(0.0, std::floor(label.x - kRuleMargin));
        control.text = std::string(static_cast<std::size_t>(length), label.text.front());
        control.place->x = 0.0;
    }
}

void StartGrid(Form& form, const Field& field) {
    Control& grid = form.Get("Grid");
    grid.place = CoarsePlace{.x = field.x.value_or(1.0) - 1.0, .y = field.y.value_or(1.0), .height = 0.0};
    grid.visible = true;
}

void AddColumn(Form& form, const Field& field, const Variable& variable) {
    Control& grid = form.Get("Grid");
    if (!grid.place) return;
    GridColumn column;
    column.variable = field.name;
    column.caption = field.heading;
    column.picture = variable.format;
    column.letters = field.x.value_or(0.0);
    column.locked = field.IsOutput();
    grid.grid->columns.push_back(std::move(column));
    grid.grid->rows = std::max(grid.grid->rows, variable.dim1);
    double sum = 0.0;
    for (const GridColumn& each : grid.grid->columns) sum += each.letters;
    grid.place->width = kGridColumnScale * (sum + 1.0);
}

void AddBox(Form& form, const Field& field, const Variable& variable) {
    Control& box = form.Add(ControlKind::TextBox, field.name);
    const double width = static_cast<double>(variable.format.size()) + kBoxMargin;
    box.place = CoarsePlace{.x = field.x.value_or(0.0) - width, .y = field.y.value_or(1.0), .width = width};
    box.tag = field.id;
    box.picture = variable.format;
    box.backColor = colours::kWindow;
    box.tabStop = field.seq.has_value();
    if (field.IsOutput()) box.LockAsComputed();
}

void BuildFields(const ScreenContext& context, const std::string& name, Form& form) {
    int loaded = 0;
    for (const Field& field : context.catalogue.fields()) {
        if (field.IsGrid() && EqualNoCase(field.screen, name)) StartGrid(form, field);
    }
    for (const Field* field : context.catalogue.FieldsOfScreen(name)) {
        const Variable& variable = *context.catalogue.FindVariable(field->name);
        if (field->IsColumn()) {
            AddColumn(form, *field, variable);
        } else if (!field->IsGrid()) {
            AddBox(form, *field, variable);
            ++loaded;
        }
    }
    form.SetText("NumLoaded", std::to_string(loaded));
}

/// The text on a box's row that stands next before it is its label.
void LabelBoxes(Form& form) {
    for (const auto& box : form.controls()) {
        if (!box->place || !box->IsField()) continue;
        Control* nearest = nullptr;
        for (const auto& label : form.controls()) {
            const bool before = label->kind == ControlKind::Label && label->place &&
                                label->place->y == box->place->y && label->place->x < box->place->x;
            if (before && (nearest == nullptr || nearest->place->x < label->place->x)) nearest = label.get();
        }
        if (nearest != nullptr) nearest->labelOf = box->name;
    }
}

/// Nothing shows until the rows of a screen name it.
void HideParts(Form& form) {
    for (const char* name : {"Title", "Title1", "Title2", "Frame1", "SolveFor", "Command1"}) {
        form.Get(name).visible = false;
    }
}

void SayNotFound(const ScreenContext& context, const std::string& screen) {
    context.calc.dialogs.ShowMessage({.text = "Screen " + screen + " not found"});
}

void PageClick(ScreenEvent& event) {
    const std::string screen = event.control->tag;
    FormEvents events(event.context);
    const bool isBuilt = event.context.catalogue.FindScreen(screen) != nullptr;
    if (!isBuilt && event.context.forms.FindType(screen) == nullptr) {
        SayNotFound(event.context, screen);
    } else if (events.Close(event.form)) {
        if (isBuilt) {
            OpenBuiltScreen(event.context, screen);
        } else {
            events.Open({.form = screen});
        }
    }
}

}  // namespace

bool BuildScreen(ScreenContext& context, const std::string& name, Form& form) {
    const Screen* screen = context.catalogue.FindScreen(name);
    if (screen == nullptr) {
        SayNotFound(context, name);
        return false;
    }
    HideParts(form);
    form.tag = screen->name;
    form.SetText("ScreenName", screen->name);
    form.SetText("Dim2", screen->dim2 ? std::to_string(*screen->dim2) : "");
    if (screen->sf1Y) {
        for (const char* control : {"Frame1", "SolveFor", "Command1"}) form.Get(control).visible = true;
    }
    if (screen->layout == "H") {
        Show(form, "Title1", screen->title1);
        Show(form, "Title2", screen->title2);
    } else {
        Show(form, "Title", screen->title);
    }
    form.caption = screen->layout == "H" ? screen->title1 + ", " + screen->title2 : screen->title;
    BuildLabels(context, screen->name, form);
    BuildFields(context, screen->name, form);
    LabelBoxes(form);
    ShowPageButton(form, kBackButton, screen->left);
    ShowPageButton(form, kNextButton, screen->right);
    SetSolveForState(form, SolveState::Warning);
    return true;
}

void OpenBuiltScreen(ScreenContext& context, const std::string& name) {
    if (!context.calc.store.IsOpen()) return;
    FormEvents events(context);
    Form* open = context.forms.Find(kBlankForm);
    if (!events.Commit() || (open != nullptr && !events.Close(*open))) return;
    Form& form = context.forms.Add(*context.forms.FindType(kBlankForm), context.catalogue);
    if (BuildScreen(context, name, form)) {
        form.AssignAccessKeys();
        events.Activate(form);
    } else {
        context.forms.Remove(form);
    }
}

FormType BlankForm() {
    FormType type;
    type.name = kBlankForm;
    type.caption = "Screen";
    type.equations = {{}};
    type.layout = Rows({
        Columns({Verdict("Title"), Verdict("Title1"), Verdict("Title2")}),
        Columns({CoarseGrid(), Rows({SolveForFrame("Frame1", type.equations[0])})}),
        Hidden({"ScreenName", "NumLoaded"}),
    });
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::Instead, [](ScreenEvent& event) { HideParts(event.form); }},
        {FormEvent::Click, kBackButton, HandlerOrder::Instead, PageClick},
        {FormEvent::Click, kNextButton, HandlerOrder::Instead, PageClick}};
    return type;
}

}  // namespace kelvor

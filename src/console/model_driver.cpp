#include "console/model_driver.h"

#include <optional>

#include "console/script/command_line.h"
#include "drawing/chart_scene.h"
#include "drawing/picture_file.h"
#include "platform/number_text.h"
#include "platform/text.h"
#include "shell/overview.h"

namespace kelvor {

namespace {

const char* const kNoNewProject = "no new project can be made";

/// The longest text that a cell takes; a project with a longer one could not be saved.
constexpr std::size_t kLongestText = 1024UL * 1024UL;

/// What is chosen: whether an option is, which tab shows, how high a box of a stack is, or a text.
PropertyValue ValueOf(const Form& form, const Control& control) {
    if (control.IsChoice()) return control.value;
    if (control.kind == ControlKind::TabStrip) return form.page();
    if (control.IsBox() && control.stacked) return control.stacked->height;
    if (control.height) return NumberProperty(ParseNumber(control.text));
    return control.text;
}

}  // namespace

void ModelDriver::New() {
    // Without a template there is no project to go on with.
    if (!program_.NewProject()) throw ProgramStop(kNoNewProject);
}

void ModelDriver::Open(const std::string& path) { program_.OpenProject(path); }
void ModelDriver::Save() { program_.Save(); }
void ModelDriver::SaveAs(const std::string& path) { program_.SaveAs(path); }
void ModelDriver::ChooseUnits(bool metric) { program_.ChooseUnits(metric); }

std::vector<OverviewLine> ModelDriver::Overview() { return MakeOverview(program_.state()); }

std::optional<std::string> ModelDriver::Undo() { return program_.Undo(); }

std::optional<std::string> ModelDriver::Redo() { return program_.Redo(); }

CellReport ModelDriver::Get(const CellKey& key) {
    const ProjectStore& store = program_.state().dbWork;
    const CellValue* cell = store.FindCell(key.name, key.dim1, key.dim2);
    if (cell == nullptr) return {key, std::nullopt};
    // The catalogue's spelling of the name, whatever the file's or the command's.
    const Variable* variable = program_.state().dbCatalogue->FindVariable(key.name);
    const std::string name(variable != nullptr ? variable->name : store.CanonicalName(key.name));
    return {{name, key.dim1, key.dim2}, *cell};
}

void ModelDriver::Set(const CellKey& key, const std::string& value) {
    if (value.size() > kLongestText) throw ScriptError("the value is longer than a cell can hold");
    program_.SetValue(key.name, key.dim1, key.dim2, value);
}

DisplayReport ModelDriver::Show(const CellKey& key) {
    const Units& units = *program_.state().units;
    const Variable* variable = program_.state().dbCatalogue->FindVariable(key.name);
    return {{variable != nullptr ? variable->name : key.name, key.dim1, key.dim2},
            units.GetDisplayValue(key.name, key.dim1, key.dim2),
            units.UnitLabel(key.name)};
}

std::vector<CellReport> ModelDriver::Dump(const std::string& pattern) {
    std::vector<CellReport> cells;
    program_.state().dbWork.ForEachFilled([&](const CellKey& key, const CellValue& /*value*/) {
        if (Like(key.name, pattern)) cells.push_back(Get(key));
    });
    return cells;
}

void ModelDriver::Calc(const std::string& key, const std::string& target) { program_.CalcField(target, key); }

void ModelDriver::CalcCell(const std::string& key, int dim1, int dim2, const std::string& target) {
    program_.CalcCell(target, dim1, dim2, key);
}

int ModelDriver::FindTerm(const std::string& screen, const std::string& term) {
    const Dispatch& calculations = program_.state().calculations;
    if (const auto number = ParseSubscript(term)) {
        const int last = calculations.LastTerm(screen);
        if (last > 0 && (*number < 1 || *number > last)) {
            throw ScriptError(screen + " has terms 1 to " + std::to_string(last));
        }
        return *number;
    }
    const auto number = calculations.TermNumber(screen, term);
    if (!number) throw ScriptError(screen + " has no term " + term);
    return *number;
}

int ModelDriver::Solve(const std::string& screen, int term) { return program_.Solve(screen, term); }

// --- Screens ---------------------------------------------------------------------------------------

void ModelDriver::Raise(const UserEvent& event, const std::string& refusal) {
    if (!program_.Raise(event)) throw ScriptError(refusal);
}

const Form& ModelDriver::CurrentForm() {
    const Form* form = program_.state().formRegistry.CurrentForm;
    if (form == nullptr) throw ScriptError("no screen is open");
    return *form;
}

const Control& ModelDriver::FindControl(const std::string& name) {
    const Control* control = CurrentForm().Find(name);
    if (control == nullptr) throw ScriptError(CurrentForm().name() + " has no control " + name);
    return *control;
}

void ModelDriver::OpenForm(const std::string& name, int dim2) {
    Raise({UserEvent::Kind::OpenForm, name, {}, dim2}, name + " is not available yet");
}

void ModelDriver::ActivateForm(const std::string& name) {
    Raise({UserEvent::Kind::ActivateForm, OpenFormName(name), {}, 0}, name + " is not open");
}

void ModelDriver::CloseForm(const std::optional<std::string>& name) {
    const std::string form = name ? OpenFormName(*name) : CurrentForm().name();
    Raise({UserEvent::Kind::CloseForm, form, {}, 0}, form + " is not open");
}

std::vector<std::string> ModelDriver::Forms() {
    std::vector<std::string> names;
    for (const Form* form : program_.state().formRegistry.InOpeningOrder()) names.push_back(form->name());
    return names;
}

void ModelDriver::Focus(const std::string& control) {
    Raise({UserEvent::Kind::Focus, FindControl(control).name, {}, 0}, "");
}

void ModelDriver::Type(const std::string& text) {
    Raise({UserEvent::Kind::Type, {}, text, 0}, "no screen is open");
}

void ModelDriver::Key(const std::string& key) {
    Raise({UserEvent::Kind::Key, key, {}, 0}, "there is no key " + key);
}

void ModelDriver::Press(const std::string& control) {
    const Control& button = FindControl(control);
    if (!button.IsButton() && !button.IsChoice()) throw ScriptError(control + " is no button");
    Raise({UserEvent::Kind::Press, control, {}, 0}, "");
}

void ModelDriver::Choose(const std::string& control, const std::string& item) {
    (void)FindControl(control);
    Raise({UserEvent::Kind::Choose, control, item, 0}, control + " has no such choice");
}

void ModelDriver::SwitchTab(int tab) {
    Raise({UserEvent::Kind::SwitchTab, {}, {}, tab}, "there is no tab " + std::to_string(tab));
}

void ModelDriver::ChooseMenu(const std::string& name, int index) {
    const int before = program_.state().noProjects;
    Raise({UserEvent::Kind::Menu, name, {}, index}, "there is no menu entry " + name);
    // A cancelled Open wants a new project too.
    if (program_.state().noProjects != before) throw ProgramStop(kNoNewProject);
}

const GridData& ModelDriver::FindGrid() {
    const Control* grid = CurrentForm().FindGrid();
    if (grid == nullptr) throw ScriptError(CurrentForm().name() + " has no grid");
    return *grid->grid;
}

void ModelDriver::CheckRow(int row) {
    const int rows = FindGrid().rows;
    if (row < 1 || row > rows) throw ScriptError("the grid has rows 1 to " + std::to_string(rows));
}

void ModelDriver::CheckColumn(const std::string& column) {
    if (!FindGrid().Find(column)) throw ScriptError("the grid has no column " + column);
}

void ModelDriver::EditCell(int row, const std::string& column, const std::string& text) {
    CheckRow(row);
    CheckColumn(column);
    Raise({UserEvent::Kind::EditCell, column, text, row}, "");
}

void ModelDriver::MoveToRow(int row) {
    CheckRow(row);
    Raise({UserEvent::Kind::MoveToCell, {}, {}, row}, "");
}

void ModelDriver::DeleteRow(int row) {
    CheckRow(row);
    Raise({UserEvent::Kind::DeleteRow, {}, {}, row}, "");
}

std::vector<GridCellReport> ModelDriver::GridCells() {
    std::vector<GridCellReport> cells;
    const GridData& grid = FindGrid();
    for (int row = 1; row <= grid.rows; ++row) {
        for (const GridColumn& column : grid.columns) {
            const std::string text = program_.CellText(CurrentForm(), row, column);
            if (text.empty()) continue;
            cells.push_back({row, column.variable, text, program_.CellNote(CurrentForm(), row, column)});
        }
    }
    return cells;
}

bool ModelDriver::IsCurrentForm(const std::string& name) {
    const Form& form = CurrentForm();
    return EqualNoCase(form.name(), name) && form.Find(name) == nullptr;
}

std::optional<std::string> ModelDriver::TitleInCatalogue(const std::string& name) {
    const Form& form = CurrentForm();
    if (!EqualNoCase(form.tag, name) || form.Find(name) != nullptr) return std::nullopt;
    const Screen* screen = program_.state().dbCatalogue->FindScreen(name);
    return screen != nullptr ? std::optional(screen->title) : std::nullopt;
}

std::string ModelDriver::OpenFormName(const std::string& name) {
    const FormRegistry& registry = program_.state().formRegistry;
    if (registry.Find(name) != nullptr) return name;
    for (const Form* form : registry.InOpeningOrder()) {
        if (EqualNoCase(form->tag, name)) return form->name();
    }
    return name;
}

PropertyValue ModelDriver::Read(const std::string& control, const std::string& property) {
    if (property == "text") {
        if (IsCurrentForm(control)) return CurrentForm().caption;
        if (const auto title = TitleInCatalogue(control)) return *title;
    }
    const Control& c = FindControl(control);
    if (property == "text") return c.text;
    if (property == "enabled") return c.enabled;
    if (property == "visible") return c.visible;
    if (property == "bold") return c.bold;
    if (property == "backcolor") return std::string(c.backColor);
    if (property == "forecolor") return LetterColour(c.foreColor);
    if (property == "value") return ValueOf(CurrentForm(), c);
    throw ScriptError("a control has no property " + property);
}

std::vector<ControlReport> ModelDriver::Controls() {
    std::vector<ControlReport> reports;
    for (const auto& control : CurrentForm().controls()) {
        reports.push_back({control->name, NameOf(control->kind), control->tag, control->text,
                           control->enabled, control->visible});
    }
    return reports;
}

ChartData ModelDriver::Chart(const std::string& control) {
    const Control& c = FindControl(control);
    if (!c.chart) throw ScriptError(control + " is no chart");
    return *c.chart;
}

void ModelDriver::SavePicture(const std::string& control, const std::string& file) {
    const Control& c = FindControl(control);
    if (!c.chart) throw ScriptError(control + " is no chart");
    try {
        WritePicture(program_.state().host.files, file, MakeChartScene(*c.chart));
    } catch (const FileError& failure) {
        throw ScriptError("cannot write " + file + ": " + failure.what());
    }
}

std::optional<std::string> ModelDriver::FocusName() {
    const Form* form = program_.state().formRegistry.CurrentForm;
    if (form == nullptr || form->focus == nullptr) return std::nullopt;
    return form->focus->name;
}

bool ModelDriver::HasEnded() { return program_.ended(); }

void ModelDriver::QueueAnswer(const std::string& text) { queueAnswer_(text); }

}  // namespace kelvor

#include "forms/form_builder.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "forms/access_keys.h"
#include "forms/coded_list.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr std::array<std::string_view, 6> kNoUnits = {"No Units", "18 kip ESAL's", "80kN ESAL's",
                                                      "ESN",      "MSN",           ""};

/// The caption of a small button beside a field.
constexpr const char* kEllipsis = "\u2026";

constexpr double kStackedLetters = 40.0;  // of a box in a stack: a thickness and a name

/// A hidden box in which the common routines keep something on a form.
struct StateBox {
    std::string_view name;
    bool isNeeded = false;  // on this form
};

class Builder {
  public:
    Builder(const FormType& type, const Catalogue& catalogue) : type_(type), catalogue_(catalogue) {}

    std::vector<std::unique_ptr<Control>> Build() {
        AddElement(type_.layout);
        for (const std::string& name : detached_) ShowDetached(name);
        AddButtons(ControlKind::CommandButton, type_.foot);
        AddHiddenBoxes();
        AssignAccessKeys(controls_);
        return std::move(controls_);
    }

  private:
    Control& Add(ControlKind kind, std::string name) {
        auto control = std::make_unique<Control>();
        control->kind = kind;
        control->name = std::move(name);
        control->page = page_;
        control->group = group_;
        controls_.push_back(std::move(control));
        return *controls_.back();
    }

    // --- Elements: one routine for each kind --------------------------------------------------------

    void AddElement(const LayoutElement& element) {
        std::visit([this](const auto& kind) { Make(kind); }, element.kind);
    }

    void AddElements(const std::vector<LayoutElement>& elements) {
        for (const LayoutElement& element : elements) AddElement(element);
    }

    void Make(const layout::Rows& rows) { AddElements(rows.elements); }
    void Make(const layout::Columns& columns) { AddElements(columns.elements); }

    void Make(const layout::Matrix& matrix) {
        for (const MatrixCell& cell : matrix.cells) AddElement(cell.element);
    }

    void Make(const layout::Pages& strip) {
        Control& tabs = Add(ControlKind::TabStrip, strip.name);
        for (const layout::Page& page : strip.pages) tabs.items.push_back(page.title);
        tabs.text = tabs.items.front();
        for (std::size_t i = 0; i < strip.pages.size(); ++i) {
            page_ = static_cast<int>(i);
            group_ = ++groups_;
            AddElements(strip.pages[i].elements);
        }
        page_ = -1;
        group_ = 0;
    }

    void Make(const layout::Frame& frame) {
        AddLabelled(ControlKind::Frame, frame.name, frame.title);
        const int outer = group_;
        if (!frame.sharesOptions) group_ = ++groups_;
        AddElements(frame.elements);
        group_ = outer;
    }

    void Make(const layout::Fields& group) {
        for (const FieldItem& field : group.fields) {
            AddField(field);
            AddWorkOutButton(field);
            AddTakeOverButton(field);
        }
    }

    /// A field of which only the box is seen, unless its label or unit is shown elsewhere.
    void Make(const layout::BareBox& box) {
        const std::size_t first = controls_.size();
        AddField(box.field);
        for (std::size_t i = first; i < controls_.size(); ++i) {
            if (controls_[i]->kind == ControlKind::Label) controls_[i]->visible = false;
        }
    }

    void Make(const layout::DetachedLabel& label) { detached_.push_back(label.name); }
    void Make(const layout::Options& group) { AddButtons(ControlKind::OptionButton, group.options); }
    void Make(const layout::Checks& group) { AddButtons(ControlKind::CheckBox, group.boxes); }
    void Make(const layout::Buttons& row) { AddButtons(ControlKind::CommandButton, row.buttons); }

    void Make(const layout::Choice& choice) {
        AddLabelled(ControlKind::Label, FieldLabelName(choice.name), choice.label).labelOf = choice.name;
        Control& list = Add(ControlKind::ComboBox, choice.name);
        list.backColor = colours::kWindow;
        list.toolTip = choice.does;
    }

    void Make(const layout::Heading& line) { AddLabelled(ControlKind::Label, line.name, line.text); }
    void Make(const layout::Text& paragraph) {
        AddLabelled(ControlKind::Label, paragraph.name, paragraph.text);
    }
    void Make(const layout::Caption& line) { AddLabelled(ControlKind::Label, line.name, line.text); }
    void Make(const layout::Statement& statement) { Add(ControlKind::Label, statement.name); }
    void Make(const layout::Verdict& line) { Add(ControlKind::Label, line.name).bold = true; }

    void Make(const layout::Picture& picture) {
        Control& image = AddLabelled(ControlKind::Image, picture.name, picture.file);
        image.toolTip = picture.shows;
        image.letters = picture.letters;
    }

    void Make(const layout::Grid& declared) {
        Control& control = Add(ControlKind::Grid, declared.name);
        control.backColor = colours::kWindow;
        GridData& grid = control.grid.emplace();
        grid.rowsShown = declared.rowsShown;
        grid.routines = declared.routines;
        for (const FieldItem& item : declared.columns) {
            grid.columns.push_back(MakeColumn(item));
            const Variable* variable = catalogue_.FindVariable(item.variable);
            if (variable != nullptr) grid.rows = std::max(grid.rows, variable->dim1);
        }
        if (declared.rowsOffered > 0) grid.rows = std::min(grid.rows, declared.rowsOffered);
    }

    void Make(const layout::Table& table) {
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            for (std::size_t column = 0; column < table.rows[row].size(); ++column) {
                AddLabelled(ControlKind::Label, TableCellName(table.name, row + 1, column + 1),
                            table.rows[row][column])
                    .bold = row == 0;
            }
        }
    }

    void Make(const layout::Chart& declared) {
        Control& chart = Add(ControlKind::Chart, declared.name);
        chart.chart = declared.data;
        chart.letters = declared.letters;
    }

    void Make(const layout::Stack& stack) {
        for (const layout::StackedBox& declared : stack.boxes) {
            Control& label = AddLabelled(ControlKind::Label, declared.label, declared.text);
            label.labelOf = declared.box;
            label.visible = false;
            Control& box = Add(ControlKind::TextBox, declared.box);
            box.backColor = colours::kWindow;
            box.Lock();
            box.visible = false;
            box.letters = kStackedLetters;
            box.stacked = StackPlace{};
        }
        AddLabelled(ControlKind::Label, stack.ground, stack.groundText).stacked = StackPlace{};
    }

    void Make(const layout::ReportView& pages) { Add(ControlKind::ReportPages, pages.name); }

    void Make(const layout::Indicator& indicator) {
        Control& label = Add(ControlKind::Label, indicator.name);
        label.tag = "SolveFor";
        label.backColor = colours::kResting;
        label.foreColor = colours::kBlack;
    }

    /// What a built screen may have; it shows what its catalogue rows name.
    void Make(const layout::CoarseGrid& /*place*/) {
        Control& grid = Add(ControlKind::Grid, "Grid");
        grid.backColor = colours::kWindow;
        grid.grid.emplace();
        grid.visible = false;
        AddButton(ControlKind::CommandButton, BackButton()).visible = false;
        AddButton(ControlKind::CommandButton, NextButton()).visible = false;
    }

    void Make(const layout::Hidden& boxes) {
        hidden_.insert(hidden_.end(), boxes.names.begin(), boxes.names.end());
    }

    // --- Controls -----------------------------------------------------------------------------------

    Control& AddLabelled(ControlKind kind, std::string name, const std::string& text) {
        Control& control = Add(kind, std::move(name));
        control.text = text;
        return control;
    }

    void ShowDetached(const std::string& name) {
        for (const auto& control : controls_) {
            if (control->name == name) control->visible = true;
        }
    }

    Control& AddButton(ControlKind kind, const ButtonItem& item) {
        Control& button = AddLabelled(kind, item.name, item.caption);
        button.accessKey = MarkedKey(item.caption);
        button.does = item.does;
        button.toolTip = item.does;
        return button;
    }

    void AddButtons(ControlKind kind, const std::vector<ButtonItem>& items) {
        for (const ButtonItem& item : items) AddButton(kind, item);
    }

    /// A field's label, its box and its unit, from the catalogue.
    void AddField(const FieldItem& item) {
        const Variable* variable = catalogue_.FindVariable(item.variable);
        const bool described = item.label.empty() && variable != nullptr;
        Control& label =
            AddLabelled(ControlKind::Label, item.Label(), described ? variable->desc : item.label);
        label.labelOf = item.Box();
        if (!item.metricLabel.empty()) label.wordings = {item.label, item.metricLabel};
        Control& box = AddBox(item);
        if (!item.choice.empty()) AddChoice(item);
        Control& unit = Add(ControlKind::Label, item.Unit());
        unit.unitOf = item.Box();
        if (!item.variable.empty()) BindBox(box, unit, item.variable, variable);
        if (const UnitPair* pair = catalogue_.FindPairByEnglish(unit.text))
            unit.wordings = {pair->english, pair->metric};
    }

    Control& AddBox(const FieldItem& item) {
        const bool list = item.list || !item.words.empty();
        Control& box = Add(list ? ControlKind::ComboBox : ControlKind::TextBox, item.Box());
        box.backColor = colours::kWindow;
        box.letters = item.letters;
        box.plain = item.plain;
        if (!item.words.empty()) MakeCoded(box, item.words);
        if (item.computed || IsOutput(item.variable)) {
            box.LockAsComputed();
        } else if (item.locked) {
            box.Lock();
        }
        return box;
    }

    void AddChoice(const FieldItem& item) {
        Control& list = Add(ControlKind::ComboBox, item.choice);
        list.backColor = colours::kWindow;
        list.onlyItems = true;
        list.visible = false;
    }

    /// The small button of a field that has a help which works its value out.
    void AddWorkOutButton(const FieldItem& item) {
        for (const HelpRoute& route : type_.helpRoutes) {
            if (route.workOut.empty() || !EqualNoCase(route.variable, item.variable)) continue;
            Control& button =
                AddLabelled(ControlKind::CommandButton, WorkOutButtonName(item.variable), kEllipsis);
            button.toolTip = route.workOut;
            button.worksOut = item.variable;
        }
    }

    /// The small button of a field that may take a value over; hidden until there is one.
    void AddTakeOverButton(const FieldItem& item) {
        for (const TakeOver& source : type_.takeOvers) {
            if (!EqualNoCase(source.variable, item.variable)) continue;
            Control& button = AddLabelled(ControlKind::CommandButton, TakeOverButtonName(item.variable), "");
            button.toolTip = Filled(Translated("Take over %1"), {source.source});
            button.takesOver = item.variable;
            button.visible = false;
        }
    }

    [[nodiscard]] GridColumn MakeColumn(const FieldItem& item) const {
        const Variable* variable = catalogue_.FindVariable(item.variable);
        GridColumn column;
        column.variable = item.variable;
        column.caption = ColumnCaption(item);
        column.picture = variable == nullptr ? "" : variable->format;
        if (item.list) column.list = item.listName.empty() ? item.variable : item.listName;
        column.alsoSets = item.alsoSets;
        column.writtenLast = item.writtenLast;
        column.words = item.words;
        column.letters = item.letters;
        column.routines = item.routines;
        column.locked = item.locked || IsOutput(item.variable);
        return column;
    }

    /// What the declaration says, else the catalogue's heading for this screen, else the description.
    [[nodiscard]] std::string ColumnCaption(const FieldItem& item) const {
        if (!item.label.empty()) return item.label;
        for (const Field* field : catalogue_.FieldsOfScreen(type_.tag)) {
            if (EqualNoCase(field->name, item.variable) && !field->heading.empty()) return field->heading;
        }
        const Variable* variable = catalogue_.FindVariable(item.variable);
        return variable == nullptr ? item.variable : variable->desc;
    }

    [[nodiscard]] bool IsOutput(const std::string& variable) const {
        const auto outputs = catalogue_.OutputsOfScreen(type_.tag);
        return std::any_of(outputs.begin(), outputs.end(),
                           [&](const Field* field) { return EqualNoCase(field->name, variable); });
    }

    // --- Hidden boxes -------------------------------------------------------------------------------

    /// Those that only this form has, then those that the common routines keep something in.
    void AddHiddenBoxes() {
        const bool ofProject = type_.needsProject && !type_.isHelp;
        const std::array state = {
            StateBox{"SolveForSide", !type_.equations.empty()},  // the equation that was solved last, from 1
            StateBox{"FieldName", type_.isHelp},  // of a form that is opened for a field of another one:
            StateBox{"FormName", type_.isHelp},   // the field and that form
            StateBox{"Dim1", ofProject},          // the subscripts that it shows
            StateBox{"Dim2", type_.needsProject},
            StateBox{"Column", false},  // the variable of the grid's cell that it is opened for
            StateBox{"FieldChanged", true},
            StateBox{"SolveForField", true},
        };
        for (const std::string& name : hidden_) {
            const auto isOwn = [&](const StateBox& box) { return box.name != name; };
            if (std::all_of(state.begin(), state.end(), isOwn)) AddHidden(name);
        }
        for (const StateBox& box : state) {
            const bool declared = std::find(hidden_.begin(), hidden_.end(), box.name) != hidden_.end();
            if (box.isNeeded || declared) AddHidden(std::string(box.name));
        }
    }

    void AddHidden(const std::string& name) {
        Control& box = Add(ControlKind::TextBox, name);
        box.visible = false;
        box.tabStop = false;
        box.page = -1;
    }

    const FormType& type_;
    const Catalogue& catalogue_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::vector<std::string> detached_;  // labels and units of bare boxes that are shown after all
    std::vector<std::string> hidden_;    // boxes that the declaration adds
    int page_ = -1;
    int group_ = 0;
    int groups_ = 0;
};

}  // namespace

void BindBox(Control& box, Control& unit, const std::string& name, const Variable* variable) {
    box.tag = name;
    box.picture = variable == nullptr ? "" : variable->format;
    unit.tag = UnitLabelName(name);
    // A label without a unit stays blank through every switch.
    unit.text = variable == nullptr || IsNoUnit(variable->units) ? "" : variable->units;
}

bool IsNoUnit(std::string_view unit) {
    return std::any_of(kNoUnits.begin(), kNoUnits.end(),
                       [&](std::string_view text) { return EqualNoCase(text, unit); });
}

std::vector<std::unique_ptr<Control>> BuildControls(const FormType& type, const Catalogue& catalogue) {
    return Builder(type, catalogue).Build();
}

}  // namespace kelvor

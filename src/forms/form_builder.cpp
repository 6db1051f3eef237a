#include "forms/form_builder.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "forms/access_keys.h"
#include "forms/coded_list.h"

namespace kelvor {

namespace {

constexpr std::array<std::string_view, 6> kNoUnits = {"No Units", "18 kip ESAL's", "80kN ESAL's",
                                                      "ESN",      "MSN",           ""};

/// Every form has these, hidden: what the common routines keep on it.
constexpr std::array<std::string_view, 2> kHiddenState = {"FieldChanged", "SolveForField"};

class Builder {
  public:
    Builder(const FormType& type, const Catalogue& catalogue) : type_(type), catalogue_(catalogue) {}

    std::vector<std::unique_ptr<Control>> Build() {
        AddNode(type_.layout);
        for (const std::string& part : parts_) ShowPart(part);
        for (const std::string_view name : kHiddenState) AddHidden(std::string(name));
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

    void AddNode(const LayoutNode& node) {
        switch (node.kind) {
            case LayoutKind::Pages:
                return AddPages(node);
            case LayoutKind::Frame:
                return AddFrame(node);
            case LayoutKind::Columns:
            case LayoutKind::Rows:
            case LayoutKind::Matrix:
                for (const LayoutNode& child : node.children) AddNode(child);
                return;
            case LayoutKind::Fields:
                for (const FieldItem& field : node.fields) AddField(field);
                return;
            case LayoutKind::Hidden:
                for (const FieldItem& field : node.fields) AddHidden(field.variable);
                return;
            case LayoutKind::Options:
                return AddButtons(ControlKind::OptionButton, node);
            case LayoutKind::Checks:
                return AddButtons(ControlKind::CheckBox, node);
            case LayoutKind::Buttons:
                return AddButtons(ControlKind::CommandButton, node);
            default:
                return AddSingle(node);
        }
    }

    /// What has no elements inside it.
    void AddSingle(const LayoutNode& node) {
        switch (node.kind) {
            case LayoutKind::Picture:
                return AddPicture(node);
            case LayoutKind::Verdict:
                Add(ControlKind::Label, node.name).bold = true;
                return;
            case LayoutKind::Grid:
                return AddGrid(node);
            case LayoutKind::Table:
                return AddTable(node);
            case LayoutKind::Chart:
                Add(ControlKind::Chart, node.name).chart = node.chart;
                return;
            case LayoutKind::Indicator:
                return AddIndicator(node.name);
            case LayoutKind::Choice:
                return AddChoice(node);
            case LayoutKind::Placed:
                return AddBuiltParts();
            case LayoutKind::Box:
                return AddBox(node.fields.front());
            case LayoutKind::Part:
                parts_.push_back(node.name);
                return;
            default:  // a text of some kind
                Add(ControlKind::Label, node.name).text = node.title;
        }
    }

    void AddButtons(ControlKind kind, const LayoutNode& node) {
        for (const ButtonItem& button : node.buttons) AddButton(kind, button);
    }

    void AddPages(const LayoutNode& node) {
        Control& strip = Add(ControlKind::TabStrip, node.name);
        for (const LayoutNode& page : node.children) strip.items.push_back(page.title);
        strip.text = strip.items.front();
        for (std::size_t i = 0; i < node.children.size(); ++i) {
            page_ = static_cast<int>(i);
            group_ = ++groups_;
            AddNode(node.children[i]);
        }
        page_ = -1;
        group_ = 0;
    }

    void AddFrame(const LayoutNode& node) {
        Add(ControlKind::Frame, node.name).text = node.title;
        const int outer = group_;
        if (!node.sharesOptions) group_ = ++groups_;
        for (const LayoutNode& child : node.children) AddNode(child);
        group_ = outer;
    }

    void AddChoice(const LayoutNode& node) {
        Control& label = Add(ControlKind::Label, FieldLabelName(node.name));
        label.text = node.title;
        label.labelOf = node.name;
        Add(ControlKind::ComboBox, node.name).backColor = colours::kWindow;
    }

    void AddPicture(const LayoutNode& node) {
        Control& picture = Add(ControlKind::Image, node.name);
        picture.text = node.title;
        picture.toolTip = node.shows;
        picture.letters = node.letters;
    }

    /// A field of which only the box is seen, unless a part of it is shown elsewhere.
    void AddBox(const FieldItem& item) {
        const std::size_t first = controls_.size();
        AddField(item);
        for (std::size_t i = first; i < controls_.size(); ++i) {
            if (controls_[i]->kind == ControlKind::Label) controls_[i]->visible = false;
        }
    }

    void ShowPart(const std::string& name) {
        for (const auto& control : controls_) {
            if (control->name == name) control->visible = true;
        }
    }

    void AddIndicator(const std::string& name) {
        Control& label = Add(ControlKind::Label, name);
        label.tag = "SolveFor";
        label.backColor = colours::kResting;
        label.foreColor = colours::kBlack;
    }

    /// What a built screen may have; it shows what its catalogue rows name.
    void AddBuiltParts() {
        Control& grid = Add(ControlKind::Grid, "Grid");
        grid.backColor = colours::kWindow;
        grid.grid.emplace();
        grid.visible = false;
        AddButton(ControlKind::CommandButton, {"PrevPage", "&Back"});
        controls_.back()->visible = false;
        AddButton(ControlKind::CommandButton, {"NextPage", "&Next"});
        controls_.back()->visible = false;
    }

    void AddHidden(const std::string& name) {
        Control& box = Add(ControlKind::TextBox, name);
        box.visible = false;
        box.tabStop = false;
        box.page = -1;
    }

    void AddButton(ControlKind kind, const ButtonItem& item) {
        Control& button = Add(kind, item.name);
        button.text = item.caption;
        button.accessKey = MarkedKey(item.caption);
        if (item.comesLater) {
            button.enabled = false;
            button.toolTip = kComesLater;
        }
    }

    void AddTable(const LayoutNode& node) {
        for (std::size_t row = 0; row < node.table.size(); ++row) {
            for (std::size_t column = 0; column < node.table[row].size(); ++column) {
                Control& cell = Add(ControlKind::Label, TableCellName(node.name, row + 1, column + 1));
                cell.text = node.table[row][column];
                cell.bold = row == 0;
            }
        }
    }

    /// A field's label, its box and its unit, from the catalogue.
    void AddField(const FieldItem& item) {
        const Variable* variable = catalogue_.FindVariable(item.variable);
        Control& label = Add(ControlKind::Label, item.Label());
        label.text = !item.label.empty() || variable == nullptr ? item.label : variable->desc;
        label.labelOf = item.Box();

        const bool list = item.list || !item.words.empty();
        Control& box = Add(list ? ControlKind::ComboBox : ControlKind::TextBox, item.Box());
        box.backColor = colours::kWindow;
        box.letters = item.letters;
        if (!item.words.empty()) MakeCoded(box, item.words);
        if (!item.choice.empty()) AddChoice(item);
        Control& unit = Add(ControlKind::Label, item.Unit());
        unit.unitOf = item.Box();
        const bool output = item.computed || IsOutput(item.variable);
        if (item.locked || output) LockBox(box, output);
        if (!item.variable.empty()) BindBox(box, unit, item.variable, variable);
    }

    void AddChoice(const FieldItem& item) {
        Control& list = Add(ControlKind::ComboBox, item.choice);
        list.backColor = colours::kWindow;
        list.onlyItems = true;
        list.visible = false;
    }

    void AddGrid(const LayoutNode& node) {
        Control& control = Add(ControlKind::Grid, node.name);
        control.backColor = colours::kWindow;
        control.grid.emplace();
        control.grid->rowsShown = node.rowsShown;
        control.grid->routines = node.gridRoutines;
        for (const FieldItem& item : node.fields) {
            const Variable* variable = catalogue_.FindVariable(item.variable);
            GridColumn column;
            column.variable = item.variable;
            column.caption = ColumnCaption(item);
            column.picture = variable == nullptr ? "" : variable->format;
            column.list = item.list ? item.variable : "";
            column.words = item.words;
            column.letters = item.letters;
            column.routines = item.routines;
            column.locked = item.locked || IsOutput(item.variable);
            control.grid->columns.push_back(std::move(column));
            if (variable != nullptr) control.grid->rows = std::max(control.grid->rows, variable->dim1);
        }
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

    const FormType& type_;
    const Catalogue& catalogue_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::vector<std::string> parts_;  // labels and units of boxes that are shown after all
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

void LockBox(Control& box, bool computed) {
    box.locked = true;
    box.tabStop = false;
    if (computed) box.backColor = colours::kLightCyan;
}

bool IsNoUnit(std::string_view unit) {
    return std::any_of(kNoUnits.begin(), kNoUnits.end(),
                       [&](std::string_view text) { return EqualNoCase(text, unit); });
}

std::vector<std::unique_ptr<Control>> BuildControls(const FormType& type, const Catalogue& catalogue) {
    return Builder(type, catalogue).Build();
}

}  // namespace kelvor

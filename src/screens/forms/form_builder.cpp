#include "screens/forms/form_builder.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>
#include <string>
#include <utility>

namespace kelvor {

namespace {

constexpr std::array<std::string_view, 6> kNoUnits = {"No Units", "18 kip ESAL's", "80kN ESAL's",
                                                      "ESN",      "MSN",           ""};

/// Every form has these, hidden: what the common routines keep on it.
constexpr std::array<std::string_view, 2> kHiddenState = {"FieldChanged", "SolveForField"};

/// The access keys of the main window's menus: no form is given one of these.
constexpr std::string_view kMenuKeys = "FUWH";

char ToUpper(char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); }

/// The access key that a caption marks with `&`; none if it marks none. `&&` is a plain ampersand.
char MarkedKey(const std::string& caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') continue;
        if (caption[i + 1] != '&') return ToUpper(caption[i + 1]);
        ++i;
    }
    return '\0';
}

class Builder {
  public:
    Builder(const FormType& type, const Catalogue& catalogue) : type_(type), catalogue_(catalogue) {}

    std::vector<std::unique_ptr<Control>> Build() {
        AddNode(type_.layout);
        for (const std::string_view name : kHiddenState) AddHidden(std::string(name));
        AssignAccessKeys();
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
                AddPages(node);
                return;
            case LayoutKind::Frame:
                AddFrame(node);
                return;
            case LayoutKind::Heading:
            case LayoutKind::Text:
                Add(ControlKind::Label, node.name).text = node.title;
                break;
            case LayoutKind::Picture:
                Add(ControlKind::Image, node.name).text = node.title;
                break;
            case LayoutKind::Verdict:
                Add(ControlKind::Label, node.name).bold = true;
                break;
            case LayoutKind::Grid:
                AddGrid(node);
                break;
            case LayoutKind::Indicator:
                AddIndicator(node.name);
                break;
            case LayoutKind::Fields:
                for (const FieldItem& field : node.fields) AddField(field);
                break;
            case LayoutKind::Options:
                for (const ButtonItem& option : node.buttons) AddButton(ControlKind::OptionButton, option);
                break;
            case LayoutKind::Checks:
                for (const ButtonItem& box : node.buttons) AddButton(ControlKind::CheckBox, box);
                break;
            case LayoutKind::Choice:
                AddChoice(node);
                break;
            case LayoutKind::Buttons:
                for (const ButtonItem& button : node.buttons) AddButton(ControlKind::CommandButton, button);
                break;
            case LayoutKind::Hidden:
                for (const FieldItem& field : node.fields) AddHidden(field.variable);
                break;
            case LayoutKind::Columns:
            case LayoutKind::Rows:
                break;
        }
        for (const LayoutNode& child : node.children) AddNode(child);
    }

    void AddPages(const LayoutNode& node) {
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

    void AddIndicator(const std::string& name) {
        Control& label = Add(ControlKind::Label, name);
        label.tag = "SolveFor";
        label.backColor = colours::kResting;
        label.foreColor = colours::kBlack;
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

    /// A field's label, its box and its unit, from the catalogue.
    void AddField(const FieldItem& item) {
        const Variable* variable = catalogue_.FindVariable(item.variable);
        Control& label = Add(ControlKind::Label, FieldLabelName(item.variable));
        label.text = !item.label.empty() || variable == nullptr ? item.label : variable->desc;
        label.labelOf = item.variable;

        Control& box = Add(item.list ? ControlKind::ComboBox : ControlKind::TextBox, item.variable);
        box.tag = item.variable;
        box.picture = variable == nullptr ? "" : variable->format;
        box.backColor = colours::kWindow;
        if (item.locked || IsOutput(item.variable)) {
            box.locked = true;
            box.tabStop = false;
            if (IsOutput(item.variable)) box.backColor = colours::kLightCyan;
        }

        Control& unit = Add(ControlKind::Label, UnitLabelName(item.variable));
        unit.tag = "u" + item.variable;
        // A label without a unit stays blank through every switch.
        unit.text = variable == nullptr || IsNoUnit(variable->units) ? "" : variable->units;
    }

    void AddGrid(const LayoutNode& node) {
        Control& control = Add(ControlKind::Grid, node.name);
        control.backColor = colours::kWindow;
        control.grid.emplace();
        for (const FieldItem& item : node.fields) {
            const Variable* variable = catalogue_.FindVariable(item.variable);
            GridColumn column;
            column.variable = item.variable;
            column.caption = ColumnCaption(item);
            column.picture = variable == nullptr ? "" : variable->format;
            column.list = item.list ? item.variable : "";
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

    /// Gives every label of a field, and every button without a key of its own, a letter of its text that
    /// is free on the same page and opens no menu: the first one, unless another control needs that more.
    void AssignAccessKeys() {
        for (const auto& control : controls_) {
            const bool wantsKey = !control->labelOf.empty() || control->IsButton() || control->IsChoice();
            if (!wantsKey || control->accessKey != '\0' || control->tag == "SolveFor") continue;
            std::set<char> tried;
            if (!TakeFreeKey(*control)) MakeRoom(*control, tried);
        }
    }

    bool TakeFreeKey(Control& control) {
        for (const char key : KeysOf(control)) {
            if (HolderOf(key, control.page) != nullptr) continue;
            control.accessKey = key;
            return true;
        }
        return false;
    }

    /// Takes a letter from a control that can do with another one.
    bool MakeRoom(Control& control, std::set<char>& tried) {
        for (const char key : KeysOf(control)) {
            Control* holder = HolderOf(key, control.page);
            if (!tried.insert(key).second || holder == nullptr || MarkedKey(holder->text) != '\0') continue;
            if (!TakeFreeKey(*holder) && !MakeRoom(*holder, tried)) continue;
            control.accessKey = key;
            return true;
        }
        return false;
    }

    static std::string KeysOf(const Control& control) {
        std::string keys;
        for (const char c : control.text) {
            const char key = ToUpper(c);
            const bool isLetter = (key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9');
            if (isLetter && kMenuKeys.find(key) == std::string_view::npos) keys += key;
        }
        return keys;
    }

    /// The control that has a key on a page; null if it is free there.
    [[nodiscard]] Control* HolderOf(char key, int page) const {
        const auto holder =
            std::find_if(controls_.begin(), controls_.end(), [&](const std::unique_ptr<Control>& control) {
                const bool meets = control->page == page || control->page == -1 || page == -1;
                return control->accessKey == key && meets;
            });
        return holder == controls_.end() ? nullptr : holder->get();
    }

    const FormType& type_;
    const Catalogue& catalogue_;
    std::vector<std::unique_ptr<Control>> controls_;
    int page_ = -1;
    int group_ = 0;
    int groups_ = 0;
};

}  // namespace

bool IsNoUnit(std::string_view unit) {
    return std::any_of(kNoUnits.begin(), kNoUnits.end(),
                       [&](std::string_view text) { return EqualNoCase(text, unit); });
}

std::vector<std::unique_ptr<Control>> BuildControls(const FormType& type, const Catalogue& catalogue) {
    return Builder(type, catalogue).Build();
}

}  // namespace kelvor

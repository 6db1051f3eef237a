#include "forms/layout.h"

#include <utility>

namespace kelvor {

namespace {

LayoutNode Group(LayoutKind kind, std::vector<LayoutNode> children) {
    LayoutNode node;
    node.kind = kind;
    node.children = std::move(children);
    return node;
}

LayoutNode Leaf(LayoutKind kind, std::string name, std::string title) {
    LayoutNode node;
    node.kind = kind;
    node.name = std::move(name);
    node.title = std::move(title);
    return node;
}

}  // namespace

LayoutNode Pages(std::string name, std::vector<LayoutNode> pages) {
    LayoutNode node = Group(LayoutKind::Pages, std::move(pages));
    node.name = std::move(name);
    return node;
}

LayoutNode Columns(std::vector<LayoutNode> children) {
    return Group(LayoutKind::Columns, std::move(children));
}
LayoutNode Rows(std::vector<LayoutNode> children) { return Group(LayoutKind::Rows, std::move(children)); }

LayoutNode Page(std::string title, std::vector<LayoutNode> children) {
    LayoutNode node = Rows(std::move(children));
    node.title = std::move(title);
    return node;
}

LayoutNode Frame(std::string name, std::string title, std::vector<LayoutNode> children) {
    LayoutNode node = Group(LayoutKind::Frame, std::move(children));
    node.name = std::move(name);
    node.title = std::move(title);
    return node;
}

LayoutNode Section(std::string name, std::string title, std::vector<LayoutNode> children) {
    LayoutNode node = Frame(std::move(name), std::move(title), std::move(children));
    node.sharesOptions = true;
    return node;
}

LayoutNode Fields(std::vector<FieldItem> fields) {
    LayoutNode node;
    node.kind = LayoutKind::Fields;
    node.fields = std::move(fields);
    return node;
}

LayoutNode Options(std::vector<ButtonItem> options) {
    LayoutNode node;
    node.kind = LayoutKind::Options;
    node.buttons = std::move(options);
    return node;
}

LayoutNode Checks(std::vector<ButtonItem> boxes) {
    LayoutNode node = Options(std::move(boxes));
    node.kind = LayoutKind::Checks;
    return node;
}

LayoutNode Choice(std::string name, std::string label) {
    return Leaf(LayoutKind::Choice, std::move(name), std::move(label));
}

LayoutNode Heading(std::string name, std::string text) {
    return Leaf(LayoutKind::Heading, std::move(name), std::move(text));
}

LayoutNode Text(std::string name, std::string text) {
    return Leaf(LayoutKind::Text, std::move(name), std::move(text));
}

LayoutNode Picture(std::string name, std::string file) {
    return Leaf(LayoutKind::Picture, std::move(name), std::move(file));
}

LayoutNode SmallPicture(std::string name, std::string file, double letters, std::string shows) {
    LayoutNode node = Picture(std::move(name), std::move(file));
    node.letters = letters;
    node.shows = std::move(shows);
    return node;
}

LayoutNode Matrix(std::vector<LayoutNode> elements) { return Group(LayoutKind::Matrix, std::move(elements)); }

LayoutNode At(int row, int column, LayoutNode element, int rows) {
    element.place = {row, column, rows};
    return element;
}

LayoutNode Box(FieldItem field) {
    LayoutNode node;
    node.kind = LayoutKind::Box;
    node.fields.push_back(std::move(field));
    return node;
}

LayoutNode Part(std::string name) { return Leaf(LayoutKind::Part, std::move(name), {}); }

LayoutNode Caption(std::string name, std::string text) {
    return Leaf(LayoutKind::Caption, std::move(name), std::move(text));
}

LayoutNode Grid(std::string name, std::vector<FieldItem> columns, int rowsShown, GridRoutines routines) {
    LayoutNode node = Leaf(LayoutKind::Grid, std::move(name), {});
    node.fields = std::move(columns);
    node.rowsShown = rowsShown;
    node.gridRoutines = routines;
    return node;
}

LayoutNode Verdict(std::string name) { return Leaf(LayoutKind::Verdict, std::move(name), {}); }

LayoutNode Table(std::string name, std::vector<std::vector<std::string>> rows) {
    LayoutNode node = Leaf(LayoutKind::Table, std::move(name), {});
    node.table = std::move(rows);
    return node;
}

std::string TableCellName(const std::string& table, std::size_t row, std::size_t column) {
    return table + std::to_string(row) + "_" + std::to_string(column);
}

LayoutNode Chart(std::string name, ChartData data) {
    LayoutNode node = Leaf(LayoutKind::Chart, std::move(name), {});
    node.chart = std::move(data);
    return node;
}

LayoutNode Placed() { return Leaf(LayoutKind::Placed, {}, {}); }

LayoutNode Buttons(std::vector<ButtonItem> buttons) {
    LayoutNode node;
    node.kind = LayoutKind::Buttons;
    node.buttons = std::move(buttons);
    return node;
}

LayoutNode Hidden(std::vector<std::string> names) {
    LayoutNode node;
    node.kind = LayoutKind::Hidden;
    for (std::string& name : names) node.fields.push_back({.variable = std::move(name)});
    return node;
}

std::string FieldItem::Label() const { return labelName.empty() ? FieldLabelName(Box()) : labelName; }
std::string FieldItem::Unit() const { return unitName.empty() ? UnitLabelName(Box()) : unitName; }

std::string FieldLabelName(const std::string& variable) { return "Lab" + variable; }
std::string UnitLabelName(const std::string& variable) { return "u" + variable; }

LayoutNode SolveForFrame(std::string frame, std::string indicator, std::string button, std::string caption) {
    LayoutNode label;
    label.kind = LayoutKind::Indicator;
    label.name = std::move(indicator);
    return Frame(std::move(frame), "Solve For",
                 {label, Buttons({{std::move(button), std::move(caption), false}})});
}

}  // namespace kelvor

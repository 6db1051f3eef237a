#include "forms/layout.h"

#include <utility>

namespace kelvor {

layout::Page Page(std::string title, std::vector<LayoutElement> elements) {
    return {std::move(title), std::move(elements)};
}

LayoutElement Pages(std::string name, std::vector<layout::Page> pages) {
    return {layout::Pages{std::move(name), std::move(pages)}};
}

LayoutElement Columns(std::vector<LayoutElement> elements) { return {layout::Columns{std::move(elements)}}; }
LayoutElement Rows(std::vector<LayoutElement> elements) { return {layout::Rows{std::move(elements)}}; }

LayoutElement Frame(std::string name, std::string title, std::vector<LayoutElement> elements) {
    return {layout::Frame{std::move(name), std::move(title), std::move(elements)}};
}

LayoutElement Section(std::string name, std::string title, std::vector<LayoutElement> elements) {
    return {layout::Frame{.name = std::move(name),
                          .title = std::move(title),
                          .elements = std::move(elements),
                          .sharesOptions = true}};
}

LayoutElement Matrix(std::vector<MatrixCell> cells) { return {layout::Matrix{std::move(cells)}}; }

MatrixCell At(int row, int column, LayoutElement element, int rows) {
    return {row, column, std::move(element), rows};
}

LayoutElement Fields(std::vector<FieldItem> fields) { return {layout::Fields{std::move(fields)}}; }
LayoutElement BareBox(FieldItem field) { return {layout::BareBox{std::move(field)}}; }
LayoutElement LabelOf(const std::string& box) { return {layout::DetachedLabel{FieldLabelName(box)}}; }
LayoutElement UnitOf(const std::string& box) { return {layout::DetachedLabel{UnitLabelName(box)}}; }

LayoutElement Options(std::vector<ButtonItem> options) { return {layout::Options{std::move(options)}}; }
LayoutElement Checks(std::vector<ButtonItem> boxes) { return {layout::Checks{std::move(boxes)}}; }
LayoutElement Buttons(std::vector<ButtonItem> buttons) { return {layout::Buttons{std::move(buttons)}}; }

LayoutElement Choice(std::string name, std::string label) {
    return {layout::Choice{std::move(name), std::move(label)}};
}

LayoutElement Heading(std::string name, std::string text) {
    return {layout::Heading{std::move(name), std::move(text)}};
}

LayoutElement Text(std::string name, std::string text) {
    return {layout::Text{std::move(name), std::move(text)}};
}

LayoutElement Caption(std::string name, std::string text) {
    return {layout::Caption{std::move(name), std::move(text)}};
}

LayoutElement Verdict(std::string name) { return {layout::Verdict{std::move(name)}}; }

LayoutElement Picture(std::string name, std::string file) {
    return {layout::Picture{std::move(name), std::move(file)}};
}

LayoutElement SmallPicture(std::string name, std::string file, double letters, std::string shows) {
    return {layout::Picture{std::move(name), std::move(file), letters, std::move(shows)}};
}

LayoutElement Grid(std::string name, std::vector<FieldItem> columns, int rowsShown) {
    return {layout::Grid{std::move(name), std::move(columns), rowsShown}};
}

LayoutElement Table(std::string name, std::vector<std::vector<std::string>> rows) {
    return {layout::Table{std::move(name), std::move(rows)}};
}

std::string TableCellName(const std::string& table, std::size_t row, std::size_t column) {
    return table + std::to_string(row) + "_" + std::to_string(column);
}

LayoutElement Chart(std::string name, ChartData data) {
    return {layout::Chart{std::move(name), std::move(data)}};
}

LayoutElement CoarseGrid() { return {layout::CoarseGrid{}}; }
LayoutElement Hidden(std::vector<std::string> names) { return {layout::Hidden{std::move(names)}}; }

LayoutElement SolveForFrame(std::string frame, std::string indicator, std::string button,
                            std::string caption) {
    return Frame(std::move(frame), "Solve For",
                 {{layout::Indicator{std::move(indicator)}},
                  Buttons({{.name = std::move(button), .caption = std::move(caption)}})});
}

std::string FieldItem::Label() const { return labelName.empty() ? FieldLabelName(Box()) : labelName; }
std::string FieldItem::Unit() const { return unitName.empty() ? UnitLabelName(Box()) : unitName; }

std::string FieldLabelName(const std::string& variable) { return "Lab" + variable; }
std::string UnitLabelName(const std::string& variable) { return "u" + variable; }
std::string WorkOutButtonName(const std::string& variable) { return "cmdb" + variable; }

}  // namespace kelvor

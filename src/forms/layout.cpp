#include "forms/layout.h"

#include <utility>

#include "forms/form_type.h"

namespace kelvor {

namespace {

/// The room of the lines beside an indicator: what a balance in millions takes, and a description.
constexpr int kCheckLines = 4;
constexpr int kTargetLines = 2;
constexpr double kNarrowLetters = 28.0;  // of the lines beside an indicator

}  // namespace

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

LayoutElement Figures(std::vector<MatrixCell> cells) { return {layout::Matrix{std::move(cells), true}}; }

LayoutElement Fields(std::vector<FieldItem> fields) { return {layout::Fields{std::move(fields)}}; }
LayoutElement BareBox(FieldItem field) { return {layout::BareBox{std::move(field)}}; }
LayoutElement LabelOf(const std::string& box) { return {layout::DetachedLabel{FieldLabelName(box)}}; }
LayoutElement UnitOf(const std::string& box) { return {layout::DetachedLabel{UnitLabelName(box)}}; }

LayoutElement Options(std::vector<ButtonItem> options) { return {layout::Options{std::move(options)}}; }
LayoutElement Checks(std::vector<ButtonItem> boxes) { return {layout::Checks{std::move(boxes)}}; }
LayoutElement Buttons(std::vector<ButtonItem> buttons) { return {layout::Buttons{std::move(buttons)}}; }

LayoutElement Choice(std::string name, std::string label, std::string does) {
    return {layout::Choice{std::move(name), std::move(label), std::move(does)}};
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

LayoutElement Statement(std::string name, int lines, double letters) {
    return {layout::Statement{std::move(name), lines, letters}};
}

LayoutElement Picture(std::string name, std::string file) {
    return {layout::Picture{std::move(name), std::move(file)}};
}

LayoutElement SmallPicture(std::string name, std::string file, double letters, std::string shows) {
    return {layout::Picture{std::move(name), std::move(file), letters, std::move(shows)}};
}

LayoutElement Grid(std::string name, std::vector<FieldItem> columns, int rowsShown, GridRoutines routines) {
    return {layout::Grid{std::move(name), std::move(columns), rowsShown, routines}};
}

LayoutElement GridOfRows(std::string name, std::vector<FieldItem> columns, int rowsOffered) {
    layout::Grid grid{.name = std::move(name), .columns = std::move(columns), .rowsShown = rowsOffered};
    grid.rowsOffered = rowsOffered;
    return {std::move(grid)};
}

LayoutElement Table(std::string name, std::vector<std::vector<std::string>> rows) {
    return {layout::Table{std::move(name), std::move(rows)}};
}

std::string TableCellName(const std::string& table, std::size_t row, std::size_t column) {
    return table + std::to_string(row) + "_" + std::to_string(column);
}

LayoutElement Chart(std::string name, ChartData data, double letters) {
    return {layout::Chart{std::move(name), std::move(data), letters}};
}

LayoutElement Stack(std::vector<layout::StackedBox> boxes, std::string ground, std::string groundText) {
    return {layout::Stack{std::move(boxes), std::move(ground), std::move(groundText)}};
}

LayoutElement ReportView(std::string name) { return {layout::ReportView{std::move(name)}}; }

LayoutElement CoarseGrid() { return {layout::CoarseGrid{}}; }
LayoutElement Hidden(std::vector<std::string> names) { return {layout::Hidden{std::move(names)}}; }

LayoutElement SolveForFrame(std::string frame, const FormEquation& equation, FrameShape shape,
                            std::string caption) {
    LayoutElement indicator{layout::Indicator{equation.indicator}};
    LayoutElement button = Buttons({{equation.button, std::move(caption),
                                     Translated("Work out what it solves for from all the others")}});
    if (shape == FrameShape::Tall) {
        return Frame(std::move(frame), "Solve For",
                     {std::move(indicator), Statement(equation.check, kCheckLines),
                      Statement(equation.target, kTargetLines), std::move(button)});
    }
    return Frame(std::move(frame), "Solve For",
                 {Columns({Rows({std::move(indicator), std::move(button)}),
                           Rows({Statement(equation.check, kCheckLines + 1, kNarrowLetters),
                                 Statement(equation.target, kTargetLines, kNarrowLetters)})})});
}

std::string FieldItem::Label() const { return labelName.empty() ? FieldLabelName(Box()) : labelName; }
std::string FieldItem::Unit() const { return unitName.empty() ? UnitLabelName(Box()) : unitName; }

std::string FieldLabelName(const std::string& variable) { return "Lab" + variable; }
std::string UnitLabelName(const std::string& variable) { return "u" + variable; }
std::string WorkOutButtonName(const std::string& variable) { return "cmdb" + variable; }
std::string TakeOverButtonName(const std::string& variable) { return "cmdt" + variable; }

}  // namespace kelvor

#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "forms/control.h"
#include "platform/translation.h"

namespace kelvor {

/// One field of a form: the variable it is bound to, and what its declaration says beyond the catalogue. A
/// field without a variable is bound when its form opens; it names its controls.
struct FieldItem {
    std::string variable = {};
    std::string label = {};        // empty: the variable's description
    std::string metricLabel = {};  // the label in metric units; empty: the same
    bool locked = false;
    bool list = false;           // a drop-down list instead of a text box
    bool computed = false;       // worked out by the form itself: locked, and looks like an output
    bool plain = false;          // a figure among others: its box has no frame
    std::string box = {};        // the name of the box; empty: the variable's
    std::string labelName = {};  // of the label before the box; empty: FieldLabelName
    std::string unitName = {};   // of the unit behind it; empty: UnitLabelName
    std::string choice = {};     // a list that may take the place of the box; hidden at first
    std::vector<LetterWord> words =
        {};                        // of a list: a letter gives its word; on a field, whose code is stored
    double letters = 0.0;          // the width of the box or column; 0: by the picture
    ColumnRoutines routines = {};  // of a column whose cells are not simply the project's
    std::string listName = {};     // of a list: its name among the lists; empty: the variable's
    std::string alsoSets = {};     // of a column: what else an entry changes, told by its hint
    bool writtenLast = false;      // of a column: in a block, after the rest of a row, which gives it meaning

    [[nodiscard]] const std::string& Box() const { return box.empty() ? variable : box; }
    [[nodiscard]] std::string Label() const;
    [[nodiscard]] std::string Unit() const;
};

/// A button, an option or a check box.
struct ButtonItem {
    std::string name;
    std::string caption;    // `&` before the letter of its access key
    std::string does = {};  // what it is for, in a phrase: its tool tip, and what a screen reader says of it
};

struct FormEquation;
struct LayoutElement;
struct MatrixCell;

/// The kinds of elements that a form may have. Whoever walks a layout has a routine for each of them: a kind
/// that one of them does not know does not compile.
namespace layout {

struct Page {
    std::string title;
    std::vector<LayoutElement> elements;
};

/// A strip of tabs, a page each.
struct Pages {
    std::string name;
    std::vector<Page> pages;
};

/// Elements side by side.
struct Columns {
    std::vector<LayoutElement> elements;
};

/// Elements below each other.
struct Rows {
    std::vector<LayoutElement> elements;
};

/// A titled group of elements.
struct Frame {
    std::string name;
    std::string title;
    std::vector<LayoutElement> elements;
    bool sharesOptions = false;  // its options and those around it exclude each other
};

/// Elements in rows and columns.
struct Matrix {
    std::vector<MatrixCell> cells;
    bool ofFigures = false;  // its rows stand close, and its headings above the ends of the numbers
};

/// Label, box and unit of each field, in aligned columns.
struct Fields {
    std::vector<FieldItem> fields;
};

/// The box of a field without the label and the unit, which are heard, and seen only where a DetachedLabel
/// shows them.
struct BareBox {
    FieldItem field;
};

/// The label or the unit of a BareBox, in another place than beside it.
struct DetachedLabel {
    std::string name;
};

/// Option buttons below each other.
struct Options {
    std::vector<ButtonItem> options;
};

/// Check boxes below each other.
struct Checks {
    std::vector<ButtonItem> boxes;
};

/// Buttons in a row.
struct Buttons {
    std::vector<ButtonItem> buttons;
};

/// A drop-down list that is bound to no variable, behind its label.
struct Choice {
    std::string name;
    std::string label;
    std::string does;  // what is chosen, in a phrase
};

/// A line in large letters.
struct Heading {
    std::string name;
    std::string text;
};

/// A paragraph.
struct Text {
    std::string name;
    std::string text;
};

/// A text in one line.
struct Caption {
    std::string name;
    std::string text;
};

/// A line in bold letters that says how things stand.
struct Verdict {
    std::string name;
};

/// A sentence that says how things stand, in room enough for some lines, so that nothing moves when it
/// changes.
struct Statement {
    std::string name;
    int lines = 2;
    double letters = 0.0;  // its width; 0: as wide as the indicator
};

struct Picture {
    std::string name;
    std::string file;
    double letters = 0.0;    // its width; 0: as the start page has it
    std::string shows = {};  // in words
};

/// A table of the project's cells, a variable a column.
struct Grid {
    std::string name;
    std::vector<FieldItem> columns;
    int rowsShown = 0;  // before it scrolls; 0: as many as most show
    GridRoutines routines = {};
    int rowsOffered = 0;  // of those that the variables have; 0: all
};

/// A table of fixed texts, the first row its headings.
struct Table {
    std::string name;
    std::vector<std::vector<std::string>> rows;
};

/// A chart with its data sheet.
struct Chart {
    std::string name;
    ChartData data;
    double letters = 0.0;  // its width; 0: as most charts have it
};

/// A box in a stack, and the label beside it.
struct StackedBox {
    std::string box;
    std::string label;
    std::string text;  // of the label
};

/// Boxes on each other like the layers of a pavement, and a label below them. Where each stands is told by
/// Control::stacked; at first none is seen.
struct Stack {
    std::vector<StackedBox> boxes;
    std::string ground;  // the label below
    std::string groundText;
};

/// The pages of a report.
struct ReportView {
    std::string name;
};

/// The Solve For indicator above its button.
struct Indicator {
    std::string name;
};

/// What a built screen may have; its controls have places in a coarse grid of letters and rows.
struct CoarseGrid {};

/// Boxes that the user never sees, beyond those that the form has anyway.
struct Hidden {
    std::vector<std::string> names;
};

}  // namespace layout

/// An element of a form, with the elements inside it.
struct LayoutElement {
    std::variant<layout::Rows, layout::Columns, layout::Pages, layout::Frame, layout::Matrix, layout::Fields,
                 layout::BareBox, layout::DetachedLabel, layout::Options, layout::Checks, layout::Buttons,
                 layout::Choice, layout::Heading, layout::Text, layout::Caption, layout::Verdict,
                 layout::Statement, layout::Picture, layout::Grid, layout::Table, layout::Chart,
                 layout::Stack, layout::ReportView, layout::Indicator, layout::CoarseGrid, layout::Hidden>
        kind;
};

/// Where an element stands in a matrix.
struct MatrixCell {
    int row = 0;
    int column = 0;
    LayoutElement element;
    int rows = 1;  // that it takes
};

layout::Page Page(std::string title, std::vector<LayoutElement> elements);
LayoutElement Pages(std::string name, std::vector<layout::Page> pages);
LayoutElement Columns(std::vector<LayoutElement> elements);
LayoutElement Rows(std::vector<LayoutElement> elements);
LayoutElement Frame(std::string name, std::string title, std::vector<LayoutElement> elements);

/// A frame whose options and those of the other sections of the page exclude each other.
LayoutElement Section(std::string name, std::string title, std::vector<LayoutElement> elements);

/// Elements in rows and columns; each is put to its place by At.
LayoutElement Matrix(std::vector<MatrixCell> cells);
MatrixCell At(int row, int column, LayoutElement element, int rows = 1);

/// A matrix of plain boxes with headings above and before them.
LayoutElement Figures(std::vector<MatrixCell> cells);

LayoutElement Fields(std::vector<FieldItem> fields);

/// The box of a field alone; LabelOf and UnitOf show the label and the unit of such a box elsewhere.
LayoutElement BareBox(FieldItem field);
LayoutElement LabelOf(const std::string& box);
LayoutElement UnitOf(const std::string& box);

LayoutElement Options(std::vector<ButtonItem> options);
LayoutElement Checks(std::vector<ButtonItem> boxes);
LayoutElement Buttons(std::vector<ButtonItem> buttons);
LayoutElement Choice(std::string name, std::string label, std::string does);
LayoutElement Heading(std::string name, std::string text);
LayoutElement Text(std::string name, std::string text);
LayoutElement Caption(std::string name, std::string text);
LayoutElement Verdict(std::string name);
LayoutElement Statement(std::string name, int lines, double letters = 0.0);
LayoutElement Picture(std::string name, std::string file);

/// A drawing among fields, so many letters wide, with what it shows in words.
LayoutElement SmallPicture(std::string name, std::string file, double letters, std::string shows);

/// A table with a column for each variable; an item that is a list offers the list of the variable's name.
LayoutElement Grid(std::string name, std::vector<FieldItem> columns, int rowsShown = 0,
                   GridRoutines routines = {});

/// A table that offers only the first rows of those that its variables have.
LayoutElement GridOfRows(std::string name, std::vector<FieldItem> columns, int rowsOffered);

/// A table of fixed texts with its headings in the first row. Its labels are called by the name, the row and
/// the column, both from 1: Guide1_1.
LayoutElement Table(std::string name, std::vector<std::vector<std::string>> rows);
std::string TableCellName(const std::string& table, std::size_t row, std::size_t column);

LayoutElement Chart(std::string name, ChartData data, double letters = 0.0);
LayoutElement Stack(std::vector<layout::StackedBox> boxes, std::string ground, std::string groundText);
LayoutElement ReportView(std::string name);
LayoutElement CoarseGrid();
LayoutElement Hidden(std::vector<std::string> names);

/// How a Solve For frame stands among the rest: its lines below the indicator, or beside it.
enum class FrameShape { Tall, Wide };

/// The frame "Solve For" of an equation: the indicator, whether the stored numbers satisfy the equation, what
/// the button solves for, and the button.
LayoutElement SolveForFrame(std::string frame, const FormEquation& equation,
                            FrameShape shape = FrameShape::Tall, std::string caption = "&Solve For");

/// The names of the labels that stand before and after the box of a variable.
std::string FieldLabelName(const std::string& variable);
std::string UnitLabelName(const std::string& variable);

/// The name of the small button beside a field that works its value out.
std::string WorkOutButtonName(const std::string& variable);

/// The name of the small button beside a field that takes a value over.
std::string TakeOverButtonName(const std::string& variable);

}  // namespace kelvor

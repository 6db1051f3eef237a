#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "forms/control.h"

namespace kelvor {

/// How the elements of a form lie to each other.
enum class LayoutKind {
    Pages,      // one child a tab
    Columns,    // children side by side
    Rows,       // children below each other
    Frame,      // a titled group of its children
    Fields,     // label, box and unit in aligned columns
    Options,    // option buttons below each other
    Checks,     // check boxes below each other
    Choice,     // a drop-down list that is no field, behind its label
    Heading,    // a line in large letters
    Text,       // a paragraph
    Picture,    // an image
    Grid,       // a table of the project's cells
    Table,      // a table of fixed texts, the first row its headings
    Chart,      // a chart with its data sheet
    Placed,     // the controls that have a place in a coarse grid
    Verdict,    // a line in bold letters that says how things stand
    Indicator,  // the Solve For indicator above its button
    Buttons,    // buttons in a row
    Matrix,     // elements in rows and columns
    Box,        // the box of a field alone; what stands around it is heard, and seen where a Part shows it
    Part,       // the label or unit of a Box
    Caption,    // a text in one line
    Hidden,     // boxes that the user never sees
};

/// One field of a form: the variable it is bound to, and what its declaration says beyond the catalogue. A
/// field without a variable is bound when its form opens; it names its controls.
struct FieldItem {
    std::string variable = {};
    std::string label = {};  // empty: the variable's description
    bool locked = false;
    bool list = false;           // a drop-down list instead of a text box
    bool computed = false;       // worked out by the form itself: locked, and looks like an output
    std::string box = {};        // the name of the box; empty: the variable's
    std::string labelName = {};  // of the label before the box; empty: FieldLabelName
    std::string unitName = {};   // of the unit behind it; empty: UnitLabelName
    std::string choice = {};     // a list that may take the place of the box; hidden at first
    std::vector<LetterWord> words =
        {};                        // of a list: a letter gives its word; on a field, whose code is stored
    double letters = 0.0;          // the width of the box or column; 0: by the picture
    ColumnRoutines routines = {};  // of a column whose cells are not simply the project's

    [[nodiscard]] const std::string& Box() const { return box.empty() ? variable : box; }
    [[nodiscard]] std::string Label() const;
    [[nodiscard]] std::string Unit() const;
};

/// What is said of a thing that Kelvor cannot do yet.
inline constexpr const char* kComesLater = "comes later";

/// A button or an option.
struct ButtonItem {
    std::string name;
    std::string caption;  // `&` before the letter of its access key
    bool comesLater = false;
};

/// Where an element stands in a matrix.
struct MatrixPlace {
    int row = 0;
    int column = 0;
    int rows = 1;  // that it takes
};

/// An element of a form, with the elements inside it.
struct LayoutNode {
    LayoutKind kind = LayoutKind::Rows;
    std::string name;   // of the control that it makes, where it makes one
    std::string title;  // of a frame or page; the paragraph of a text; the file of a picture
    std::vector<LayoutNode> children;
    std::vector<FieldItem> fields;
    std::vector<ButtonItem> buttons;
    std::vector<std::vector<std::string>> table;  // the rows of a table of texts
    std::optional<ChartData> chart;
    MatrixPlace place;
    double letters = 0.0;        // the width of a picture; 0: as the start page has it
    int rowsShown = 0;           // of a grid, before it scrolls; 0: as many as most show
    GridRoutines gridRoutines;   // of a grid
    std::string shows;           // what a picture shows, in words
    bool sharesOptions = false;  // of a frame: its options and those around it exclude each other
};

LayoutNode Pages(std::string name, std::vector<LayoutNode> pages);
LayoutNode Columns(std::vector<LayoutNode> children);
LayoutNode Rows(std::vector<LayoutNode> children);
LayoutNode Page(std::string title, std::vector<LayoutNode> children);
LayoutNode Frame(std::string name, std::string title, std::vector<LayoutNode> children);

/// A frame whose options and those of the other sections of the page exclude each other.
LayoutNode Section(std::string name, std::string title, std::vector<LayoutNode> children);
LayoutNode Fields(std::vector<FieldItem> fields);
LayoutNode Options(std::vector<ButtonItem> options);
LayoutNode Checks(std::vector<ButtonItem> boxes);

/// A drop-down list that is bound to no variable.
LayoutNode Choice(std::string name, std::string label);
LayoutNode Heading(std::string name, std::string text);
LayoutNode Text(std::string name, std::string text);
LayoutNode Verdict(std::string name);
LayoutNode Picture(std::string name, std::string file);

/// A drawing among fields, so many letters wide, with what it shows in words.
LayoutNode SmallPicture(std::string name, std::string file, double letters, std::string shows);

/// A table with a column for each variable; an item that is a list offers the list of the variable's name.
LayoutNode Grid(std::string name, std::vector<FieldItem> columns, int rowsShown = 0,
                GridRoutines routines = {});

/// A table of fixed texts with its headings in the first row. Its labels are called by the name, the row and
/// the column, both from 1: Guide1_1.
LayoutNode Table(std::string name, std::vector<std::vector<std::string>> rows);
std::string TableCellName(const std::string& table, std::size_t row, std::size_t column);

/// Elements in rows and columns; each is put to its place by At.
LayoutNode Matrix(std::vector<LayoutNode> elements);
LayoutNode At(int row, int column, LayoutNode element, int rows = 1);
LayoutNode Box(FieldItem field);
LayoutNode Part(std::string name);
LayoutNode Caption(std::string name, std::string text);

LayoutNode Placed();
LayoutNode Chart(std::string name, ChartData data);
LayoutNode Buttons(std::vector<ButtonItem> buttons);
LayoutNode Hidden(std::vector<std::string> names);

/// The names of the labels that stand before and after the box of a variable.
std::string FieldLabelName(const std::string& variable);
std::string UnitLabelName(const std::string& variable);

/// The frame "Solve For" with the indicator and its button.
LayoutNode SolveForFrame(std::string frame, std::string indicator, std::string button,
                         std::string caption = "&Solve For");

}  // namespace kelvor

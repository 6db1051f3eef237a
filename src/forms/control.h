#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/chart.h"
#include "forms/grid_routines.h"

namespace kelvor {

class Document;

enum class ControlKind {
    Label,
    TextBox,
    ComboBox,
    CommandButton,
    OptionButton,
    CheckBox,
    Frame,
    Image,
    Grid,
    Chart,
    ReportPages,
    TabStrip,
};

const char* NameOf(ControlKind kind);

/// A colour as "#RRGGBB", or as the name of a colour of the user's palette.
using Colour = std::string_view;

namespace colours {
inline constexpr Colour kWindow = "window";
inline constexpr Colour kButtonFace = "buttonface";
inline constexpr Colour kWindowText = "windowtext";
inline constexpr Colour kLightCyan = "#00FFFF";    // a computed value
inline constexpr Colour kLightRed = "#FF0000";     // a warning
inline constexpr Colour kBrightWhite = "#FFFFFF";  // the text of a warning
inline constexpr Colour kResting = "#C0C0C0";      // an indicator at rest
inline constexpr Colour kBlack = "#000000";
inline constexpr Colour kBlue = "#0000FF";  // a verdict that is good
inline constexpr Colour kRed = "#FF0000";   // and one that is not
}  // namespace colours

/// A word that one letter stands for: typing the letter gives the word.
struct LetterWord {
    char letter = '\0';
    std::string word;
};

/// A column of a grid: one variable, whose first subscript is the row.
struct GridColumn {
    std::string variable;
    std::string caption;
    std::string unit;      // in the active system; empty if it is not worth showing
    std::string hint;      // what a cell wants
    std::string alsoSets;  // what else an entry changes, for the hint
    std::string picture;
    std::string list;                // the name of the list that it offers; empty: it takes what is typed
    std::vector<std::string> items;  // the entries of that list
    std::vector<LetterWord> words;   // that a letter typed into a cell stands for
    double letters = 0.0;            // its width; 0: by its picture
    bool locked = false;             // shows computed values and takes none
    bool writtenLast = false;        // in a block, after the rest of a row, which gives it its meaning
    ColumnRoutines routines = {};    // if its cells are not simply the project's
};

/// What a grid shows, and where its cursor is. Unless it has texts of its own it holds no values: a cell is
/// the project's cell of the column's variable, with the row as first subscript and the form's own second
/// one.
struct GridData {
    std::vector<GridColumn> columns;
    int rows = 0;       // as many as the variables have cells, or as the form offers
    int rowsShown = 0;  // before it scrolls; 0: as many as most grids show
    int row = 1;        // of the cursor, from 1
    std::size_t column = 0;
    std::optional<std::string> typed;  // into the cell under the cursor, and not yet stored
    GridRoutines routines = {};

    /// The rows that the act under way has written, in ascending order: for RowsWritten.
    std::vector<int> writtenRows = {};

    /// Of a grid that shows no cells of the project: its texts, row by row, which may go on behind the
    /// columns.
    std::optional<std::vector<std::vector<std::string>>> texts = {};

    [[nodiscard]] const GridColumn& current() const { return columns[column]; }

    /// The place of a variable's column; nothing if there is none. Names compare without regard to case.
    [[nodiscard]] std::optional<std::size_t> Find(std::string_view variable) const;
};

/// A place on a built screen, in the units of its coarse grid: letters across from the left edge, and rows
/// down from 1.
struct CoarsePlace {
    double x = 0.0;
    double y = 1.0;
    double width = 0.0;   // 0: as wide as its text
    double height = 1.0;  // 0: down to the foot of the form
};

/// Where a box stands in a stack of boxes, in twips (1/1440 inch) from the top of the stack. A view may
/// enlarge all of a stack, so that its letters can be read.
struct StackPlace {
    int top = 0;
    int height = 0;

    bool operator==(const StackPlace&) const = default;
};

/// One element of a form, as the model holds it. A front end mirrors it and decides nothing.
struct Control {
    ControlKind kind = ControlKind::Label;
    std::string name;
    std::string tag;      // the variable of a field, "u" and the variable of a unit label; else empty
    std::string text;     // of a box; the caption of a label, button or frame, and of the tab that shows
    std::string picture;  // the number picture of a field; sizes its box
    std::string does;     // of a button or an option: what it is for
    std::string toolTip;  // what a field wants or a button does, or why the button is off
    std::vector<std::string> items;     // of a list; the captions of a tab strip
    std::optional<GridData> grid;       // of a grid
    std::optional<ChartData> chart;     // of a chart
    std::optional<CoarsePlace> place;   // on a built screen
    std::optional<StackPlace> stacked;  // of a box in a stack, and of the label below the lowest one
    std::shared_ptr<const Document> document = {};  // of report pages; null: the text says why there are none
    bool enabled = true;
    bool visible = true;
    bool locked = false;      // shows a value and takes none
    bool computed = false;    // of a box: its value is worked out, and has the colour of such values
    bool plain = false;       // of a box: it has no frame, and shows a figure among others
    bool passedOver = false;  // Tab goes on to the next one: its access key or the mouse reaches it
    bool travels = false;     // of a hidden box: its text is put back with an event that is undone
    bool height = false;      // of a box: its text is the height of a bar in twips, and that is its value
    bool tabStop = true;
    bool value = false;  // of an option button or a check box
    bool bold = false;
    Colour backColor = colours::kButtonFace;
    Colour foreColor = colours::kWindowText;
    char accessKey = '\0';              // pressed with Alt: moves the focus here, and clicks a button
    std::string labelOf;                // of a caption: the control it describes
    std::string unitOf;                 // of a unit label: the box it stands behind
    std::vector<std::string> wordings;  // of a label that names a unit: what it says in English and in
                                        // metric units; it has room for both
    std::string worksOut;               // of a small button beside a field: the variable whose help it opens
    std::string takesOver;              // of such a button: the variable for which it takes a value over
    bool onlyItems = false;             // of a list: it takes nothing but its items
    bool coded = false;                 // of a list: what is stored is the place of the word, from 1
    std::vector<LetterWord> words;      // that a letter typed into a list stands for
    double letters = 0.0;               // the width of a box or of a picture; 0: by its kind
    int page = -1;                      // of the tab strip; -1: on every page
    int group = 0;  // of option buttons: one of a group is selected; the innermost frame or page

    /// Makes a box one that shows a value and takes none.
    void Lock();

    /// Makes it one that shows a computed value.
    void LockAsComputed();

    /// A box whose Tag is a variable.
    [[nodiscard]] bool IsField() const;

    [[nodiscard]] bool IsBox() const { return kind == ControlKind::TextBox || kind == ControlKind::ComboBox; }
    [[nodiscard]] bool IsButton() const { return kind == ControlKind::CommandButton; }
    /// A small button beside a field, which Tab and Enter pass over; F2 in its field presses it.
    [[nodiscard]] bool IsSmallButton() const { return !worksOut.empty() || !takesOver.empty(); }
    [[nodiscard]] bool IsChoice() const {
        return kind == ControlKind::OptionButton || kind == ControlKind::CheckBox;
    }

    /// True if the user can put the focus here.
    [[nodiscard]] bool TakesFocus() const;
};

}  // namespace kelvor

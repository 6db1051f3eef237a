#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/common_buttons.h"
#include "forms/layout.h"
#include "forms/status_line.h"
#include "platform/real.h"
#include "platform/translation.h"

namespace kelvor {

class Form;
struct Control;
struct CalcContext;
struct ScreenContext;

enum class FormEvent {
    Load,
    Activate,
    Change,
    LostFocus,
    Stored,  // of a field: a changed value has been stored, or a refused text has emptied the cell
    Click,
    CellChanged,  // of a grid: the cell under its cursor was written; once for each cell of a block
    RowsWritten,  // of a grid: once after the cells that one act has written; see GridData::writtenRows
    RowChanged,   // its cursor has moved to another row
    RowDeleted,
    UnitsSwitched,
    Travelled,  // an act was undone or done again, and what the form keeps has been put back
    Unload,
};

/// How a screen's own routine stands to the common one of the same event.
enum class HandlerOrder { Before, Instead, After };

/// What a screen's own routine is told of an event.
struct ScreenEvent {
    ScreenContext& context;
    Form& form;
    Control* control;  // null on an event of the form itself
};

/// A routine of a screen for an event of one control, or of any control where `control` is empty.
struct Handler {
    FormEvent event;
    std::string control;
    HandlerOrder order;
    void (*run)(ScreenEvent& event);
};

/// A field whose help is a screen of its own.
struct HelpRoute {
    std::string variable;  // of a field or a grid's column; also the name of an option
    std::string form;
    std::string workOut = {};  // of a field whose value that screen works out: what the small button beside
                               // it, which opens the screen too, is called ("Work out the ...")
};

/// A value from elsewhere in the project that a field may take. A small button below the field shows it, and
/// puts it in as if it were typed; it is hidden while there is no such value.
struct TakeOver {
    std::string variable;                                                // of the field
    std::optional<Real> (*value)(const CalcContext& context) = nullptr;  // in the field's English unit
    std::string source = {};                                             // "the average ... of the ..."
};

/// The equations whose balance is kept while their screens are closed.
enum class BalanceFlag {
    DeF,
    DeR,
    DeS,
    DeS2,
    OvAA,
    OvAAP,
    OvAFP,
    OvAP,
    OvBP,
    OvUP,
    OvWT,
};

inline constexpr std::size_t kBalanceFlags = static_cast<std::size_t>(BalanceFlag::OvWT) + 1;

/// An equation of a form: where its state shows, what solves it, and what keeps its balance. The common
/// routines test the serviceabilities, solve, and keep all of it current.
struct FormEquation {
    std::optional<BalanceFlag> flag = {};  // none: no balance is kept while the form is closed
    std::string indicator = "SolveFor";
    std::string button = "Command1";
    std::string target = "TARGET";  // the line that says what the button solves for
    std::string check = "CHECK";    // the line that says whether the stored numbers satisfy the equation
};

/// What a row of a grid holds; translated where it is shown.
struct RowName {
    const char* one = ToTranslate("row");
    const char* several = ToTranslate("rows");
};

/// A designed form: what it is called, what stands on it, and what it does beyond the common routines.
/// Declared, not drawn: a front end lays it out.
struct FormType {
    std::string name;
    std::string tag;  // the catalogue key; empty: the name
    std::string caption;
    LayoutElement layout;
    std::vector<ButtonItem> foot = {OkButton(), HelpButton()};  // below the layout
    std::vector<Handler> handlers;
    std::vector<FormEquation> equations;  // in the order of their terms
    std::vector<HelpRoute> helpRoutes;    // any other field has the general help
    std::vector<TakeOver> takeOvers;      // of its fields
    StatusLine (*governs)(const ScreenContext& context) =
        nullptr;  // what decides its result, from the stored cells: shown on the label GOVERNS
    /// True while it shows cells of the other unit system; what it does at a switch of units brings them
    /// over.
    bool (*standsInOtherUnits)(const ScreenContext& context) = nullptr;
    RowName rowName;            // what a row of its grid holds
    std::string helpPage = {};  // of the help, if it is not called like the form
    bool modal = false;         // while it is open, the user works in it alone
    bool isHelp = false;        // helps with one field of another form; Esc closes it
    bool needsProject = true;   // it shows values of the project, and works on nothing else
    bool beginsAnew = false;    // opened again while it is open, it starts as if it had not been
    bool isHub = false;         // the form with the tabs: always open, and Enter selects its options
};

/// A form type by its name, made when it is first asked for: most are never opened in a session.
struct FormDeclaration {
    std::string name;
    std::function<FormType()> make;
};

}  // namespace kelvor

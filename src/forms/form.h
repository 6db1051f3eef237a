#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"
#include "forms/control.h"
#include "forms/form_type.h"
#include "store/cell.h"

namespace kelvor {

/// What the Solve For indicator says.
enum class SolveState { Resting = 0, Warning = 1, Solved = 2 };

/// How an equation of an open form stands.
struct EquationState {
    SolveState state = SolveState::Resting;
    std::string solvedFor;  // the variable that the indicator shows

    friend bool operator==(const EquationState&, const EquationState&) = default;
};

/// What a side screen tells the form it was opened from when it closes.
struct SideScreenReturn {
    std::string field;        // the variable for which it was opened
    int row = 0;              // of the grid, if it was opened for a cell of one
    bool valueTaken = false;  // that variable has a new value
};

/// Where the focus moves in the tab order.
enum class TabStep { Next, Previous };

/// What an open form is beside its controls and the page that shows.
struct FormState {
    std::string tag;  // the catalogue key; the hub changes it with its tabs
    std::string caption;
    Control* focus = nullptr;
    bool focusLeft =
        false;  // what was typed there is committed; the end of the event gives it the focus anew
    std::optional<std::size_t> iCurrentField;  // the field that had the focus last
    std::optional<std::size_t> caret;  // in the box in focus; nothing: its text is selected as a whole
    std::string spelt;   // what was typed into the box in focus of a word that its first letters completed
    int selections = 0;  // how often a box was selected as a whole; a view shows that it is again
    std::vector<EquationState> equations;  // one for each that the type declares
    bool modal = false;
    std::optional<SideScreenReturn> returned;  // until the form is activated again
    CellValue valueAtOpening;                  // of a side screen: of the field it was opened for
    bool refused = false;                      // the value that was being typed when a field was left last
    bool workedOut = false;                    // of a side screen: it has a new value for its caller
    std::optional<bool> metricItems;           // the unit system whose entries its lists offer
    bool edited = false;                       // the user has changed one of its boxes since it opened
};

/// An open form: its controls in the order of the declaration, which is the reading order and the tab
/// order, and where the focus is.
class Form : public FormState {
  public:
    /// Makes the controls that a type's layout declares, bound to the catalogue.
    Form(const FormType& type, const Catalogue& catalogue);

    [[nodiscard]] const FormType& type() const { return type_; }
    [[nodiscard]] const std::string& name() const { return type_.name; }

    /// Null if there is no such control. Names compare without regard to case.
    [[nodiscard]] Control* Find(std::string_view name);
    [[nodiscard]] const Control* Find(std::string_view name) const;

    /// A control that the form must have. Throws std::logic_error if it has none of the name.
    [[nodiscard]] Control& Get(std::string_view name);
    [[nodiscard]] const Control& Get(std::string_view name) const;

    /// The box bound to a variable; null if there is none.
    [[nodiscard]] Control* FindField(std::string_view variable);

    /// The control with an access key among those on the page that shows; null if there is none.
    [[nodiscard]] Control* FindAccessKey(char key);

    /// The form's grid; null if it has none.
    [[nodiscard]] Control* FindGrid();
    [[nodiscard]] const Control* FindGrid() const;

    /// The label with the unit behind a box; null if there is none.
    [[nodiscard]] Control* FindUnitOf(std::string_view box);

    [[nodiscard]] const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

    /// Makes a control more, at the end of the collection.
    Control& Add(ControlKind kind, std::string name);

    /// Gives keys to what has got its text, or its list, since the form was made.
    void AssignAccessKeys();

    /// The place of a control in the collection, counted from 0; nothing for a name that is none.
    [[nodiscard]] std::optional<std::size_t> IndexOf(std::string_view name) const;

    /// The text of a control, hidden or not; empty if the form has none of that name, which nothing is
    /// written to then.
    [[nodiscard]] std::string TextOf(std::string_view name) const;
    void SetText(std::string_view name, std::string text);

    /// What the indicator of an equation says; at rest if there is none.
    [[nodiscard]] SolveState solveState(std::size_t equation) const {
        return equation < equations.size() ? equations[equation].state : SolveState::Resting;
    }

    /// True while the field in focus has been typed in since it got the focus.
    [[nodiscard]] bool fieldChanged() const;
    void SetFieldChanged(bool changed);

    /// True while something is being typed that is not stored yet.
    [[nodiscard]] bool IsTyping() const;

    /// The page of the tab strip that shows, from 0; 0 on a form without one.
    [[nodiscard]] int page() const { return page_; }
    void ShowPage(int page);

    /// The first subscript, the row of the caller's grid that a side screen serves; nothing if it serves
    /// none.
    [[nodiscard]] std::optional<int> dim1() const;

    /// The second subscript that the form shows; nothing if it shows no slice.
    [[nodiscard]] std::optional<int> dim2() const;

    /// True if a control can take the focus on the page that shows.
    [[nodiscard]] bool CanFocus(const Control& control) const;

    /// The control that a step reaches from here, round the form; null if none takes the focus.
    [[nodiscard]] Control* NextInTabOrder(const Control* from, TabStep step);

    /// All of a form that an event may change.
    struct Image {
        FormState state;
        int page = 0;
        std::vector<Control> controls;
    };

    [[nodiscard]] Image TakeImage() const;

    /// Makes the form again what it was. Controls made since then go; the others stay where they are.
    void BecomeAgain(Image image);

  private:
    const FormType& type_;
    int page_ = 0;
    std::vector<std::unique_ptr<Control>> controls_;
};

}  // namespace kelvor

#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "forms/balance_flags.h"
#include "forms/form.h"
#include "shell/event_scope.h"
#include "store/cell.h"

namespace kelvor {

/// What a control looks like beside the value of its cell.
struct ControlLook {
    std::string text;
    Colour backColor;
    Colour foreColor;
    bool enabled = true;
    bool visible = true;
    bool locked = false;
    bool value = false;
    bool bold = false;
    friend bool operator==(const ControlLook&, const ControlLook&) = default;
};

/// What an event changed on an open form: its indicators, its options and what they show and hide.
struct FormLook {
    struct Difference {
        std::size_t control = 0;  // its place on the form
        ControlLook before;
        ControlLook after;
    };

    std::string form;
    std::optional<int> dim2;
    std::vector<EquationState> equationsBefore;
    std::vector<EquationState> equationsAfter;
    std::vector<Difference> controls;
};

/// An event that changed cells: what it did, and what is needed to take it back and to do it again.
struct UndoStep {
    std::string act;  // "change of Reliability"
    std::string form;
    std::optional<int> dim2;
    int page = 0;
    bool metric = false;  // the unit system in which the cells were before it, and after it
    bool metricAfter = false;
    std::optional<bool> switchedTo;  // of a switch of units: whether to metric ones
    std::vector<CellChange> cells;
    BalanceFlags balanceBefore;
    BalanceFlags balanceAfter;
    std::vector<FormLook> looks;
};

/// The events of the open project that changed cells, newest last, to be taken back and done again. An event
/// that has no name, as a screen that works its results out when it opens, is no step of its own: it goes
/// with the step before it, and before the first step with that. Emptied by another project; a save leaves
/// it.
class UndoHistory {
  public:
    /// Notes what an event has done, at its end, with the cells that it changed. A step that was taken back
    /// before is then past redoing.
    void Record(const ProcessState& state, const EventScope& event, std::vector<CellChange> changes);

    /// The act that would be taken back or done again next; null if there is none.
    [[nodiscard]] const std::string* NextUndo() const;
    [[nodiscard]] const std::string* NextRedo() const;

    /// Takes the newest step back, or does the one that was taken back last again, within the event under
    /// way: its cells, the balance of its screens and the indicators of those that are open, and its screen
    /// comes in front. The name of its act; nothing if there is none or the current screen keeps the user
    /// from it.
    std::optional<std::string> Undo(ProcessState& state);
    std::optional<std::string> Redo(ProcessState& state);

  private:
    enum class Way { Back, Forth };

    void SettleUnnamed(UndoStep& next);
    void Add(UndoStep step);
    void Travel(ProcessState& state, const UndoStep& step, Way way);
    void KeepUnits(ProcessState& state, bool metric);

    std::deque<UndoStep> steps_;
    std::size_t done_ = 0;             // the steps that are not taken back
    std::vector<CellChange> unnamed_;  // what events without a name have changed since the last step
    bool unnamedMetric_ = false;       // the unit system in which the cells were before that
    std::size_t cells_ = 0;            // in all steps together
    int project_ = 0;                  // whose steps these are; see ProcessState::projects
};

}  // namespace kelvor

#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/cell_block.h"
#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

struct OpenRequest;

/// What a user does to the open forms, and what the forms then do: focus, typing, keys, clicks, opening and
/// closing. One object serves one event.
class FormEvents {
  public:
    explicit FormEvents(ScreenContext& context) : context_(context) {}

    /// Opens a form, or brings it to the front, unless the current form refuses the value being typed; with
    /// no project open it does nothing. A help that is open for another field is closed first; a form that is
    /// open with another slice begins anew with the one that is asked for. Null if it did not come in front.
    Form* Open(const OpenRequest& request);

    /// Closes a form as its close box does: the value being typed is committed, then the form may ask. False
    /// if it stays open.
    bool Close(Form& form);

    /// Closes a form without a question; what it writes on closing is written.
    void Unload(Form& form);

    /// Closes every form but the hub, the last one first.
    void UnloadAll();

    /// Makes a form the current one, unless the current one refuses the value being typed.
    void Activate(Form& form);

    /// Moves the focus; the control that had it may refuse. True if it arrived.
    bool MoveFocus(Form& form, Control& control);

    /// Commits the value being typed on the current form. False if it was refused. However often an event
    /// asks for it, a value is committed once; Settle gives the focus back.
    bool Commit();

    /// The end of an event: where a value was committed and the focus stayed, its field has the focus anew.
    void Settle();

    /// Replaces the text of the control in focus, as typing does.
    void Type(const std::string& text);

    /// A key: Enter, Tab, BackTab, Esc, Space, F1, F2, Delete, Up, Down, Left, Right, Alt+X, or one
    /// character. False for a name that is none.
    bool Key(const std::string& key);

    /// Moves the focus to a button and clicks it, if the focus stays there.
    void Press(Form& form, Control& button);

    /// What a user does to the form's grid. Each is false if the form has no such grid, column or row. An
    /// edit takes the same way as a typed field: validated, written, recalculated.
    bool EditCell(Form& form, int row, const std::string& variable, const std::string& text);
    bool MoveToCell(Form& form, int row, const std::string& variable);
    bool DeleteRow(Form& form, int row);

    /// Makes room for a row above another, or lets a row change places with the one `step` below; what the
    /// rows decide is worked out anew. Does nothing in a grid that keeps rules about its rows, and at its
    /// ends.
    bool InsertRow(Form& form, int row);
    bool MoveRow(Form& form, int row, int step);

    /// Puts a block of tab-separated lines into the cells from the cursor on, as one act. Cells that cannot
    /// be edited, and those to the right of the grid, are passed over. A row with a cell that is refused, or
    /// beyond the grid's end, is left out whole, and one message tells of all of them; then the rows that
    /// were written are recalculated. A single cell is refused with the message of a typed one.
    bool PasteCells(Form& form, const std::string& block);

    /// Empties a block of cells as one act; those that cannot be edited are passed over. False if the form
    /// has no such cells.
    bool EmptyCells(Form& form, const CellRange& range);

    /// Selects an option, toggles a check box, or picks an item of a list. False if that makes no sense.
    bool Choose(Form& form, Control& control, const std::string& item);

    /// Shows the values of the open project on a form that was kept over a change of projects; with none
    /// open, none.
    void ShowProject(Form& form);

    /// Shows what the open project holds now on a form that is open: as when it comes in front, but it stays
    /// where it is, and the focus with it.
    void ShowAnew(Form& form);

    /// Tells a form that an act was undone or done again.
    void AfterTravel(Form& form);

    /// Puts the stored value back into the control in focus. False if nothing was being typed there.
    bool DropTyping();

    /// Rewrites the current form after a switch of the unit system.
    void AfterUnitSwitch();

    /// The field in hand is left and entered again, so that what follows from it is worked out anew.
    void LeaveAndEnter();

  private:
    Form* Current() { return context_.forms.CurrentForm; }

    /// Runs a screen's own routines and, unless one stands instead of it, the common one.
    void Handle(FormEvent event, Form& form, Control* control, const std::function<void()>& common);

    bool LoseFocus(Form& form, Control& control);
    bool CommitControl(Form& form, Control& control);
    void GetFocus(Form& form, Control& control);
    void TypeCharacterIntoCell(Form& form, Control& control, const std::string& character);
    void TypeIntoCell(Form& form, Control& control, const std::string& text);
    bool CommitCell(Form& form, Control& control);
    bool StoreCell(Form& form, Control& control, const std::string& typed);
    void WriteCells(Form& form, Control& control, const std::vector<CellEntry>& cells);
    void NoteRowsWritten(Form& form, Control& control, std::vector<int> rows);
    bool MayShiftRows(Form& form, Control& control, int row);
    bool MoveGridCursor(Form& form, Control& control, int row, std::size_t column);
    void StepCell(Form& form, Control& control, const std::string& key);
    void Load(Form& form);
    void NoteCurrentCell(const Form& form);
    void TakeReturn(Form& form, const SideScreenReturn& returned);
    void FocusFirstField(Form& form);
    void ActivateFront();
    bool NameClick(const Control& control);
    void Click(Form& form, Control& control);
    void WorkOut(Form& form, const std::string& variable);
    void TakeValueOver(Form& form, const std::string& variable);
    void TypeCharacter(Form& form, const std::string& character);
    void DeleteCharacter(Form& form);
    static void MoveCaret(Form& form, int step);
    bool NamedKey(Form& form, const std::string& key);

    void Restore(Form& form);

    /// An arrow key: the option or the list item before or after the one that is chosen.
    void Step(Form& form, const std::string& key, int step);
    void StepOption(Form& form, const Control& option, int step);
    void StepItem(const Control& list, int step);
    void PressAccessKey(Form& form, char key);
    void Tab(Form& form, TabStep step);

    ScreenContext& context_;
};

}  // namespace kelvor

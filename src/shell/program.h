#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/main_window.h"
#include "shell/process_state.h"
#include "shell/start_up.h"
#include "shell/undo_history.h"
#include "shell/user_event.h"

namespace kelvor {

/// The program behind every front end. What a user does enters by Raise; a script also has the commands
/// below, which stand for menus and for calculations. Each is one event: what it writes reaches the work copy
/// in one transaction, and a further event while it runs (from a message box, say) is dropped. A fault that
/// ends an event, such as a database that cannot be read, is shown, and everything is as it was before; only
/// a ProgramStop passes.
class Program {
  public:
    Program(Host host, Home home);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// An end in good order, but after a ProgramStop: what was not saved can then be had back at the next
    /// start.
    ~Program();

    StartResult Start(const std::string& commandLine);

    /// False if the event makes no sense: no such form, control, menu or tab.
    bool Raise(const UserEvent& event);

    /// True once the user has left the program.
    [[nodiscard]] bool ended() const { return ended_; }

    [[nodiscard]] ProcessState& state() { return state_; }
    [[nodiscard]] std::vector<MenuEntry> Menus() const;

    /// What a cell of a form's grid shows, what it has to say beside that, and whether it can be edited. For
    /// painting: they read, and may be called while an event runs.
    [[nodiscard]] std::string CellText(const Form& form, int row, const GridColumn& column);
    [[nodiscard]] std::string CellNote(const Form& form, int row, const GridColumn& column);
    [[nodiscard]] bool TakesEdit(const Form& form, int row, const GridColumn& column);

    /// What the text being typed on the current form stands for, as "= 150 mm"; empty for a plain number.
    [[nodiscard]] std::string EntryPreview();

    /// The File menu; the messages were shown. False from New only if no project can be made any more; it is
    /// true if a refused value kept the old one. The others tell whether they succeeded.
    bool NewProject();
    bool OpenProject(const std::string& path);
    bool Save();
    bool SaveAs(const std::string& name);

    /// File > Recover: opens what is kept aside, by its place from 0.
    bool Recover(int place);

    /// Brings the work copy to the disk, which takes some milliseconds. For a front end in which a person
    /// works, at least once a minute.
    void BringToDisk();

    /// The Edit menu: drops what is being typed, or else takes the last step back; does it again. What that
    /// was, as in "change of Reliability"; nothing if there is nothing to undo or redo.
    std::optional<std::string> Undo();
    std::optional<std::string> Redo();

    /// The Units menu: a choice of the system that is active does nothing.
    void ChooseUnits(bool metric);

    /// Stores a value given in the active unit system, as a user's change, without any test.
    void SetValue(std::string_view name, int dim1, int dim2, std::string_view value);

    void CalcField(std::string_view target, std::string_view key);
    void CalcCell(std::string_view target, int dim1, int dim2, std::string_view key);

    /// Solves one term of a screen's equation; see SolveForVariable. -1 also after a fault.
    int Solve(std::string_view screen, int term);

  private:
    /// The menu entry that ends the program.
    static constexpr const char* kExit = "MenuFileExit";

    /// Does something as one event; while one runs, further ones are dropped. False after a fault.
    bool InEvent(const std::function<bool()>& action);
    void ShowFault(const std::string& reason);
    std::optional<std::string> UndoLast();
    std::optional<std::string> RedoLast();
    [[nodiscard]] bool MayTravel() const;

    /// What every event brings to an end: the focus, and the lines that tell the truth about equations.
    void EndOfEvent();

    bool Perform(const UserEvent& event);
    bool PerformOnCurrentForm(const UserEvent& event);
    [[nodiscard]] bool IsOutsideModalForm(const UserEvent& event) const;
    bool OpenScreen(const UserEvent& event);
    bool OnOpenForm(const UserEvent& event);
    bool SwitchTab(int tab);
    bool ChooseMenu(const std::string& name, int index);
    void SwitchUnits(bool metric);
    bool LeaveProject();
    bool MakeNewProject();
    void OpenProjectByDialog();
    bool OpenKeptWork(int place);
    void OfferCrashedWork(bool toOpen);
    void SaveByMenu(bool underNewName);
    bool OpenFile(const std::string& path);
    void OpenRecentFile(int position);
    [[nodiscard]] static bool HasFieldHelp(const Form& form);
    [[nodiscard]] static std::string HelpPageOf(const Form& form);
    void ShowHelp(const std::string& page);
    void PrintReport();
    void ShowAbout();
    void ShowHub();
    void ShowStartTab();
    bool Exit();
    bool ConfirmClose();

    ProcessState state_;
    UndoHistory history_;
    bool travelled_ = false;  // the event under way undoes or redoes: it is no step itself
    bool running_ = false;
    bool ended_ = false;
    bool stopped_ = false;  // by a ProgramStop
};

}  // namespace kelvor

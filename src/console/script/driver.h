#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "forms/chart.h"
#include "forms/overview_line.h"
#include "reports/staged_tables.h"
#include "store/cell.h"

namespace kelvor {

struct CellReport {
    CellKey key;
    std::optional<CellValue> value;  // nothing: there is no such cell
};

struct DisplayReport {
    CellKey key;
    std::string text;
    std::string unit;
};

struct ControlReport {
    std::string name;
    std::string kind;
    std::string tag;
    std::string text;
    bool enabled = true;
    bool visible = true;
};

/// A cell of a grid that is not empty.
struct GridCellReport {
    int row = 1;
    std::string column;  // its variable
    std::string text;
    std::string note = {};  // what it has to say beside its text
};

/// A preview of the last run of reports.
struct PreviewReport {
    int index = 1;
    std::string name;  // of the report
    std::string caption;
};

/// A property of a control: a truth value, the number of a tab or the height of a box, or a text.
using PropertyValue = std::variant<bool, int, double, std::string>;

/// A number as a property: a whole one has no decimals.
PropertyValue NumberProperty(double number);

/// The colour of letters as a script prints it: those of the window's own colour are black.
std::string LetterColour(std::string_view colour);

/// What a script does to a program. One driver works on the program's model, another on its windows;
/// the runner is the same for both. Each operation throws ScriptError if it makes no sense there.
class Driver {
  public:
    Driver() = default;
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;
    virtual ~Driver() = default;

    // Project
    virtual void New() = 0;
    virtual void Open(const std::string& path) = 0;
    virtual void Save() = 0;
    virtual void SaveAs(const std::string& path) = 0;
    virtual void ChooseUnits(bool metric) = 0;

    /// What was taken back or done again; nothing if there is nothing.
    virtual std::optional<std::string> Undo() = 0;
    virtual std::optional<std::string> Redo() = 0;

    virtual CellReport Get(const CellKey& key) = 0;
    virtual void Set(const CellKey& key, const std::string& value) = 0;
    virtual DisplayReport Show(const CellKey& key) = 0;
    virtual std::vector<CellReport> Dump(const std::string& pattern) = 0;

    // Calculation
    virtual void Calc(const std::string& key, const std::string& target) = 0;
    virtual void CalcCell(const std::string& key, int dim1, int dim2, const std::string& target) = 0;

    /// The number of a term, given as its number or as the name of its variable.
    virtual int FindTerm(const std::string& screen, const std::string& term) = 0;
    virtual int Solve(const std::string& screen, int term) = 0;

    // Screens
    /// Opens a screen; `dim2` is the slice that it shows, 0: as it has it.
    virtual void OpenForm(const std::string& name, int dim2) = 0;
    virtual void ActivateForm(const std::string& name) = 0;

    /// Closes a form, or the current one if no name is given.
    virtual void CloseForm(const std::optional<std::string>& name) = 0;
    virtual std::vector<std::string> Forms() = 0;
    virtual std::vector<OverviewLine> Overview() = 0;
    virtual void Focus(const std::string& control) = 0;
    virtual void Type(const std::string& text) = 0;
    virtual void Key(const std::string& key) = 0;
    virtual void Press(const std::string& control) = 0;
    virtual void Choose(const std::string& control, const std::string& item) = 0;
    virtual void SwitchTab(int tab) = 0;
    virtual void ChooseMenu(const std::string& name, int index) = 0;
    // Grids: of the current screen
    virtual void EditCell(int row, const std::string& column, const std::string& text) = 0;
    virtual void MoveToRow(int row) = 0;
    virtual void DeleteRow(int row) = 0;
    virtual std::vector<GridCellReport> GridCells() = 0;

    virtual PropertyValue Read(const std::string& control, const std::string& property) = 0;
    virtual std::vector<ControlReport> Controls() = 0;

    /// The data sheet of a chart of the current screen.
    virtual ChartData Chart(const std::string& control) = 0;

    /// Writes a chart of the current screen to a file, .svg or .png.
    virtual void SavePicture(const std::string& control, const std::string& file) = 0;

    /// The control that has the focus; nothing if none has it.
    virtual std::optional<std::string> FocusName() = 0;

    // Reports

    /// The buttons of the tab Reports, with the ticks as they stand.
    virtual void MakeReports() = 0;
    virtual void ExportReports() = 0;

    /// The menu entry Print.
    virtual void PrintReport() = 0;
    virtual std::vector<PreviewReport> Previews() = 0;

    /// Writes a preview, by its number from 1, to a file of the kind that its ending says.
    virtual void WritePreview(int number, const std::string& file) = 0;

    /// A staging table as the last run has left it.
    virtual StagedTable Table(const std::string& name) = 0;

    // Questions
    virtual void QueueAnswer(const std::string& text) = 0;

    /// True once the program was left.
    virtual bool HasEnded() = 0;
};

}  // namespace kelvor

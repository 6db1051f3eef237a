#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "console/script/driver.h"
#include "shell/program.h"

namespace kelvor {

/// Drives the program's model, with no window.
class ModelDriver : public Driver {
  public:
    /// `queueAnswer` takes the answers that a script prepares for the questions to come.
    ModelDriver(Program& program, std::function<void(const std::string&)> queueAnswer)
        : program_(program), queueAnswer_(std::move(queueAnswer)) {}

    /// Throws ProgramStop if no fresh project can be made.
    void New() override;
    void Open(const std::string& path) override;
    void Save() override;
    void SaveAs(const std::string& path) override;
    void ChooseUnits(bool metric) override;
    std::optional<std::string> Undo() override;
    std::optional<std::string> Redo() override;
    CellReport Get(const CellKey& key) override;
    void Set(const CellKey& key, const std::string& value) override;
    DisplayReport Show(const CellKey& key) override;
    std::vector<CellReport> Dump(const std::string& pattern) override;
    void Calc(const std::string& key, const std::string& target) override;
    void CalcCell(const std::string& key, int dim1, int dim2, const std::string& target) override;
    int FindTerm(const std::string& screen, const std::string& term) override;
    int Solve(const std::string& screen, int term) override;
    void OpenForm(const std::string& name, int dim2) override;
    void ActivateForm(const std::string& name) override;
    void CloseForm(const std::optional<std::string>& name) override;
    std::vector<std::string> Forms() override;
    std::vector<OverviewLine> Overview() override;
    void Focus(const std::string& control) override;
    void Type(const std::string& text) override;
    void Key(const std::string& key) override;
    void Press(const std::string& control) override;
    void Choose(const std::string& control, const std::string& item) override;
    void SwitchTab(int tab) override;
    void ChooseMenu(const std::string& name, int index) override;
    void EditCell(int row, const std::string& column, const std::string& text) override;
    void MoveToRow(int row) override;
    void DeleteRow(int row) override;
    std::vector<GridCellReport> GridCells() override;
    PropertyValue Read(const std::string& control, const std::string& property) override;
    std::vector<ControlReport> Controls() override;
    ChartData Chart(const std::string& control) override;
    void SavePicture(const std::string& control, const std::string& file) override;
    std::optional<std::string> FocusName() override;
    void MakeReports() override;
    void ExportReports() override;
    void PrintReport() override;
    std::vector<PreviewReport> Previews() override;
    void WritePreview(int number, const std::string& file) override;
    StagedTable Table(const std::string& name) override;
    void QueueAnswer(const std::string& text) override;
    bool HasEnded() override;

  protected:
    [[nodiscard]] Program& program() { return program_; }

    /// The form in which the script works, and a control of it. Both throw ScriptError if there is none.
    const Form& CurrentForm();
    const Control& FindControl(const std::string& name);

    /// True for the name of the current form itself, unless one of its controls has it too.
    bool IsCurrentForm(const std::string& name);

    /// The title of the current form under the name that the catalogue has for what it shows, as a page of
    /// pavement B or a tab; missing if the name is another, or a control of the form has it too.
    std::optional<std::string> TitleInCatalogue(const std::string& name);

    /// The name of the open form that goes by a name, or that shows what the catalogue calls so; the name
    /// itself if there is none.
    std::string OpenFormName(const std::string& name);

    /// The grid of the current form, and a row or column of it. Each throws ScriptError if there is none.
    const GridData& FindGrid();
    void CheckRow(int row);
    void CheckColumn(const std::string& column);

  private:
    void PressOnReportsTab(const std::string& button);
    void Raise(const UserEvent& event, const std::string& refusal);

    Program& program_;
    std::function<void(const std::string&)> queueAnswer_;
};

}  // namespace kelvor

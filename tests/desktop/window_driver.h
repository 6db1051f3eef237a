#pragma once

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "console/model_driver.h"
#include "desktop/application.h"
#include "desktop/dialog_responder.h"
#include "desktop/grid_view.h"

namespace kelvor::test {

/// Drives the program's windows with keys and the mouse, and reads what the widgets show. What has no place
/// on the screen (a raw cell, a calculation by its key) is left to the model.
class WindowDriver : public ModelDriver {
  public:
    WindowDriver(DesktopProgram& desktop, DialogResponder& responder);

    void New() override;
    void Open(const std::string& path) override;
    void Save() override;
    void SaveAs(const std::string& path) override;
    void ChooseUnits(bool metric) override;
    std::optional<std::string> Undo() override;
    std::optional<std::string> Redo() override;
    void Set(const CellKey& key, const std::string& value) override;
    void Calc(const std::string& key, const std::string& target) override;
    void CalcCell(const std::string& key, int dim1, int dim2, const std::string& target) override;
    int Solve(const std::string& screen, int term) override;
    void OpenForm(const std::string& name, int dim2) override;
    void ActivateForm(const std::string& name) override;
    void CloseForm(const std::optional<std::string>& name) override;
    std::vector<std::string> Forms() override;
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

  private:
    /// Does to the model what no window does, and shows it. What goes wrong comes out here.
    void OnModel(const std::function<void()>& act);

    /// Chooses an entry of the Edit menu, and gives what stood behind its first word.
    std::optional<std::string> ChooseStep(const std::string& name);

    void ComeToFront();
    FormView& View();
    QWidget& Widget(const std::string& control);
    QWidget& FocusWidget();
    void Click(QWidget& widget);
    void ClickEntry(QMenu& menu, QAction& entry);
    GridView& FindGridView();
    bool ClickCell(GridView& grid, int row, int column);
    void PickInList(QComboBox& list, const std::string& text);
    void TypeInto(QWidget& box, const std::string& text);

    DesktopProgram& desktop_;
    DialogResponder& responder_;
};

}  // namespace kelvor::test

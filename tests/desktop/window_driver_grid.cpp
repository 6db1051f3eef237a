// The grid of the current screen, by keys and the mouse.

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include "console/script/command_line.h"
#include "desktop/qt_text.h"
#include "desktop/window_driver.h"

namespace kelvor::test {

GridView& WindowDriver::FindGridView() {
    auto* grid = dynamic_cast<GridView*>(View().findChild<QTableView*>());
    if (grid == nullptr) throw ScriptError(CurrentForm().name() + " has no grid");
    return *grid;
}

/// Clicks a cell, unless a value that is being typed elsewhere keeps the cursor.
bool WindowDriver::ClickCell(GridView& grid, int row, int column) {
    const QModelIndex cell = grid.model()->index(row - 1, column);
    grid.scrollTo(cell);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(cell).center());
    ComeToFront();
    return grid.currentIndex() == cell && grid.isAncestorOf(QApplication::focusWidget());
}

void WindowDriver::EditCell(int row, const std::string& column, const std::string& text) {
    CheckRow(row);
    CheckColumn(column);
    GridView& grid = FindGridView();
    const auto place = static_cast<int>(*FindGrid().Find(column));
    if (!ClickCell(grid, row, place) || FindGrid().columns[static_cast<std::size_t>(place)].locked) return;
    QTest::keyClick(&grid, Qt::Key_F2);
    if (auto* line = qobject_cast<QLineEdit*>(grid.editor())) {
        TypeInto(*line, text);
        if (text.empty() && grid.model()->data(grid.currentIndex()).toString().isEmpty()) {
            QTest::keyClick(line, Qt::Key_Escape);
            return;
        }
    } else if (auto* list = qobject_cast<QComboBox*>(grid.editor())) {
        PickInList(*list, text);
    }
    // Leaves the cell for another one of the row, and comes back.
    const int beside = place == 0 ? 1 : place - 1;
    ClickCell(grid, row, beside);
    if (CurrentForm().focus != nullptr) ClickCell(grid, row, place);
}

/// An entry that the list does not offer cannot be picked; it is handed to the form as if typed.
void WindowDriver::PickInList(QComboBox& list, const std::string& text) {
    const int entry = list.findText(ToQt(text), Qt::MatchFixedString);
    if (entry < 0) {
        QTest::keyClick(&list, Qt::Key_Escape);
        desktop_.window().door().Raise({UserEvent::Kind::Type, {}, text, 0});
        return;
    }
    list.showPopup();
    const QModelIndex index = list.model()->index(entry, 0);
    QTest::mouseClick(list.view()->viewport(), Qt::LeftButton, {}, list.view()->visualRect(index).center());
}

void WindowDriver::MoveToRow(int row) {
    CheckRow(row);
    ClickCell(FindGridView(), row, static_cast<int>(FindGrid().column));
}

void WindowDriver::DeleteRow(int row) {
    CheckRow(row);
    GridView& grid = FindGridView();
    if (!ClickCell(grid, row, static_cast<int>(FindGrid().column))) return;
    QTest::keyClick(&grid, Qt::Key_Delete, Qt::ControlModifier);
    QApplication::processEvents();
}

std::vector<GridCellReport> WindowDriver::GridCells() {
    std::vector<GridCellReport> cells;
    const QAbstractItemModel& shown = *FindGridView().model();
    for (int row = 0; row < shown.rowCount(); ++row) {
        for (int column = 0; column < shown.columnCount(); ++column) {
            const QModelIndex cell = shown.index(row, column);
            const std::string text = FromQt(cell.data().toString());
            const std::string variable = FindGrid().columns[static_cast<std::size_t>(column)].variable;
            const std::string note = FromQt(cell.data(Qt::AccessibleDescriptionRole).toString());
            if (!text.empty()) cells.push_back({row + 1, variable, text, note});
        }
    }
    return cells;
}

}  // namespace kelvor::test

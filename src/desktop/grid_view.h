#pragma once

#include <QAbstractTableModel>
#include <QPointer>
#include <QStringList>
#include <QStyledItemDelegate>
#include <QTableView>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "forms/cell_block.h"
#include "forms/control.h"
#include "shell/user_event.h"

namespace kelvor {

/// What a grid on the screen asks of, and tells, the form it stands on. Rows count from 1. What is asked is
/// asked while painting.
struct GridHooks {
    std::function<std::string(int row, const GridColumn& column)> read;
    std::function<std::string(int row, const GridColumn& column)> note;
    std::function<bool(int row, const GridColumn& column)> takesEdit;
    std::function<void(int row, const GridColumn& column)> moveTo;
    std::function<void(const std::string& text)> type;  // into the cell under the cursor
    std::function<void(const std::string& block)> paste;
    std::function<void(int row)> deleteRow;
    std::function<void(UserEvent::Kind kind, int row)> shiftRow;  // to insert one or to move it
    std::function<void()> marked;                                 // other cells are marked than before
    std::function<void(QWidget& editor)> editorOpened;
};

/// The cells of a grid for the toolkit's table. It holds none of them.
class CellModel : public QAbstractTableModel {
  public:
    CellModel(const Control& control, const GridHooks& hooks) : control_(&control), hooks_(hooks) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Everything may have changed.
    void Refresh();

    /// The control is gone: there are no cells from now on.
    void Detach();

    [[nodiscard]] const GridColumn& ColumnAt(int column) const {
        return control_->grid->columns[static_cast<std::size_t>(column)];
    }

    /// True if a cell may be edited in a list, which needs more height than a line.
    [[nodiscard]] bool HasLists() const;

  private:
    [[nodiscard]] std::string ShownText(const QModelIndex& index) const;
    [[nodiscard]] QString NoteOf(const QModelIndex& index) const;
    [[nodiscard]] bool TakesEdit(const QModelIndex& index) const;
    [[nodiscard]] QVariant BackgroundOf(const QModelIndex& index) const;

    const Control* control_;  // null once it is gone
    const GridHooks& hooks_;
    int shownRows_ = control_->grid->rows;
};

/// A grid that works like a spreadsheet: arrows, Tab and Enter move, typing replaces, F2 edits, Delete
/// empties, Ctrl+C and Ctrl+V take blocks of cells, Ctrl+Delete deletes the row. The model owns the cursor
/// and what is being typed.
class GridView : public QTableView {
  public:
    GridView(const Control& control, GridHooks hooks, QWidget* parent);

    /// Shows where the cursor is and what the cells hold; ends an edit that the model has ended.
    void Show();

    /// The control is gone: shows nothing from now on.
    void Detach();

    /// Closes the line in which a cell is edited.
    void EndEdit();

    /// The line in which a cell is edited; null while none is.
    [[nodiscard]] QWidget* editor() const { return editor_; }

    /// The block of cells that is marked; nothing unless it is more than one.
    [[nodiscard]] std::optional<CellRange> MarkedCells() const;

    /// The sum and the mean of the numbers in the block that is marked, in words; empty without numbers.
    [[nodiscard]] QString FiguresOfMarked() const;

    /// Gives the cells below the first row of the block that is marked what the first row holds.
    void FillDown();

    /// All cells are others than before.
    void reset() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void selectionChanged(const QItemSelection& now, const QItemSelection& before) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

  private:
    class Delegate;

    void Copy() const;
    void Paste();
    bool HandleRowKey(const QKeyEvent& key);
    void OpenCellList();
    [[nodiscard]] bool RowsShift() const;
    void SizeColumns();
    void ShowHeadings();
    void OpenEditor(QWidget& editor);

    const Control* control_;  // null once it is gone
    GridHooks hooks_;
    CellModel cells_;
    QPointer<QWidget> editor_;
    QStringList headings_;        // when it was shown last
    bool typedInEditor_ = false;  // likewise
    bool showing_ = false;
};

}  // namespace kelvor

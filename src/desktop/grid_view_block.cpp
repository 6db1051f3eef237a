// What is done to whole rows of a grid, and to blocks of its cells.

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <algorithm>
#include <utility>

#include "desktop/grid_view.h"
#include "desktop/key_table.h"
#include "desktop/qt_text.h"
#include "desktop/translated_text.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

/// Without the digits behind the fifteenth, which are of the arithmetic and not of the cells.
QString FigureText(double number) { return ToQt(NumberToText(number)); }

}  // namespace

/// The rows of a grid that decides by rows alone which of them may go stay where they are.
bool GridView::RowsShift() const {
    if (control_ == nullptr || control_->grid->texts) return false;
    return control_->grid->routines.mayDelete == nullptr || control_->grid->routines.mayEdit != nullptr;
}

bool GridView::HandleRowKey(const QKeyEvent& key) {
    const int row = currentIndex().row() + 1;
    if (row < 1) return false;
    if (IsKeyOf(KeyAct::DeleteRow, key)) return hooks_.deleteRow(row), true;
    if (IsKeyOf(KeyAct::InsertRow, key)) return hooks_.shiftRow(UserEvent::Kind::InsertRow, row), true;
    if (IsKeyOf(KeyAct::MoveRowUp, key)) return hooks_.shiftRow(UserEvent::Kind::MoveRowUp, row), true;
    if (IsKeyOf(KeyAct::MoveRowDown, key)) return hooks_.shiftRow(UserEvent::Kind::MoveRowDown, row), true;
    if (IsKeyOf(KeyAct::FillDown, key)) return FillDown(), true;
    if (IsKeyOf(KeyAct::OpenList, key)) return OpenCellList(), true;
    return false;
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    const int row = currentIndex().row() + 1;
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("GridMenu"));
    const auto add = [&](const char* caption, const QString& keys, const std::function<void()>& act) {
        return menu.addAction(TranslatedText(caption) + u'\t' + keys, act);
    };
    const auto shift = [&](UserEvent::Kind kind) {
        return [this, kind, row] { hooks_.shiftRow(kind, row); };
    };
    add(ToTranslate("&Copy"), QKeySequence(QKeySequence::Copy).toString(), [this] { Copy(); });
    add(ToTranslate("&Paste"), QKeySequence(QKeySequence::Paste).toString(), [this] { Paste(); });
    add(ToTranslate("&Fill Down"), ShownKeyOf(KeyAct::FillDown), [this] {
        FillDown();
    })->setEnabled(MarkedCells().has_value());
    menu.addSeparator();
    QAction* const rows[] = {
        add(ToTranslate("&Insert Row"), ShownKeyOf(KeyAct::InsertRow), shift(UserEvent::Kind::InsertRow)),
        add(ToTranslate("Move Row &Up"), ShownKeyOf(KeyAct::MoveRowUp), shift(UserEvent::Kind::MoveRowUp)),
        add(ToTranslate("Move Row Do&wn"), ShownKeyOf(KeyAct::MoveRowDown),
            shift(UserEvent::Kind::MoveRowDown))};
    for (QAction* action : rows) action->setEnabled(row > 0 && RowsShift());
    add(ToTranslate("&Delete Row"), ShownKeyOf(KeyAct::DeleteRow), [this, row] { hooks_.deleteRow(row); });
    menu.exec(event->globalPos());
}

void GridView::OpenCellList() {
    if (cells_.flags(currentIndex()).testFlag(Qt::ItemIsEditable)) edit(currentIndex());
    if (auto* list = qobject_cast<QComboBox*>(editor_.data())) list->showPopup();
}

QString GridView::FiguresOfMarked() const {
    if (!MarkedCells()) return {};
    int count = 0;
    double sum = 0.0;
    for (const QModelIndex& cell : selectionModel()->selectedIndexes()) {
        const std::string text = FromQt(cell.data(Qt::DisplayRole).toString());
        if (!IsNumeric(text)) continue;
        ++count;
        sum += ParseNumber(text);
    }
    if (count == 0) return {};
    return TranslatedText("Sum %1, mean %2 of %3 cells")
        .arg(FigureText(sum), FigureText(sum / count))
        .arg(count);
}

void GridView::FillDown() {
    const std::optional<CellRange> marked = MarkedCells();
    if (!marked || marked->firstRow == marked->lastRow) return;
    std::vector<std::string> first;
    for (std::size_t column = marked->firstColumn; column <= marked->lastColumn; ++column) {
        const QModelIndex cell = cells_.index(marked->firstRow - 1, static_cast<int>(column));
        first.push_back(FromQt(cell.data(Qt::DisplayRole).toString()));
    }
    const auto below = static_cast<std::size_t>(marked->lastRow - marked->firstRow);
    hooks_.moveTo(marked->firstRow + 1, cells_.ColumnAt(static_cast<int>(marked->firstColumn)));
    hooks_.paste(JoinCells(std::vector(below, first)));
}

void GridView::Copy() const {
    QModelIndexList cells = selectedIndexes();
    if (cells.isEmpty()) cells << currentIndex();
    if (!cells.constFirst().isValid()) return;  // there are no rows
    std::sort(cells.begin(), cells.end());
    std::vector<std::vector<std::string>> rows;
    int last = -1;
    for (const QModelIndex& cell : cells) {
        if (std::exchange(last, cell.row()) != cell.row()) rows.emplace_back();
        rows.back().push_back(FromQt(cell.data(Qt::DisplayRole).toString()));
    }
    QApplication::clipboard()->setText(ToQt(JoinCells(rows)));
}

void GridView::Paste() { hooks_.paste(FromQt(QApplication::clipboard()->text())); }

}  // namespace kelvor

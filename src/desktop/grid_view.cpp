#include "desktop/grid_view.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "desktop/cell_list.h"
#include "desktop/qt_text.h"
#include "desktop/theme.h"
#include "desktop/translated_text.h"
#include "forms/cell_block.h"
#include "platform/number_picture.h"

namespace kelvor {

namespace {

/// How many rows a grid shows before it scrolls, unless its form says otherwise.
constexpr int kMostRowsShown = 12;
constexpr int kLettersOfNumber = 12;
constexpr int kLettersOfText = 26;
constexpr const char* kNoteColour = "#C2271A";

/// The caption, and the unit below it.
QString HeadingOf(const GridColumn& column) {
    const QString caption = ToQt(column.caption);
    return column.unit.empty() ? caption : caption + "\n" + ToQt(column.unit);
}

int LettersOf(const GridColumn& column) {
    if (column.letters > 0.0) return qRound(column.letters);
    return (IsTextPicture(column.picture) ? kLettersOfText : kLettersOfNumber) + 2;
}

}  // namespace

// --- The cells ------------------------------------------------------------------------------------------

int CellModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || control_ == nullptr ? 0 : control_->grid->rows;
}

int CellModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() || control_ == nullptr ? 0 : static_cast<int>(control_->grid->columns.size());
}

bool CellModel::HasLists() const {
    const std::vector<GridColumn>& columns = control_->grid->columns;
    return std::any_of(columns.begin(), columns.end(),
                       [](const auto& column) { return !column.list.empty(); });
}

void CellModel::Refresh() {
    if (std::exchange(shownRows_, control_->grid->rows) != control_->grid->rows) {
        beginResetModel();
        endResetModel();
    } else if (rowCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

void CellModel::Detach() {
    beginResetModel();
    control_ = nullptr;
    endResetModel();
}

/// What is being typed shows in its cell, also while the line in which it is typed is closed.
std::string CellModel::ShownText(const QModelIndex& index) const {
    const GridData& grid = *control_->grid;
    const bool isCursor = index.row() + 1 == grid.row && index.column() == static_cast<int>(grid.column);
    if (isCursor && grid.typed) return *grid.typed;
    return hooks_.read(index.row() + 1, ColumnAt(index.column()));
}

QString CellModel::NoteOf(const QModelIndex& index) const {
    return ToQt(hooks_.note(index.row() + 1, ColumnAt(index.column())));
}

bool CellModel::TakesEdit(const QModelIndex& index) const {
    return hooks_.takesEdit(index.row() + 1, ColumnAt(index.column()));
}

/// A computed cell looks like a computed field, one that is kept as it is like the window around it.
QVariant CellModel::BackgroundOf(const QModelIndex& index) const {
    if (ColumnAt(index.column()).locked) return ScreenColour(colours::kLightCyan, QPalette());
    return TakesEdit(index) ? QVariant() : QPalette().color(QPalette::Window);
}

QVariant CellModel::data(const QModelIndex& index, int role) const {
    if (control_ == nullptr || !index.isValid()) return {};
    const GridColumn& column = ColumnAt(index.column());
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return ToQt(ShownText(index));
        case Qt::TextAlignmentRole:
            return QVariant::fromValue((IsTextPicture(column.picture) ? Qt::AlignLeft : Qt::AlignRight) |
                                       Qt::AlignVCenter);
        case Qt::BackgroundRole:
            return BackgroundOf(index);
        case Qt::ToolTipRole:
            return NoteOf(index).isEmpty() ? ToQt(column.hint) : NoteOf(index);
        case Qt::AccessibleDescriptionRole:
            return NoteOf(index);
        case Qt::AccessibleTextRole:
            return ToQt(column.caption) + " " + ToQt(ShownText(index));
        default:
            return {};
    }
}

QVariant CellModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || control_ == nullptr) return {};
    return orientation == Qt::Horizontal ? QVariant(HeadingOf(ColumnAt(section))) : QVariant(section + 1);
}

Qt::ItemFlags CellModel::flags(const QModelIndex& index) const {
    if (control_ == nullptr || !index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return TakesEdit(index) ? flags | Qt::ItemIsEditable : flags;
}

// --- Editing ----------------------------------------------------------------------------------------------

/// Makes the line or the list in which a cell is edited. What is typed goes to the form at once, so that
/// there is nothing to hand over at the end.
class GridView::Delegate : public QStyledItemDelegate {
  public:
    explicit Delegate(GridView& view) : QStyledItemDelegate(&view), view_(view) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                          const QModelIndex& index) const override {
        const GridColumn& column = view_.cells_.ColumnAt(index.column());
        QWidget* editor = column.list.empty() ? MakeLine(column, parent) : MakeList(column, parent);
        view_.OpenEditor(*editor);
        return editor;
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        const QString text = index.data(Qt::EditRole).toString();
        if (auto* line = qobject_cast<QLineEdit*>(editor); line != nullptr && !line->isModified()) {
            line->setText(text);
        }
        if (auto* list = qobject_cast<QComboBox*>(editor)) list->setCurrentText(text);
    }

    /// A corner of a cell with a note is filled, as in a spreadsheet.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        if (index.data(Qt::AccessibleDescriptionRole).toString().isEmpty()) return;
        const QPoint corner = option.rect.topRight();
        const int side = option.fontMetrics.averageCharWidth();
        painter->save();
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(kNoteColour));
        painter->drawPolygon(QPolygon({corner, corner - QPoint(side, 0), corner + QPoint(0, side)}));
        painter->restore();
    }

    void setModelData(QWidget* /*editor*/, QAbstractItemModel* /*model*/,
                      const QModelIndex& /*index*/) const override {}

  protected:
    /// Keys are the form's: they move the cursor of the model. A menu or another window only borrows the
    /// focus.
    bool eventFilter(QObject* editor, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) return false;
        if (event->type() == QEvent::FocusOut) {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            const bool borrowed = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                                  reason == Qt::MenuBarFocusReason;
            if (borrowed) return false;
        }
        return QStyledItemDelegate::eventFilter(editor, event);
    }

  private:
    QWidget* MakeLine(const GridColumn& column, QWidget* parent) const {
        auto* line = new QLineEdit(parent);
        line->setFrame(false);
        line->setAcceptDrops(false);
        line->setAlignment(IsTextPicture(column.picture) ? Qt::AlignLeft : Qt::AlignRight);
        connect(line, &QLineEdit::textEdited, line,
                [this](const QString& text) { view_.hooks_.type(FromQt(text)); });
        return line;
    }

    QWidget* MakeList(const GridColumn& column, QWidget* parent) const {
        auto* list = new CellList(parent);
        list->addItem(QString());
        for (const std::string& item : column.items) list->addItem(ToQt(item));
        connect(list, &QComboBox::textActivated, list,
                [this](const QString& text) { view_.hooks_.type(FromQt(text)); });
        return list;
    }

    GridView& view_;
};

GridView::GridView(const Control& control, GridHooks hooks, QWidget* parent)
    : QTableView(parent), control_(&control), hooks_(std::move(hooks)), cells_(control, hooks_) {
    setModel(&cells_);
    setItemDelegate(new Delegate(*this));
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::DoubleClicked);
    setTabKeyNavigation(false);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setAlternatingRowColors(false);
    setAccessibleName(TranslatedText("Table"));
    QStringList captions;
    for (const GridColumn& column : control.grid->columns) captions.append(ToQt(column.caption));
    setAccessibleDescription(captions.join(QStringLiteral(", ")));
    horizontalHeader()->setDefaultAlignment(Qt::AlignCenter | Qt::Alignment(Qt::TextWordWrap));
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->setSectionsClickable(false);
    if (!cells_.HasLists()) verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 3 / 2);
    SizeColumns();
}

void GridView::SizeColumns() {
    const int letter = fontMetrics().horizontalAdvance(u'0');
    int width = verticalHeader()->sizeHint().width() + 2 * frameWidth();
    int lines = 0;
    for (int i = 0; i < cells_.columnCount(); ++i) {
        setColumnWidth(i, LettersOf(cells_.ColumnAt(i)) * letter);
        width += columnWidth(i);
        const QRect room(0, 0, columnWidth(i) - 2 * letter, QWIDGETSIZE_MAX);
        const QString longest = ToQt(cells_.ColumnAt(i).caption) + "\n" + QString(1, u'M');
        lines = std::max(lines, fontMetrics().boundingRect(room, Qt::TextWordWrap, longest).height());
    }
    lines += fontMetrics().lineSpacing() / 2;
    horizontalHeader()->setFixedHeight(lines);
    // A list may grow.
    const int most = control_->grid->rowsShown > 0 ? control_->grid->rowsShown : kMostRowsShown;
    const int rows = control_->grid->texts ? most : std::min(cells_.rowCount(), most);
    if (control_->grid->texts || cells_.rowCount() > rows) width += verticalScrollBar()->sizeHint().width();
    setMinimumSize(width, lines + rows * verticalHeader()->defaultSectionSize() + 2 * frameWidth());
}

void GridView::OpenEditor(QWidget& editor) {
    editor_ = &editor;
    hooks_.editorOpened(editor);
}

void GridView::Show() {
    if (control_ == nullptr) return;
    showing_ = true;
    const GridData& grid = *control_->grid;
    cells_.Refresh();
    const QModelIndex cursor = cells_.index(grid.row - 1, static_cast<int>(grid.column));
    const bool moved = currentIndex() != cursor;
    const bool taken = typedInEditor_ && !grid.typed;  // stored, refused or dropped
    if (moved || taken) EndEdit();
    typedInEditor_ = grid.typed.has_value();
    if (moved) setCurrentIndex(cursor);
    if (moved && cursor.isValid()) {
        updateGeometries();  // rows that were added lengthen the way
        scrollTo(cursor);
    }
    ShowHeadings();
    showing_ = false;
}

/// Captions and units change seldom, and a heading that is painted for nothing costs more than a look.
void GridView::ShowHeadings() {
    QStringList headings;
    for (int column = 0; column < cells_.columnCount(); ++column)
        headings << cells_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    if (std::exchange(headings_, headings) != headings && !headings.isEmpty())
        emit cells_.headerDataChanged(Qt::Horizontal, 0, cells_.columnCount() - 1);
}

void GridView::Detach() {
    EndEdit();
    cells_.Detach();
    setModel(nullptr);
    control_ = nullptr;
}

std::optional<CellRange> GridView::MarkedCells() const {
    if (selectionModel() == nullptr) return std::nullopt;
    const QModelIndexList marked = selectionModel()->selectedIndexes();
    if (marked.size() < 2) return std::nullopt;
    const auto [first, last] = std::minmax_element(marked.begin(), marked.end());
    return CellRange{first->row() + 1, last->row() + 1, static_cast<std::size_t>(first->column()),
                     static_cast<std::size_t>(last->column())};
}

void GridView::EndEdit() {
    if (editor_ != nullptr) closeEditor(editor_, QAbstractItemDelegate::NoHint);
}

/// A line that closes loses the focus, and its delegate asks a second time.
void GridView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    if (editor == nullptr || editor != editor_) return;
    editor_.clear();
    QTableView::closeEditor(editor, hint);
}

void GridView::reset() {
    editor_.clear();  // the toolkit lets go of it
    QTableView::reset();
}

// --- Keys and clicks ---------------------------------------------------------------------------------

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!showing_ && model() != nullptr && current.isValid())
        hooks_.moveTo(current.row() + 1, cells_.ColumnAt(current.column()));
}

/// A press on another cell may be refused while the toolkit handles it; it would still mark that cell.
void GridView::mousePressEvent(QMouseEvent* event) {
    const QPersistentModelIndex pressed = indexAt(event->position().toPoint());
    QTableView::mousePressEvent(event);
    if (selectionModel() != nullptr && pressed.isValid() && currentIndex() != pressed)
        selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (indexAt(event->position().toPoint()) == currentIndex()) QTableView::mouseDoubleClickEvent(event);
}

void GridView::selectionChanged(const QItemSelection& now, const QItemSelection& before) {
    QTableView::selectionChanged(now, before);
    if (hooks_.marked) hooks_.marked();
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (model() == nullptr) return;
    if (event->matches(QKeySequence::Copy)) {
        Copy();
    } else if (event->matches(QKeySequence::Paste)) {
        Paste();
    } else if (!HandleRowKey(*event)) {
        QTableView::keyPressEvent(event);
    }
}

}  // namespace kelvor

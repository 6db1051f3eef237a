#include "desktop/overview_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QVBoxLayout>
#include <utility>

#include "desktop/translated_text.h"

namespace kelvor {

namespace {

enum Column { kTitleColumn, kResultsColumn, kStateColumn, kColumns };

constexpr int kPanelLetters = 40;

QTableWidget* MakeTable(QWidget* parent) {
    auto* table = new QTableWidget(0, kColumns, parent);
    table->setObjectName(QStringLiteral("OverviewTable"));
    table->setAccessibleName(TranslatedText("Overview of the project"));
    table->setAccessibleDescription(TranslatedText("Enter opens the screen of a line"));
    table->setToolTip(TranslatedText("Enter or a double click opens the screen of a line"));
    table->setHorizontalHeaderLabels(
        {TranslatedText("Screen"), TranslatedText("Results"), TranslatedText("Equation")});
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionsClickable(false);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(kStateColumn, QHeaderView::ResizeToContents);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setWordWrap(true);
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    return table;
}

}  // namespace

OverviewPanel::OverviewPanel(std::function<void(const std::string& screen)> open, QWidget* parent)
    : QWidget(parent),
      open_(std::move(open)),
      table_(MakeTable(this)),
      nothing_(new QLabel(TranslatedText("No screen of this project holds data yet."), this)) {
    setObjectName(QStringLiteral("Overview"));
    auto* heading = new QLabel(TranslatedText("Overview"), this);
    heading->setObjectName(QStringLiteral("OverviewHeading"));
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    nothing_->setObjectName(QStringLiteral("OverviewEmpty"));
    nothing_->setWordWrap(true);
    nothing_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    auto* lines = new QVBoxLayout(this);
    lines->addWidget(heading);
    lines->addWidget(nothing_);
    lines->addWidget(table_, 1);
    lines->addStretch(0);
    table_->hide();
    table_->installEventFilter(this);
    connect(table_, &QTableWidget::cellDoubleClicked, this, [this](int row, int) { OpenRow(row); });
    connect(table_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) { ShowMenu(table_->viewport()->mapToGlobal(place)); });
}

int OverviewPanel::LeastWidth() const { return kPanelLetters * fontMetrics().averageCharWidth(); }

void OverviewPanel::Show(std::vector<OverviewRow> rows) {
    if (rows == rows_) return;
    const int before = table_->currentRow();
    rows_ = std::move(rows);
    table_->setRowCount(static_cast<int>(rows_.size()));
    for (int row = 0; row < table_->rowCount(); ++row) FillRow(row);
    if (table_->rowCount() > 0) table_->setCurrentCell(std::clamp(before, 0, table_->rowCount() - 1), 0);
    table_->setVisible(!rows_.empty());
    nothing_->setVisible(rows_.empty());
}

void OverviewPanel::FillRow(int row) {
    const OverviewRow& line = rows_[static_cast<std::size_t>(row)];
    const QString texts[] = {line.title, line.results, line.state};
    for (int column = 0; column < kColumns; ++column) {
        auto* item = new QTableWidgetItem(texts[column]);
        item->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
        item->setToolTip(texts[column]);
        table_->setItem(row, column, item);
    }
}

void OverviewPanel::OpenRow(int row) {
    if (row < 0 || row >= static_cast<int>(rows_.size())) return;
    const std::string screen = rows_[static_cast<std::size_t>(row)].screen;
    open_(screen);
}

void OverviewPanel::Copy() const {
    auto* copy = new QMimeData;
    copy->setText(TextOf(rows_));
    copy->setHtml(HtmlOf(rows_));
    QApplication::clipboard()->setMimeData(copy);
}

void OverviewPanel::ShowMenu(const QPoint& place) {
    QMenu menu;
    const QAction* open = menu.addAction(TranslatedText("&Open"));
    const QAction* copy = menu.addAction(TranslatedText("&Copy Overview"));
    const QAction* chosen = menu.exec(place);
    if (chosen != nullptr && chosen == open) OpenRow(table_->currentRow());
    if (chosen != nullptr && chosen == copy) Copy();
}

bool OverviewPanel::HandleKey(const QKeyEvent& key) {
    if (key.matches(QKeySequence::Copy)) return Copy(), true;
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) return false;
    OpenRow(table_->currentRow());
    return true;
}

bool OverviewPanel::eventFilter(QObject* watched, QEvent* event) {
    const bool press = watched == table_ && event->type() == QEvent::KeyPress;
    return (press && HandleKey(static_cast<QKeyEvent&>(*event))) || QWidget::eventFilter(watched, event);
}

}  // namespace kelvor

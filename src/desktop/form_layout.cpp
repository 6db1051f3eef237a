#include "desktop/form_layout.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/qt_text.h"

namespace kelvor {

namespace {

/// Units of measure up to this many letters leave the columns where they are when the system changes.
constexpr int kUnitLetters = 6;
constexpr int kFieldColumns = 3;
constexpr int kGridRows = 8;  // of a built screen, for its grid
constexpr int kParagraphLetters = 84;
constexpr double kHeadingScale = 2.4;

class LayoutMaker {
  public:
    LayoutMaker(const Form& model, QWidget& form, const WidgetFinder& find)
        : model_(model), form_(form), find_(find) {}

    void MakeRoot() {
        const LayoutNode& layout = model_.type().layout;
        auto* root = new QVBoxLayout(&form_);
        if (layout.kind != LayoutKind::Rows) {
            Add(*root, layout);
            return;
        }
        for (const LayoutNode& child : layout.children) {
            if (child.kind == LayoutKind::Buttons) {
                root->addStretch(1);
                AddFootButtons(*root, child);
            } else {
                Add(*root, child);
            }
        }
    }

    [[nodiscard]] QTabWidget* tabs() const { return tabs_; }

  private:
    void Add(QBoxLayout& to, const LayoutNode& node) {
        switch (node.kind) {
            case LayoutKind::Pages:
                return AddPages(to, node);
            case LayoutKind::Columns:
                return AddColumns(to, node);
            case LayoutKind::Rows:
                return AddRows(to, node);
            case LayoutKind::Frame:
                return AddFrame(to, node);
            case LayoutKind::Fields:
                return AddFields(to, node);
            case LayoutKind::Options:
                return AddOptions(to, node);
            case LayoutKind::Checks:
                return AddChecks(to, node);
            case LayoutKind::Table:
                return AddTable(to, node);
            case LayoutKind::Matrix:
                return AddMatrix(to, node);
            case LayoutKind::Placed:
                return AddPlaced(to);
            case LayoutKind::Buttons:
                return AddButtons(to, node);
            default:
                return AddSingle(to, node);
        }
    }

    /// What is one control, with a label at most.
    void AddSingle(QBoxLayout& to, const LayoutNode& node) {
        switch (node.kind) {
            case LayoutKind::Heading:
                return AddHeading(to, node);
            case LayoutKind::Text:
                return AddText(to, node);
            case LayoutKind::Choice:
                return AddChoice(to, node);
            case LayoutKind::Box:
                return to.addWidget(FixedBox(node.fields.front()));
            case LayoutKind::Grid:
            case LayoutKind::Chart:
                return to.addWidget(find_(node.name), 1);
            case LayoutKind::Hidden:
                return;
            default:
                return to.addWidget(find_(node.name));
        }
    }

    void AddPages(QBoxLayout& to, const LayoutNode& node) {
        tabs_ = qobject_cast<QTabWidget*>(find_(node.name));
        for (const LayoutNode& child : node.children) {
            auto* page = new QWidget(tabs_);
            auto* rows = new QVBoxLayout(page);
            rows->setContentsMargins(PageMargins());
            onPage_ = true;
            for (const LayoutNode& element : child.children) Add(*rows, element);
            onPage_ = false;
            rows->addStretch(1);
            const int index = tabs_->addTab(page, ToQt(child.title).replace("&", "&&"));
            tabs_->setTabToolTip(index, QStringLiteral("Ctrl+Page Up, Ctrl+Page Down: the tab beside"));
        }
        to.addWidget(tabs_);
    }

    [[nodiscard]] QMargins PageMargins() const {
        const int line = form_.fontMetrics().lineSpacing();
        return {line * 2, line * 3 / 2, line * 2, line};
    }

    void AddColumns(QBoxLayout& to, const LayoutNode& node) {
        auto* columns = new QHBoxLayout;
        for (const LayoutNode& child : node.children) Add(*columns, child);
        to.addLayout(columns);
    }

    void AddRows(QBoxLayout& to, const LayoutNode& node) {
        auto* rows = new QVBoxLayout;
        for (const LayoutNode& child : node.children) Add(*rows, child);
        rows->addStretch(1);
        to.addLayout(rows);
    }

    void AddFrame(QBoxLayout& to, const LayoutNode& node) {
        QWidget* frame = find_(node.name);
        auto* rows = new QVBoxLayout(frame);
        const bool outer = std::exchange(onPage_, false);
        for (const LayoutNode& child : node.children) Add(*rows, child);
        onPage_ = outer;
        rows->addStretch(1);
        to.addWidget(frame);
    }

    /// The controls of a built screen, in its coarse grid of letters and rows.
    void AddPlaced(QBoxLayout& to) {
        auto* canvas = new QWidget(&form_);
        QSize extent(0, 0);
        for (const auto& control : model_.controls()) {
            if (!control->place) continue;
            QWidget* widget = find_(control->name);
            widget->setParent(canvas);
            widget->setGeometry(PlaceOf(*control, *widget));
            extent = extent.expandedTo({widget->geometry().right() + 1, widget->geometry().bottom() + 1});
        }
        canvas->setFixedSize(extent);
        to.addWidget(canvas);
    }

    [[nodiscard]] QRect PlaceOf(const Control& control, const QWidget& widget) const {
        const CoarsePlace& place = *control.place;
        const int letter = form_.fontMetrics().averageCharWidth();
        const int row = QLineEdit().sizeHint().height() + form_.fontMetrics().lineSpacing() / 4;
        const int text = form_.fontMetrics().horizontalAdvance(ToQt(control.text)) + 2 * letter;
        const int padding = control.IsButton() ? 6 * letter : 0;
        QSize size(place.width > 0.0 ? qRound(place.width * letter) : text + padding,
                   QLineEdit().sizeHint().height());
        if (place.height == 0.0) size.setHeight(kGridRows * row);
        size = size.expandedTo(widget.minimumSize());
        // A box ends where it says, also if it needs more room than it asks for.
        const double left =
            control.IsField() ? (place.x + place.width) * letter - size.width() : place.x * letter;
        return {QPoint(qRound(left), qRound((place.y - 1.0) * row)), size};
    }

    void AddTable(QBoxLayout& to, const LayoutNode& node) {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(3 * form_.fontMetrics().averageCharWidth());
        for (std::size_t row = 0; row < node.table.size(); ++row) {
            for (std::size_t column = 0; column < node.table[row].size(); ++column) {
                QWidget* cell = find_(TableCellName(node.name, row + 1, column + 1));
                const Qt::Alignment side = column == 0 ? Qt::AlignLeft : Qt::AlignRight;
                grid->addWidget(cell, static_cast<int>(row), static_cast<int>(column), side);
            }
        }
        to.addLayout(grid);
    }

    /// Label, box and unit, one field a row; the boxes of a group are of one width.
    void AddFields(QBoxLayout& to, const LayoutNode& node) {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(form_.fontMetrics().averageCharWidth());
        int width = 0;
        for (const FieldItem& field : node.fields) {
            QWidget* box = find_(field.Box());
            width = std::max({width, box->minimumWidth(), box->minimumSizeHint().width()});
        }
        for (std::size_t i = 0; i < node.fields.size(); ++i) {
            const FieldItem& field = node.fields[i];
            const int row = static_cast<int>(i);
            grid->addWidget(find_(field.Label()), row, 0);
            find_(field.Box())->setFixedWidth(width);
            grid->addWidget(find_(field.Box()), row, 1);
            if (!field.choice.empty()) grid->addWidget(find_(field.choice), row, 1);
            grid->addWidget(find_(field.Unit()), row, 2);
        }
        grid->setColumnMinimumWidth(kFieldColumns - 1,
                                    form_.fontMetrics().horizontalAdvance(QString(kUnitLetters, u'M')));
        grid->setColumnStretch(kFieldColumns - 1, 1);
        to.addLayout(grid);
    }

    /// A line of text is as wide as its least width; a list may grow with its entries.
    QWidget* FixedBox(const FieldItem& field) {
        QWidget* box = find_(field.Box());
        if (qobject_cast<QLineEdit*>(box) != nullptr) box->setFixedWidth(box->minimumWidth());
        return box;
    }

    /// Elements in rows and columns. What takes several rows stands at their top.
    void AddMatrix(QBoxLayout& to, const LayoutNode& node) {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(form_.fontMetrics().averageCharWidth());
        int columns = 0;
        for (const LayoutNode& element : node.children) {
            auto* cell = new QVBoxLayout;
            AddCell(*cell, element);
            const MatrixPlace& place = element.place;
            const Qt::Alignment side = place.rows > 1 ? Qt::AlignTop : Qt::Alignment();
            grid->addLayout(cell, place.row, place.column, place.rows, 1, side);
            columns = std::max(columns, place.column + 1);
        }
        SetRowsApart(*grid);
        grid->setColumnStretch(columns, 1);
        to.addLayout(grid);
    }

    /// An option stands in the line of the box beside it.
    void AddCell(QBoxLayout& cell, const LayoutNode& element) {
        if (element.kind != LayoutKind::Options) return Add(cell, element);
        for (const ButtonItem& option : element.buttons) cell.addWidget(find_(option.name));
    }

    /// A row without elements sets those around it apart.
    void SetRowsApart(QGridLayout& grid) {
        for (int row = 0; row < grid.rowCount(); ++row) {
            bool empty = true;
            for (int column = 0; column < grid.columnCount(); ++column) {
                empty = empty && grid.itemAtPosition(row, column) == nullptr;
            }
            if (empty) grid.setRowMinimumHeight(row, form_.fontMetrics().lineSpacing() / 2);
        }
    }

    void AddOptions(QBoxLayout& to, const LayoutNode& node) {
        for (const ButtonItem& option : node.buttons) to.addWidget(find_(option.name));
        to.addSpacing(form_.fontMetrics().lineSpacing() / 2);
    }

    /// Check boxes stand below the option that they belong to, further in.
    void AddChecks(QBoxLayout& to, const LayoutNode& node) {
        auto* rows = new QVBoxLayout;
        rows->setContentsMargins(form_.fontMetrics().lineSpacing() * 3 / 2, 0, 0, 0);
        for (const ButtonItem& box : node.buttons) rows->addWidget(find_(box.name));
        to.addLayout(rows);
    }

    void AddChoice(QBoxLayout& to, const LayoutNode& node) {
        auto* row = new QHBoxLayout;
        row->addWidget(find_(FieldLabelName(node.name)));
        row->addWidget(find_(node.name));
        row->addStretch(1);
        to.addLayout(row);
    }

    void AddHeading(QBoxLayout& to, const LayoutNode& node) {
        QWidget* heading = find_(node.name);
        QFont font = heading->font();
        font.setPointSizeF(font.pointSizeF() * kHeadingScale);
        heading->setFont(font);
        to.addWidget(heading);
    }

    void AddText(QBoxLayout& to, const LayoutNode& node) {
        auto* text = qobject_cast<QLabel*>(find_(node.name));
        text->setWordWrap(true);
        text->setFixedWidth(text->fontMetrics().averageCharWidth() * kParagraphLetters);
        to.addWidget(text);
    }

    /// Buttons inside a form stand at the left, but in a frame or column they share its width.
    void AddButtons(QBoxLayout& to, const LayoutNode& node) {
        auto* row = new QHBoxLayout;
        for (const ButtonItem& button : node.buttons) row->addWidget(find_(button.name));
        if (onPage_) row->addStretch(1);
        to.addLayout(row);
    }

    /// The form's own buttons stand at the right of its foot, all of one width.
    void AddFootButtons(QBoxLayout& to, const LayoutNode& node) {
        auto* row = new QHBoxLayout;
        row->addStretch(1);
        int width = 0;
        for (const ButtonItem& button : node.buttons) {
            width = std::max(width, find_(button.name)->sizeHint().width());
        }
        for (const ButtonItem& button : node.buttons) {
            find_(button.name)->setMinimumWidth(width);
            row->addWidget(find_(button.name));
        }
        to.addLayout(row);
    }

    const Form& model_;
    QWidget& form_;
    const WidgetFinder& find_;
    QTabWidget* tabs_ = nullptr;
    bool onPage_ = false;
};

}  // namespace

QTabWidget* LayOutForm(const Form& model, QWidget& form, const WidgetFinder& find) {
    LayoutMaker maker(model, form, find);
    maker.MakeRoot();
    return maker.tabs();
}

}  // namespace kelvor

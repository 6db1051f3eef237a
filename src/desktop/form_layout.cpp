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
#include <variant>

#include "desktop/control_widgets.h"
#include "desktop/qt_text.h"
#include "desktop/stack_view.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

/// Units of measure up to this many letters leave the columns where they are when the system changes.
constexpr int kUnitLetters = 6;
constexpr int kGridRows = 8;  // of a built screen, for its grid
constexpr int kParagraphLetters = 84;
constexpr double kStatementLetters = 36.0;  // about as wide as an indicator
constexpr int kFigureSpacing = 2;           // between the rows of a matrix of figures
constexpr double kHeadingScale = 2.4;

/// The columns of a group of fields.
enum FieldColumn { kLabelColumn, kBoxColumn, kUnitColumn, kButtonColumn };

class LayoutMaker {
  public:
    LayoutMaker(const Form& model, QWidget& form, const WidgetFinder& find)
        : model_(model), form_(form), find_(find) {}

    void MakeRoot() {
        const LayoutElement& layout = model_.type().layout;
        auto* root = new QVBoxLayout(&form_);
        if (const auto* rows = std::get_if<layout::Rows>(&layout.kind)) {
            AddElements(*root, rows->elements);
        } else {
            AddElement(*root, layout);
        }
        AddFoot(*root, Grows({layout}));
    }

    [[nodiscard]] QTabWidget* tabs() const { return tabs_; }

  private:
    void AddElement(QBoxLayout& to, const LayoutElement& element) {
        std::visit([&](const auto& kind) { Add(to, kind); }, element.kind);
    }

    void AddElements(QBoxLayout& to, const std::vector<LayoutElement>& elements) {
        for (const LayoutElement& element : elements) AddElement(to, element);
    }

    /// True if a table, a drawing or pages are among elements: these take the room that a user gives a form.
    static bool Grows(const std::vector<LayoutElement>& elements) {
        return std::any_of(elements.begin(), elements.end(), [](const LayoutElement& element) {
            return std::visit([](const auto& kind) { return Grows(kind); }, element.kind);
        });
    }
    static bool Grows(const layout::Grid& /*grid*/) { return true; }
    static bool Grows(const layout::Chart& /*chart*/) { return true; }
    static bool Grows(const layout::ReportView& /*pages*/) { return true; }
    static bool Grows(const layout::Columns& columns) { return Grows(columns.elements); }
    static bool Grows(const layout::Rows& rows) { return Grows(rows.elements); }
    static bool Grows(const layout::Frame& frame) { return Grows(frame.elements); }
    template <typename Other>
    static bool Grows(const Other& /*element*/) {
        return false;
    }

    // --- Elements with others inside them -----------------------------------------------------------

    void Add(QBoxLayout& to, const layout::Pages& strip) {
        tabs_ = qobject_cast<QTabWidget*>(find_(strip.name));
        for (const layout::Page& declared : strip.pages) {
            auto* page = new QWidget(tabs_);
            auto* rows = new QVBoxLayout(page);
            rows->setContentsMargins(PageMargins());
            onPage_ = true;
            AddElements(*rows, declared.elements);
            onPage_ = false;
            if (!Grows(declared.elements)) rows->addStretch(1);
            const int index = tabs_->addTab(page, ToQt(declared.title).replace("&", "&&"));
            tabs_->setTabToolTip(index, TranslatedText("Ctrl+Page Up, Ctrl+Page Down: the tab beside"));
        }
        to.addWidget(tabs_);
    }

    [[nodiscard]] QMargins PageMargins() const {
        const int line = form_.fontMetrics().lineSpacing();
        return {line * 2, line * 3 / 2, line * 2, line};
    }

    void Add(QBoxLayout& to, const layout::Columns& declared) {
        auto* columns = new QHBoxLayout;
        AddElements(*columns, declared.elements);
        to.addLayout(columns, Grows(declared.elements) ? 1 : 0);
    }

    void Add(QBoxLayout& to, const layout::Rows& declared) {
        auto* rows = new QVBoxLayout;
        AddElements(*rows, declared.elements);
        if (!Grows(declared.elements)) rows->addStretch(1);
        to.addLayout(rows, Grows(declared.elements) ? 1 : 0);
    }

    void Add(QBoxLayout& to, const layout::Frame& declared) {
        QWidget* frame = find_(declared.name);
        auto* rows = new QVBoxLayout(frame);
        const bool outer = std::exchange(onPage_, false);
        AddElements(*rows, declared.elements);
        onPage_ = outer;
        if (!Grows(declared.elements)) rows->addStretch(1);
        to.addWidget(frame, Grows(declared.elements) ? 1 : 0);
    }

    /// Elements in rows and columns. What takes several rows stands at their top.
    void Add(QBoxLayout& to, const layout::Matrix& matrix) {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(form_.fontMetrics().averageCharWidth());
        if (matrix.ofFigures) grid->setVerticalSpacing(kFigureSpacing);
        int columns = 0;
        for (const MatrixCell& place : matrix.cells) {
            auto* cell = new QVBoxLayout;
            AddCell(*cell, place.element);
            if (matrix.ofFigures && place.column > 0) AlignRight(*cell);
            const Qt::Alignment side = place.rows > 1 ? Qt::AlignTop : Qt::Alignment();
            grid->addLayout(cell, place.row, place.column, place.rows, 1, side);
            columns = std::max(columns, place.column + 1);
        }
        SetRowsApart(*grid);
        grid->setColumnStretch(columns, 1);
        to.addLayout(grid);
    }

    static void AlignRight(const QLayout& cell) {
        auto* label = qobject_cast<QLabel*>(cell.itemAt(0)->widget());
        if (label != nullptr) label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }

    /// An option stands in the line of the box beside it.
    void AddCell(QBoxLayout& cell, const LayoutElement& element) {
        const auto* options = std::get_if<layout::Options>(&element.kind);
        if (options == nullptr) return AddElement(cell, element);
        for (const ButtonItem& option : options->options) cell.addWidget(find_(option.name));
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

    /// The controls of a built screen, in its coarse grid of letters and rows.
    void Add(QBoxLayout& to, const layout::CoarseGrid& /*place*/) {
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

    // --- Fields ---------------------------------------------------------------------------------------

    /// Label, box, unit and small button, one field a row; the boxes of a group are of one width.
    void Add(QBoxLayout& to, const layout::Fields& group) {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(form_.fontMetrics().averageCharWidth());
        int width = 0;
        for (const FieldItem& field : group.fields) {
            QWidget* box = find_(field.Box());
            width = std::max({width, box->minimumWidth(), box->minimumSizeHint().width()});
        }
        int row = 0;
        for (const FieldItem& field : group.fields) {
            AddField(*grid, row++, field, width);
            if (AddTakeOverButton(*grid, row, field)) ++row;
        }
        grid->setColumnMinimumWidth(kUnitColumn,
                                    form_.fontMetrics().horizontalAdvance(QString(kUnitLetters, u'M')));
        grid->setColumnStretch(grid->columnCount() > kButtonColumn ? kButtonColumn + 1 : kUnitColumn, 1);
        to.addLayout(grid);
    }

    void AddField(QGridLayout& grid, int row, const FieldItem& field, int width) {
        grid.addWidget(find_(field.Label()), row, kLabelColumn);
        find_(field.Box())->setFixedWidth(width);
        grid.addWidget(find_(field.Box()), row, kBoxColumn);
        if (!field.choice.empty()) grid.addWidget(find_(field.choice), row, kBoxColumn);
        grid.addWidget(find_(field.Unit()), row, kUnitColumn);
        if (QWidget* button = FindSmallButton(WorkOutButtonName(field.variable), field)) {
            grid.addWidget(button, row, kButtonColumn);
        }
    }

    /// What a field may take over stands below it. False if there is never such a value.
    bool AddTakeOverButton(QGridLayout& grid, int row, const FieldItem& field) {
        QWidget* button = FindSmallButton(TakeOverButtonName(field.variable), field);
        if (button != nullptr) grid.addWidget(button, row, kBoxColumn, 1, 2, Qt::AlignLeft);
        return button != nullptr;
    }

    /// As high as the box that it belongs to; null if the field has none.
    QWidget* FindSmallButton(const std::string& name, const FieldItem& field) {
        const Control* button = model_.Find(name);
        if (button == nullptr || !button->IsSmallButton()) return nullptr;
        QWidget* widget = find_(name);
        widget->setFixedHeight(find_(field.Box())->sizeHint().height());
        return widget;
    }

    /// A line of text is as wide as its least width; a list may grow with its entries.
    void Add(QBoxLayout& to, const layout::BareBox& declared) {
        QWidget* box = find_(declared.field.Box());
        if (qobject_cast<QLineEdit*>(box) != nullptr) box->setFixedWidth(box->minimumWidth());
        to.addWidget(box);
    }

    void Add(QBoxLayout& to, const layout::DetachedLabel& label) { to.addWidget(find_(label.name)); }

    void Add(QBoxLayout& to, const layout::Choice& choice) {
        auto* row = new QHBoxLayout;
        row->addWidget(find_(FieldLabelName(choice.name)));
        row->addWidget(find_(choice.name));
        row->addStretch(1);
        to.addLayout(row);
    }

    void Add(QBoxLayout& /*to*/, const layout::Hidden& /*boxes*/) {}

    // --- Buttons --------------------------------------------------------------------------------------

    void Add(QBoxLayout& to, const layout::Options& group) {
        for (const ButtonItem& option : group.options) to.addWidget(find_(option.name));
        to.addSpacing(form_.fontMetrics().lineSpacing() / 2);
    }

    /// Check boxes stand below the option that they belong to, further in.
    void Add(QBoxLayout& to, const layout::Checks& group) {
        auto* rows = new QVBoxLayout;
        rows->setContentsMargins(form_.fontMetrics().lineSpacing() * 3 / 2, 0, 0, 0);
        for (const ButtonItem& box : group.boxes) rows->addWidget(find_(box.name));
        to.addLayout(rows);
    }

    /// Buttons inside a form stand at the left, but in a frame or column they share its width.
    void Add(QBoxLayout& to, const layout::Buttons& declared) {
        auto* row = new QHBoxLayout;
        for (const ButtonItem& button : declared.buttons) row->addWidget(find_(button.name));
        if (onPage_) row->addStretch(1);
        to.addLayout(row);
    }

    /// The form's own buttons stand at the right of its foot, all of one width.
    void AddFoot(QBoxLayout& to, bool grows) {
        const std::vector<ButtonItem>& foot = model_.type().foot;
        if (foot.empty()) return;
        if (!grows) to.addStretch(1);
        auto* row = new QHBoxLayout;
        row->addStretch(1);
        int width = 0;
        for (const ButtonItem& button : foot) width = std::max(width, find_(button.name)->sizeHint().width());
        for (const ButtonItem& button : foot) {
            find_(button.name)->setMinimumWidth(width);
            row->addWidget(find_(button.name));
        }
        to.addLayout(row);
    }

    // --- What is shown --------------------------------------------------------------------------------

    void Add(QBoxLayout& to, const layout::Heading& line) {
        QWidget* heading = find_(line.name);
        QFont font = heading->font();
        font.setPointSizeF(font.pointSizeF() * kHeadingScale);
        heading->setFont(font);
        to.addWidget(heading);
    }

    void Add(QBoxLayout& to, const layout::Text& paragraph) {
        auto* text = qobject_cast<QLabel*>(find_(paragraph.name));
        text->setWordWrap(true);
        text->setFixedWidth(text->fontMetrics().averageCharWidth() * kParagraphLetters);
        to.addWidget(text);
    }

    void Add(QBoxLayout& to, const layout::Caption& line) { to.addWidget(find_(line.name)); }
    void Add(QBoxLayout& to, const layout::Statement& statement) {
        auto* label = qobject_cast<QLabel*>(find_(statement.name));
        const double letters = statement.letters > 0.0 ? statement.letters : kStatementLetters;
        label->setWordWrap(true);
        label->setFixedWidth(qRound(label->fontMetrics().averageCharWidth() * letters));
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label->setProperty(kLeastLinesProperty, statement.lines);
        to.addWidget(label);
    }

    void Add(QBoxLayout& to, const layout::Verdict& line) { to.addWidget(find_(line.name)); }
    void Add(QBoxLayout& to, const layout::Indicator& indicator) { to.addWidget(find_(indicator.name)); }
    void Add(QBoxLayout& to, const layout::Picture& picture) { to.addWidget(find_(picture.name)); }
    void Add(QBoxLayout& to, const layout::Grid& grid) { to.addWidget(find_(grid.name), 1); }
    void Add(QBoxLayout& to, const layout::Chart& chart) { to.addWidget(find_(chart.name), 1); }

    void Add(QBoxLayout& to, const layout::ReportView& pages) { to.addWidget(find_(pages.name), 1); }

    void Add(QBoxLayout& to, const layout::Stack& stack) {
        to.addWidget(new StackView(model_, stack, find_, &form_));
    }

    void Add(QBoxLayout& to, const layout::Table& table) {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(3 * form_.fontMetrics().averageCharWidth());
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            for (std::size_t column = 0; column < table.rows[row].size(); ++column) {
                QWidget* cell = find_(TableCellName(table.name, row + 1, column + 1));
                const Qt::Alignment side = column == 0 ? Qt::AlignLeft : Qt::AlignRight;
                grid->addWidget(cell, static_cast<int>(row), static_cast<int>(column), side);
            }
        }
        to.addLayout(grid);
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

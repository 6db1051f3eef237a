#include "desktop/form_layout.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
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
constexpr int kParagraphLetters = 60;
constexpr double kHeadingScale = 2.4;

class LayoutMaker {
  public:
    LayoutMaker(QWidget& form, const WidgetFinder& find) : form_(form), find_(find) {}

    void MakeRoot(const LayoutNode& layout) {
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
                AddPages(to, node);
                break;
            case LayoutKind::Columns:
                AddColumns(to, node);
                break;
            case LayoutKind::Rows:
                AddRows(to, node);
                break;
            case LayoutKind::Frame:
                AddFrame(to, node);
                break;
            case LayoutKind::Fields:
                AddFields(to, node);
                break;
            case LayoutKind::Options:
                AddOptions(to, node);
                break;
            case LayoutKind::Heading:
                AddHeading(to, node);
                break;
            case LayoutKind::Text:
                AddText(to, node);
                break;
            case LayoutKind::Checks:
                AddChecks(to, node);
                break;
            case LayoutKind::Choice:
                AddChoice(to, node);
                break;
            case LayoutKind::Picture:
            case LayoutKind::Verdict:
            case LayoutKind::Indicator:
                to.addWidget(find_(node.name));
                break;
            case LayoutKind::Grid:
                to.addWidget(find_(node.name), 1);
                break;
            case LayoutKind::Buttons:
                AddButtons(to, node);
                break;
            case LayoutKind::Hidden:
                break;
        }
    }

    void AddPages(QBoxLayout& to, const LayoutNode& node) {
        tabs_ = new QTabWidget(&form_);
        tabs_->setFocusPolicy(Qt::NoFocus);
        tabs_->tabBar()->setFocusPolicy(Qt::NoFocus);
        tabs_->setUsesScrollButtons(false);
        tabs_->setElideMode(Qt::ElideNone);
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

    /// Label, box and unit, one field a row; the boxes of a group are of one width.
    void AddFields(QBoxLayout& to, const LayoutNode& node) {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(form_.fontMetrics().averageCharWidth());
        int width = 0;
        for (const FieldItem& field : node.fields) {
            QWidget* box = find_(field.variable);
            width = std::max({width, box->minimumWidth(), box->minimumSizeHint().width()});
        }
        for (std::size_t i = 0; i < node.fields.size(); ++i) {
            const int row = static_cast<int>(i);
            const std::string& variable = node.fields[i].variable;
            grid->addWidget(find_(FieldLabelName(variable)), row, 0);
            QWidget* box = find_(variable);
            box->setFixedWidth(width);
            grid->addWidget(box, row, 1);
            grid->addWidget(find_(UnitLabelName(variable)), row, 2);
        }
        grid->setColumnMinimumWidth(kFieldColumns - 1,
                                    form_.fontMetrics().horizontalAdvance(QString(kUnitLetters, u'M')));
        grid->setColumnStretch(kFieldColumns - 1, 1);
        to.addLayout(grid);
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
        text->setMinimumWidth(text->fontMetrics().averageCharWidth() * kParagraphLetters);
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

    QWidget& form_;
    const WidgetFinder& find_;
    QTabWidget* tabs_ = nullptr;
    bool onPage_ = false;
};

}  // namespace

QTabWidget* LayOutForm(const LayoutNode& layout, QWidget& form, const WidgetFinder& find) {
    LayoutMaker maker(form, find);
    maker.MakeRoot(layout);
    return maker.tabs();
}

}  // namespace kelvor

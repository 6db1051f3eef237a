#include "desktop/preview/page_tools.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>
#include <functional>

#include "desktop/qt_text.h"

namespace kelvor {

PageTools::PageTools(PageBrowser& browser, QWidget* parent) : QWidget(parent), browser_(browser) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    Add({"PageBack", "<", "Previous page", "Ctrl+PgUp"}, [this] { browser_.GoTo(browser_.page() - 1); });
    page_ = AddLabel("PageNumber", QStringLiteral("Page 000 of 000"));
    Add({"PageOn", ">", "Next page", "Ctrl+PgDown"}, [this] { browser_.GoTo(browser_.page() + 1); });
    row->addStretch();
    Add({"ZoomOut", "-", "Smaller", "Ctrl+-"}, [this] { browser_.StepZoom(-1); });
    zoom_ = AddLabel("Zoom", QStringLiteral("000 %"));
    Add({"ZoomIn", "+", "Larger", "Ctrl++"}, [this] { browser_.StepZoom(1); });
    Add({"FitWidth", "Fit Width", "As wide as the window", "Ctrl+0"}, [this] { browser_.FitWidth(); });
    row->addStretch();
    AddSearch();
    row->addStretch();
    Add({"PageSetup", "Page Setup...", "Paper and margins", "Ctrl+Shift+P"}, [this] { onSetup(); });
    Add({"SaveReport", "Save As...", "Save as PDF, RTF, HTML or text", "Ctrl+E"}, [this] { onSave(); });
    AddScrollKeys();
    browser_.onMoved = [this] { ShowState(); };
    ShowState();
}

template <typename Act>
void PageTools::Add(const Tool& tool, Act act) {
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(tool.name));
    button->setText(QLatin1String(tool.caption));
    button->setAccessibleName(QLatin1String(tool.meaning));
    button->setToolTip(QStringLiteral("%1 (%2)").arg(QLatin1String(tool.meaning), QLatin1String(tool.keys)));
    // The model moves the focus; the keys of the tools work from everywhere.
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, act);
    AddKeys(tool.keys, act);
    layout()->addWidget(button);
}

void PageTools::AddKeys(const char* keys, const std::function<void()>& act) {
    auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), this);
    connect(shortcut, &QShortcut::activated, this, act);
}

QLabel* PageTools::AddLabel(const char* name, const QString& widest) {
    auto* label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(widest));
    layout()->addWidget(label);
    return label;
}

void PageTools::AddSearch() {
    search_ = new SearchLine(this);
    search_->setObjectName(QStringLiteral("FindWords"));
    search_->setToolTip(QStringLiteral("Find words on the pages (Ctrl+F)"));
    layout()->addWidget(search_);
    Add({"FindBack", "Back", "Where the words stand before", "Shift+F3"}, [this] {
        browser_.StepHit(-1);
        ShowState();
    });
    Add({"FindOn", "Next", "Where the words stand next", "F3"}, [this] {
        browser_.StepHit(1);
        ShowState();
    });
    found_ = AddLabel("Found", QStringLiteral("000 of 000"));
    AddKeys("Ctrl+F", [this] {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    });
    connect(search_, &SearchLine::textChanged, this, &PageTools::Search);
    search_->onStep = [this](int direction) {
        browser_.StepHit(direction);
        ShowState();
    };
    search_->onLeave = [this] { onLeave(); };
}

void PageTools::AddScrollKeys() {
    const auto scroll = [this](QAbstractSlider::SliderAction action) {
        return [this, action] { browser_.verticalScrollBar()->triggerAction(action); };
    };
    AddKeys("PgUp", scroll(QAbstractSlider::SliderPageStepSub));
    AddKeys("PgDown", scroll(QAbstractSlider::SliderPageStepAdd));
    AddKeys("Ctrl+Up", scroll(QAbstractSlider::SliderSingleStepSub));
    AddKeys("Ctrl+Down", scroll(QAbstractSlider::SliderSingleStepAdd));
    AddKeys("Ctrl+Home", [this] { browser_.GoTo(0); });
    AddKeys("Ctrl+End", [this] { browser_.GoTo(static_cast<int>(browser_.Count()) - 1); });
    AddKeys("Ctrl+=", [this] { browser_.StepZoom(1); });
    AddKeys("Ctrl+1", [this] { browser_.SetZoom(100); });
}

void PageTools::Renew() { Search(); }

void PageTools::Search() {
    hits_ = browser_.Search(FromQt(search_->text()));
    ShowState();
}

void PageTools::ShowState() {
    page_->setText(QStringLiteral("Page %1 of %2").arg(browser_.page() + 1).arg(browser_.Count()));
    zoom_->setText(QStringLiteral("%1 %").arg(browser_.zoom()));
    const bool isEmpty = search_ == nullptr || search_->text().isEmpty();
    if (found_ == nullptr) return;
    found_->setText(isEmpty ? QString() : QStringLiteral("%1 of %2").arg(browser_.hit()).arg(hits_));
}

}  // namespace kelvor

#include "desktop/preview/page_tools.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>
#include <functional>

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

const QString kWidestNumber = QStringLiteral("000");

}  // namespace

PageTools::PageTools(PageBrowser& browser, QWidget* parent) : QWidget(parent), browser_(browser) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    Add({"PageBack", "<", ToTranslate("Previous page"), KeyAct::PageBack},
        [this] { browser_.GoTo(browser_.page() - 1); });
    page_ = AddLabel("PageNumber", TranslatedText("Page %1 of %2").arg(kWidestNumber, kWidestNumber));
    Add({"PageOn", ">", ToTranslate("Next page"), KeyAct::PageOn},
        [this] { browser_.GoTo(browser_.page() + 1); });
    row->addStretch();
    Add({"ZoomOut", "-", ToTranslate("Smaller"), KeyAct::ZoomOut}, [this] { browser_.StepZoom(-1); });
    zoom_ = AddLabel("Zoom", QStringLiteral("000 %"));
    Add({"ZoomIn", "+", ToTranslate("Larger"), KeyAct::ZoomIn}, [this] { browser_.StepZoom(1); });
    Add({"FitWidth", ToTranslate("Fit Width"), ToTranslate("As wide as the window"), KeyAct::FitWidth},
        [this] { browser_.FitWidth(); });
    row->addStretch();
    AddSearch();
    row->addStretch();
    Add({"PageSetup", ToTranslate("Page Setup..."), ToTranslate("Paper and margins"), KeyAct::PageSetup},
        [this] { onSetup(); });
    Add({"SaveReport", ToTranslate("Save As..."), ToTranslate("Save as PDF, RTF, HTML or text"),
         KeyAct::SaveReport},
        [this] { onSave(); });
    AddScrollKeys();
    browser_.onMoved = [this] { ShowState(); };
    ShowState();
}

template <typename Act>
void PageTools::Add(const Tool& tool, Act act) {
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(tool.name));
    button->setText(TranslatedText(tool.caption));
    button->setAccessibleName(TranslatedText(tool.meaning));
    button->setToolTip(QStringLiteral("%1 (%2)").arg(TranslatedText(tool.meaning), ShownKeyOf(tool.key)));
    // The model moves the focus; the keys of the tools work from everywhere.
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, act);
    AddKeys(tool.key, act);
    layout()->addWidget(button);
}

void PageTools::AddKey(const QKeySequence& key, const std::function<void()>& act) {
    auto* shortcut = new QShortcut(key, this);
    connect(shortcut, &QShortcut::activated, this, act);
}

void PageTools::AddKeys(KeyAct keys, const std::function<void()>& act) {
    for (const QKeySequence& key : KeysOf(keys)) AddKey(key, act);
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
    search_->setToolTip(TranslatedText("Find words on the pages") +
                        QStringLiteral(" (%1)").arg(ShownKeyOf(KeyAct::FindWords)));
    layout()->addWidget(search_);
    Add({"FindBack", ToTranslate("Back"), ToTranslate("Where the words stand before"), KeyAct::FindBack},
        [this] {
            browser_.StepHit(-1);
            ShowState();
        });
    Add({"FindOn", ToTranslate("Next"), ToTranslate("Where the words stand next"), KeyAct::FindOn}, [this] {
        browser_.StepHit(1);
        ShowState();
    });
    found_ = AddLabel("Found", TranslatedText("%1 of %2").arg(kWidestNumber, kWidestNumber));
    AddKeys(KeyAct::FindWords, [this] {
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
    AddKey(Qt::Key_PageUp, scroll(QAbstractSlider::SliderPageStepSub));
    AddKey(Qt::Key_PageDown, scroll(QAbstractSlider::SliderPageStepAdd));
    AddKey(Qt::CTRL | Qt::Key_Up, scroll(QAbstractSlider::SliderSingleStepSub));
    AddKey(Qt::CTRL | Qt::Key_Down, scroll(QAbstractSlider::SliderSingleStepAdd));
    AddKeys(KeyAct::FirstPage, [this] { browser_.GoTo(0); });
    AddKeys(KeyAct::LastPage, [this] { browser_.GoTo(static_cast<int>(browser_.Count()) - 1); });
    AddKeys(KeyAct::FullSize, [this] { browser_.SetZoom(100); });
}

void PageTools::Renew() { Search(); }

void PageTools::Search() {
    hits_ = browser_.Search(FromQt(search_->text()));
    ShowState();
}

void PageTools::ShowState() {
    page_->setText(TranslatedText("Page %1 of %2").arg(browser_.page() + 1).arg(browser_.Count()));
    zoom_->setText(QStringLiteral("%1 %").arg(browser_.zoom()));
    const bool isEmpty = search_ == nullptr || search_->text().isEmpty();
    if (found_ == nullptr) return;
    found_->setText(isEmpty ? QString() : TranslatedText("%1 of %2").arg(browser_.hit()).arg(hits_));
}

}  // namespace kelvor

#include "desktop/window_actions.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <span>
#include <utility>

#include "desktop/copy_result.h"
#include "desktop/key_table.h"
#include "desktop/qt_text.h"
#include "desktop/start_page.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

/// What the widget with the focus does at Ctrl and a letter.
void PressOnFocus(Qt::Key key) {
    QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr) return;
    QKeyEvent press(QEvent::KeyPress, key, Qt::ControlModifier);
    QApplication::sendEvent(focus, &press);
}

/// What the Menu key does, which many keyboards lack.
void OpenContextMenu() {
    QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr) return;
    const QPoint place = focus->rect().center();
    QContextMenuEvent request(QContextMenuEvent::Keyboard, place, focus->mapToGlobal(place));
    QApplication::sendEvent(focus, &request);
}

/// An entry of the menus as the tool bar calls it.
struct ToolEntry {
    const char* name;     // empty: a gap
    const char* caption;  // short, since it has no picture
};

constexpr ToolEntry kFileTools[] = {{"NewProj", ToTranslate("New")},
                                    {"MenuFileOpen", ToTranslate("Open")},
                                    {"MenuFileSave", ToTranslate("Save")},
                                    {"", ""},
                                    {"MenuEditUndo", ToTranslate("Undo")},
                                    {"MenuEditRedo", ToTranslate("Redo")},
                                    {"", ""}};
constexpr ToolEntry kOtherTools[] = {{"", ""},
                                     {"MenuFilePrint", ToTranslate("Print")},
                                     {"", ""},
                                     {"MenuUnitsEnglish", ToTranslate("English")},
                                     {"MenuUnitsMetric", ToTranslate("Metric")},
                                     {"", ""}};

void AddTools(QToolBar& bar, MenuBar& menus, std::span<const ToolEntry> entries) {
    for (const ToolEntry& entry : entries) {
        QAction* action = menus.FindAction(entry.name, 0);
        if (action == nullptr) {
            bar.addSeparator();
            continue;
        }
        action->setIconText(TranslatedText(entry.caption));
        bar.addAction(action);
    }
}

}  // namespace

WindowActions::WindowActions(EventDoor& door, MenuBar& menus, HubCompany& company, QMainWindow& window)
    : door_(door), window_(window), bar_(new QToolBar(TranslatedText("Tool Bar"), &window)) {
    bar_->setObjectName(QStringLiteral("ToolBar"));
    bar_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    bar_->setMovable(false);
    overview_ = new QAction(TranslatedText("&Overview"), &window);
    overview_->setObjectName(QStringLiteral("ViewOverview"));
    overview_->setCheckable(true);
    overview_->setChecked(true);
    overview_->setShortcuts(KeysOf(KeyAct::ShowOverview));
    QObject::connect(overview_, &QAction::toggled, &window,
                     [&company](bool wanted) { company.ShowOverview(wanted); });
    own_.push_back(overview_);
    auto* contextMenu = new QShortcut(KeysOf(KeyAct::ContextMenu).constFirst(), &window);
    QObject::connect(contextMenu, &QShortcut::activated, &window, OpenContextMenu);
    FillEditMenu(*menus.FindMenu("MenuEdit"));
    FillViewMenu(*menus.AddMenuBefore(TranslatedText("&View"), "MenuView", "MenuWindow"));
    FillSamples(*menus.FindMenu("MenuHelp"), company);
    FillToolBar(menus);
    window.addToolBar(bar_);
    bar_->setContextMenuPolicy(Qt::PreventContextMenu);
}

QAction* WindowActions::AddKey(QMenu& menu, const QString& caption, Qt::Key key) {
    // The key is shown and not bound: what has the focus takes it by itself.
    const QString shown = QKeySequence(QKeyCombination(Qt::ControlModifier, key)).toString();
    QAction* action = menu.addAction(caption + u'\t' + shown, &menu, [key] { PressOnFocus(key); });
    own_.push_back(action);
    return action;
}

void WindowActions::FillEditMenu(QMenu& menu) {
    menu.addSeparator();
    cut_ = AddKey(menu, TranslatedText("Cu&t"), Qt::Key_X);
    copy_ = AddKey(menu, TranslatedText("&Copy"), Qt::Key_C);
    paste_ = AddKey(menu, TranslatedText("&Paste"), Qt::Key_V);
    menu.addSeparator();
    const std::pair<KeyAct, QString (*)(Program&, Form&)> results[] = {{KeyAct::CopyValue, ValueOfFocus},
                                                                       {KeyAct::CopyScreen, TableOfScreen}};
    const char* const captions[] = {ToTranslate("Copy &Value with Unit"),
                                    ToTranslate("Copy &Screen as Table")};
    const char* const names[] = {"EditCopyValue", "EditCopyScreen"};
    for (int i = 0; i < 2; ++i) {
        QAction* action = menu.addAction(TranslatedText(captions[i]), &menu,
                                         [this, text = results[i].second] { CopyOf(text); });
        action->setObjectName(QString::fromLatin1(names[i]));
        action->setShortcuts(KeysOf(results[i].first));
        own_.push_back(action);
    }
}

void WindowActions::CopyOf(QString (*text)(Program& program, Form& form)) {
    Form* form = door_.program().state().formRegistry.CurrentForm;
    if (form == nullptr || door_.busy()) return;
    const QString copied = text(door_.program(), *form);
    if (!copied.isEmpty()) QApplication::clipboard()->setText(copied);
}

void WindowActions::FillViewMenu(QMenu& menu) {
    menu.addAction(overview_);
    QAction* bar = bar_->toggleViewAction();
    bar->setObjectName(QStringLiteral("ViewToolBar"));
    bar->setText(TranslatedText("&Tool Bar"));
    menu.addAction(bar);
}

void WindowActions::FillSamples(QMenu& menu, HubCompany& company) {
    QMenu* samples = menu.addMenu(TranslatedText("&Samples"));
    samples->setObjectName(QStringLiteral("MenuSamples"));
    for (const std::string& path : company.Samples()) {
        QAction* action =
            samples->addAction(SampleTitle(path), samples, [&company, path] { company.OpenSample(path); });
        own_.push_back(action);
    }
    samples->setEnabled(!samples->isEmpty());
}

void WindowActions::FillToolBar(MenuBar& menus) {
    AddTools(*bar_, menus, kFileTools);
    cut_->setIconText(TranslatedText("Cut"));
    copy_->setIconText(TranslatedText("Copy"));
    paste_->setIconText(TranslatedText("Paste"));
    bar_->addActions({cut_, copy_, paste_});
    AddTools(*bar_, menus, kOtherTools);
    bar_->addAction(overview_);
    if (QAction* help = menus.FindAction("MenuTopics", 0)) {
        help->setIconText(TranslatedText("Help"));
        bar_->addAction(help);
    }
    // A click on the bar leaves the focus in its field.
    for (QWidget* button : bar_->findChildren<QWidget*>()) button->setFocusPolicy(Qt::NoFocus);
}

void WindowActions::SetEnabled(bool enabled) {
    bar_->setEnabled(enabled);
    for (QAction* action : own_) action->setEnabled(enabled);
}

}  // namespace kelvor

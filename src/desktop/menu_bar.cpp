#include "desktop/menu_bar.h"

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"
#include "forms/layout.h"

namespace kelvor {

namespace {

const char* const kWindowMenu = "MenuWindow";

/// A path of more letters is shortened in its middle.
constexpr int kLettersOfPath = 70;

QString ActionName(const MenuEntry& entry) {
    return ToQt(entry.name) + (entry.index == 0 ? QString() : QString::number(entry.index));
}

}  // namespace

MenuBar::MenuBar(EventDoor& door, QWidget* parent) : QMenuBar(parent), door_(door) {
    std::vector<QMenu*> menus;
    for (const MenuTitle& title : MenuTitles()) {
        menus.push_back(AddMenu(title));
        if (title.name == kWindowMenu) windowMenu_ = menus.back();
    }
    for (const MenuEntry& entry : door_.program().Menus()) {
        auto* menu = findChild<QMenu*>(ToQt(entry.menu));
        actions_.push_back(AddEntry(*menu, entry));
    }
    connect(windowMenu_, &QMenu::aboutToShow, this, &MenuBar::FillWindowMenu);
}

QMenu* MenuBar::FindMenu(const char* name) const { return findChild<QMenu*>(QString::fromLatin1(name)); }

QMenu* MenuBar::AddMenuBefore(const QString& caption, const char* name, const char* before) {
    auto* menu = new QMenu(caption, this);
    menu->setObjectName(QString::fromLatin1(name));
    insertMenu(FindMenu(before)->menuAction(), menu);
    return menu;
}

QMenu* MenuBar::AddMenu(const MenuTitle& title) {
    QMenu* menu = addMenu(ToQt(title.caption));
    menu->setObjectName(ToQt(title.name));
    menu->setToolTipsVisible(true);
    return menu;
}

QAction* MenuBar::AddEntry(QMenu& menu, const MenuEntry& entry) {
    if (entry.IsSeparator()) return menu.addSeparator();
    if (entry.opensMenu) return AddSubmenu(menu, entry);
    QAction* action = menu.addAction(ToQt(entry.caption));
    action->setObjectName(ActionName(entry));
    action->setCheckable(entry.checkable);
    if (!entry.shortcut.empty()) action->setShortcuts(QKeySequence::listFromString(ToQt(entry.shortcut)));
    connect(action, &QAction::triggered, this, [this, name = entry.name, index = entry.index] {
        door_.Raise({UserEvent::Kind::Menu, name, {}, index});
        Sync();
    });
    return action;
}

QAction* MenuBar::AddSubmenu(QMenu& menu, const MenuEntry& entry) {
    QMenu* submenu = menu.addMenu(ToQt(entry.caption));
    submenu->setObjectName(ToQt(entry.name));
    submenu->setToolTipsVisible(true);
    return submenu->menuAction();
}

void MenuBar::FillWindowMenu() {
    windowMenu_->clear();
    const FormRegistry& forms = door_.program().state().formRegistry;
    int number = 0;
    for (const Form* form : forms.InOpeningOrder()) {
        const QString caption = ToQt(form->caption).replace("&", "&&");
        QAction* action = windowMenu_->addAction(QStringLiteral("&%1 %2").arg(++number).arg(caption));
        action->setObjectName(ToQt(form->name()));
        action->setCheckable(true);
        action->setChecked(form == forms.CurrentForm);
        connect(action, &QAction::triggered, this, [this, name = form->name()] {
            door_.Raise({UserEvent::Kind::ActivateForm, name, {}, 0});
        });
    }
}

void MenuBar::Sync() {
    const std::vector<MenuEntry> entries = door_.program().Menus();
    for (std::size_t i = 0; i < entries.size(); ++i) SyncEntry(*actions_[i], entries[i]);
}

void MenuBar::SyncEntry(QAction& action, const MenuEntry& entry) {
    action.setVisible(entry.visible);
    if (entry.IsSeparator()) return;
    action.setText(CaptionOf(entry));
    action.setToolTip(ToQt(entry.toolTip));
    action.setEnabled(entry.enabled);
    action.setChecked(entry.checked);
}

QString MenuBar::CaptionOf(const MenuEntry& entry) const {
    const int room = kLettersOfPath * fontMetrics().averageCharWidth();
    // The end of a path is its name; of kept work the date comes first, and most at the start.
    const auto side = entry.name == kRecoverEntry ? Qt::ElideRight : Qt::ElideMiddle;
    return fontMetrics().elidedText(ToQt(entry.caption), side, room, Qt::TextShowMnemonic);
}

QAction* MenuBar::FindAction(const std::string& name, int index) const {
    if (name.empty()) return nullptr;
    MenuEntry entry;
    entry.name = name;
    entry.index = index;
    const QString wanted = ActionName(entry);
    for (QAction* action : findChildren<QAction*>()) {
        if (action->objectName().compare(wanted, Qt::CaseInsensitive) == 0) return action;
    }
    return nullptr;
}

QAction* MenuBar::FindWindowAction(const std::string& form) const {
    return windowMenu_->findChild<QAction*>(ToQt(form));
}

}  // namespace kelvor

#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <string>
#include <vector>

#include "desktop/event_door.h"

namespace kelvor {

/// The menus of the main window. They mirror what the program says of its entries.
class MenuBar : public QMenuBar {
  public:
    MenuBar(EventDoor& door, QWidget* parent);

    /// Shows what the entries hold now.
    void Sync();

    /// The action of an entry; null if there is none of that name.
    [[nodiscard]] QAction* FindAction(const std::string& name, int index) const;

    /// The entry of the Window menu for an open form; null if it is not open.
    [[nodiscard]] QAction* FindWindowAction(const std::string& form) const;

    /// A menu of the program, by its name; null if there is none.
    [[nodiscard]] QMenu* FindMenu(const char* name) const;

    /// A menu of the windows' own, before another one.
    QMenu* AddMenuBefore(const QString& caption, const char* name, const char* before);

  private:
    QMenu* AddMenu(const MenuTitle& title);
    QAction* AddEntry(QMenu& menu, const MenuEntry& entry);
    static QAction* AddSubmenu(QMenu& menu, const MenuEntry& entry);
    void FillWindowMenu();
    void SyncEntry(QAction& action, const MenuEntry& entry);
    [[nodiscard]] QString CaptionOf(const MenuEntry& entry) const;

    EventDoor& door_;
    QMenu* windowMenu_ = nullptr;
    std::vector<QAction*> actions_;  // in the order of the entries
};

}  // namespace kelvor

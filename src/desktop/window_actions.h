#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <vector>

#include "desktop/event_door.h"
#include "desktop/hub_company.h"
#include "desktop/menu_bar.h"

namespace kelvor {

/// The acts that the windows have beside those of the program: the clipboard, what is shown, the samples.
/// They stand in the menus, and the frequent ones with those of the program in the tool bar.
class WindowActions {
  public:
    WindowActions(EventDoor& door, MenuBar& menus, HubCompany& company, QMainWindow& window);

    /// Shows or hides the overview, as the user's choice.
    [[nodiscard]] QAction& overview() { return *overview_; }

    /// While a form is in front that keeps the user from all others, none of them works.
    void SetEnabled(bool enabled);

  private:
    void FillEditMenu(QMenu& menu);
    void FillViewMenu(QMenu& menu);
    void FillSamples(QMenu& menu, HubCompany& company);
    void FillToolBar(MenuBar& menus);
    QAction* AddKey(QMenu& menu, const QString& caption, Qt::Key key);
    void CopyOf(QString (*text)(Program& program, Form& form));

    EventDoor& door_;
    QMainWindow& window_;
    QToolBar* bar_;
    QAction* overview_ = nullptr;
    QAction* cut_ = nullptr;
    QAction* copy_ = nullptr;
    QAction* paste_ = nullptr;
    std::vector<QAction*> own_;
};

}  // namespace kelvor

#pragma once

#include <QPointer>
#include <QSize>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "desktop/event_door.h"
#include "desktop/form_view.h"
#include "desktop/menu_bar.h"
#include "desktop/overview_panel.h"
#include "desktop/start_page.h"

namespace kelvor {

/// What stands on the hub beside the tabs that the program declares: the overview of the project, and the
/// start page beside the drawing.
class HubCompany {
  public:
    HubCompany(EventDoor& door, MenuBar& menus) : door_(door), menus_(menus) {}

    /// Joins the hub when its window is made.
    void Join(FormView& hub);

    /// Shows how the project stands; what has not changed since is not worked out again.
    void Sync();

    /// Hides the overview where the window has no room for it beside the tabs.
    void Arrange(QSize room);

    /// Whether the user wants the overview.
    void ShowOverview(bool wanted);
    [[nodiscard]] bool overviewWanted() const { return wanted_; }

    /// Called when the user shows or hides the overview and the window has no room for it.
    std::function<void()> whenNoRoom;

    /// Null before the hub is open.
    [[nodiscard]] OverviewPanel* overview() const { return overview_; }

    /// The files of the samples, by name.
    [[nodiscard]] std::vector<std::string> Samples() const;

    void OpenSample(const std::string& path);

  private:
    /// What the overview depends on.
    struct Stamp {
        int project = -1;
        int lastChange = 0;
        bool open = false;
        bool metric = false;

        bool operator==(const Stamp& other) const = default;
    };

    [[nodiscard]] Stamp StampNow() const;
    [[nodiscard]] StartPageHooks Hooks();
    [[nodiscard]] std::vector<RecentProject> RecentProjects() const;
    [[nodiscard]] bool HasRoom() const;
    void SyncOverview();
    void BeginProject();
    void Trigger(const char* entry, int index);

    EventDoor& door_;
    MenuBar& menus_;
    QPointer<FormView> hub_;
    QPointer<OverviewPanel> overview_;
    QPointer<StartPage> start_;
    Stamp shown_;
    QSize room_;
    bool wanted_ = true;
};

}  // namespace kelvor

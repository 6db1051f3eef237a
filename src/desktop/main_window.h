#pragma once

#include <string>

#include <QHash>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QTimer>
#include <memory>

#include "desktop/event_door.h"
#include "desktop/form_view.h"
#include "desktop/hub_company.h"
#include "desktop/menu_bar.h"
#include "desktop/window_actions.h"
#include "desktop/window_settings.h"
#include "desktop/window_status.h"

namespace kelvor {

/// The name of a property of a form's frame: the size that it was given when it was placed.
inline constexpr const char* kPlacedSizeProperty = "kelvorPlacedSize";

/// The main window: the menus, the open forms as child windows, and a line that says what the field in focus
/// wants. All of it mirrors the model.
class MainWindow : public QMainWindow {
  public:
    explicit MainWindow(Program& program);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow() override;

    [[nodiscard]] EventDoor& door() { return door_; }

    /// How large the window would be on a screen that has the room.
    [[nodiscard]] QSize StartSize() const;

    /// Brings the windows in step with the model.
    void Sync();

    /// Opens a project that a second start has handed over, once no box or menu is up, and comes to the
    /// front.
    void OpenHandedOver(const std::string& project);

    /// The window of an open form; null if it is not open.
    [[nodiscard]] FormView* FindView(const std::string& form) const;

    /// The window of the form in which the user works; null if there is none.
    [[nodiscard]] FormView* CurrentView() const;

    /// The action of a menu entry; null if there is none of that name.
    [[nodiscard]] QAction* FindAction(const std::string& name, int index = 0) const;

    /// The entry of the Window menu for an open form; null if it is not open.
    [[nodiscard]] QAction* FindWindowAction(const std::string& form) const;

    /// The overview and the start page that stand on the hub.
    [[nodiscard]] HubCompany& company() { return *company_; }

    /// True once the program was stopped by its own rules, and why.
    [[nodiscard]] const std::string& stopReason() const { return stopReason_; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void SyncForms();
    void SyncModality();
    void SyncActiveWindow();
    void SyncStacking(const FormView& current);
    [[nodiscard]] bool IsFocusHidden(const FormView& hub) const;
    void SyncTitle();
    void NewProjectMade();
    void OpenWhatWaits();
    void RestoreLook();
    void KeepLook();
    void KeepSizeOf(const FormView& view, const QMdiSubWindow& frame);
    void ScrollToFocus(const FormView& view);
    FormView& OpenView(Form& form);
    void CloseView(Form* form);
    void Place(QMdiSubWindow& window);
    [[nodiscard]] bool FillsWindow(const QMdiSubWindow& window) const;
    void OnSubWindowActivated(QMdiSubWindow* window);
    void OnStop(const std::string& reason);
    static QString DraggedFile(const QMimeData& dragged);

    Program& program_;
    EventDoor door_;
    QMdiArea* area_;
    WindowSettings settings_;
    WindowStatus* status_;
    MenuBar* menus_ = nullptr;
    std::unique_ptr<HubCompany> company_;
    std::unique_ptr<WindowActions> actions_;
    bool metricForNew_ = false;  // the unit system of new projects
    QMdiSubWindow* hubFrame_ = nullptr;
    bool hubInFront_ = false;  // of forms that hid its focus
    QHash<Form*, FormView*> views_;
    std::string handedOver_;  // a project that waits to be opened; empty: none
    QTimer handOverTimer_;
    std::string stopReason_;
};

}  // namespace kelvor

#pragma once

#include <QContextMenuEvent>
#include <QHash>
#include <QKeyEvent>
#include <QPointer>
#include <QTabWidget>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "desktop/event_door.h"
#include "forms/form.h"

namespace kelvor {

class GridView;

/// The window of one form, whichever it is: a widget for each control, laid out by the form's declaration.
/// It mirrors the model and turns what the user does into events; it decides nothing. The model owns the
/// focus: a widget that would take it asks the model first.
class FormView : public QWidget {
  public:
    FormView(Form& form, EventDoor& door, QWidget* parent = nullptr);
    FormView(const FormView&) = delete;
    FormView& operator=(const FormView&) = delete;
    ~FormView() override;

    /// Null once the form has been closed.
    [[nodiscard]] Form* form() const { return form_; }

    /// The form is gone; what still arrives here is ignored.
    void Detach();

    /// Shows what the model holds.
    void Sync();

    /// Gives the toolkit's focus to the widget of the control that has the model's.
    void SyncFocus();

    /// The widget of a control; null if there is none of that name.
    [[nodiscard]] QWidget* FindWidget(const std::string& name) const;

    /// The tab strip; null if the form has none.
    [[nodiscard]] QTabWidget* tabs() const { return tabs_; }

    /// Puts what is no control of the form beside its tab strip, or beside one of its controls.
    void PutBesideTabs(QWidget& side);
    void PutBesideControl(const std::string& name, QWidget& side);

    /// Tab goes to this widget too, behind the last control of the form and the stops that were added before.
    void AddStop(QWidget& stop);

    /// Called when other cells of a grid are marked than before.
    std::function<void()> whenMarked;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void MakeWidgets();
    QWidget* MakeControl(const Control& control);
    QWidget* MakeGrid(const Control& control);
    QWidget* MakeReportPages(const Control& control);
    void ConnectWidgets();
    void ConnectControl(const Control& control, QWidget& widget);
    void SetBuddies();
    void SyncCaption();
    bool Filter(const Control& control, QEvent& event);
    void OnFocusIn(const Control& control, Qt::FocusReason reason);
    void OnEdited(const Control& control, const QString& text);
    bool FilterTabBar(QEvent& event);

    [[nodiscard]] std::vector<QWidget*> VisibleStops() const;
    bool LeaveForStops(const QKeyEvent& key);
    void GoToStop(QWidget& stop, bool back);
    void StepStop(const QWidget& stop, bool back);
    bool HandleStripKey(const QKeyEvent& key);
    bool FilterStop(QWidget& stop, QEvent& event);

    /// The charts of the form that are seen.
    [[nodiscard]] std::vector<ChartData> Drawings() const;
    bool ShowFieldMenu(const Control& control, const QPoint& place);
    bool ShowMenuOf(const Control& control, const QContextMenuEvent& event);
    bool HandleCopyKey(const QKeyEvent& key);

    /// Handles a key that is the model's; false if it is the widget's own.
    bool HandleKey(const QKeyEvent& key);
    bool EmptyMarkedCells(const GridView& grid);
    bool HandleGridKey(const Control& control, const QKeyEvent& key);
    void CloseCellEditor(const Control& control);
    bool HandleTabKey(const QKeyEvent& key);
    void NoteKeyRelease(const QKeyEvent& key);
    [[nodiscard]] static bool IsTravelKey(const QKeyEvent& key);
    [[nodiscard]] bool IsAccessKey(const QKeyEvent& key) const;

    /// Asks the model for the focus. True if the control has it then.
    bool RequestFocus(const Control& control);
    bool BecomeCurrent();
    void Raise(UserEvent::Kind kind, const std::string& name, const std::string& text = {}, int number = 0);

    Form* form_;
    EventDoor& door_;
    QHash<const Control*, QWidget*> widgets_;
    QHash<const QObject*, const Control*> controls_;
    QTabWidget* tabs_ = nullptr;
    std::vector<QPointer<QWidget>> stops_;
    const Control* shownFocus_ = nullptr;  // the control that had the focus when it was shown last
    int shownSelections_ = 0;              // and how often a box had been selected as a whole by then
};

}  // namespace kelvor

#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <algorithm>

#include "desktop/app_icon.h"
#include "desktop/qt_text.h"

namespace kelvor {

namespace {

/// The size of the window at start, in letters of the system's font.
constexpr int kStartColumns = 150;
constexpr int kStartLines = 46;

const char* const kWindowMenu = "MenuWindow";

/// The hub lies behind all others and has no frame; the others stay in front of it.
constexpr Qt::WindowFlags kHubFlags = Qt::SubWindow | Qt::FramelessWindowHint;
constexpr Qt::WindowFlags kFormFlags = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                       Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                                       Qt::WindowStaysOnTopHint;

/// The frame of one form. Its close box asks the model.
class FormWindow : public QMdiSubWindow {
  public:
    FormWindow(FormView& view, EventDoor& door) : view_(view), door_(door) { setWidget(&view); }

  protected:
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        if (const Form* form = view_.form()) door_.Raise({UserEvent::Kind::CloseForm, form->name(), {}, 0});
    }

  private:
    FormView& view_;
    EventDoor& door_;
};

/// Every form stays in front of the hub; one that did not would be lost behind it.
void DropStayOnTop(QMdiSubWindow& frame) {
    for (QAction* action : frame.systemMenu()->actions()) {
        if (action->isCheckable()) frame.systemMenu()->removeAction(action);
    }
}

QMdiSubWindow* FrameOf(const FormView& view) { return qobject_cast<QMdiSubWindow*>(view.parentWidget()); }

}  // namespace

MainWindow::MainWindow(Program& program)
    : program_(program),
      door_(
          program, [this] { Sync(); }, [this](const std::string& reason) { OnStop(reason); }),
      area_(new QMdiArea(this)),
      hint_(new QLabel(this)) {
    setCentralWidget(area_);
    setWindowIcon(AppIcon());
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    connect(area_, &QMdiArea::subWindowActivated, this, &MainWindow::OnSubWindowActivated);
    area_->viewport()->installEventFilter(this);
    // A widget of its own: what a menu says in passing would wipe a message away.
    hint_->setObjectName(QStringLiteral("Hint"));
    hint_->setTextFormat(Qt::PlainText);
    hint_->setContentsMargins(fontMetrics().averageCharWidth(), 0, 0, 0);
    statusBar()->addWidget(hint_, 1);
    BuildMenus();
    resize(StartSize().boundedTo(screen()->availableSize()));
    Sync();
}

QSize MainWindow::StartSize() const {
    return {kStartColumns * fontMetrics().averageCharWidth(), kStartLines * fontMetrics().lineSpacing()};
}

// --- Menus ---------------------------------------------------------------------------------------------

void MainWindow::BuildMenus() {
    const std::vector<MenuEntry> entries = program_.Menus();
    for (const MenuTitle& title : MenuTitles()) {
        QMenu* menu = AddMenu(title);
        for (const MenuEntry& entry : entries) {
            if (entry.menu == title.name && !entry.hidden) AddEntry(*menu, entry);
        }
        if (title.name == kWindowMenu) windowMenu_ = menu;
    }
    connect(windowMenu_, &QMenu::aboutToShow, this, &MainWindow::FillWindowMenu);
}

QMenu* MainWindow::AddMenu(const MenuTitle& title) {
    QMenu* menu = menuBar()->addMenu(ToQt(title.caption));
    menu->setObjectName(ToQt(title.name));
    menu->setToolTipsVisible(true);
    return menu;
}

void MainWindow::AddEntry(QMenu& menu, const MenuEntry& entry) {
    if (entry.name.empty()) {
        menu.addSeparator();
        return;
    }
    QAction* action = menu.addAction(ToQt(entry.caption));
    action->setObjectName(ToQt(entry.name));
    action->setCheckable(entry.checkable);
    if (!entry.shortcut.empty()) action->setShortcut(QKeySequence::fromString(ToQt(entry.shortcut)));
    if (entry.comesLater) {
        action->setEnabled(false);
        action->setToolTip(ToQt(kComesLater));
    }
    connect(action, &QAction::triggered, this, [this, name = entry.name] {
        door_.Raise({UserEvent::Kind::Menu, name, {}, 0});
        SyncMenus();
    });
}

void MainWindow::FillWindowMenu() {
    windowMenu_->clear();
    const FormRegistry& forms = program_.state().formRegistry;
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

void MainWindow::SyncMenus() {
    for (const MenuEntry& entry : program_.Menus()) {
        if (QAction* action = FindAction(entry.name)) action->setChecked(entry.checked);
    }
}

QAction* MainWindow::FindAction(const std::string& name) const {
    return name.empty() ? nullptr : menuBar()->findChild<QAction*>(ToQt(name));
}

QAction* MainWindow::FindWindowAction(const std::string& form) const {
    return windowMenu_->findChild<QAction*>(ToQt(form));
}

// --- From the model to the windows -----------------------------------------------------------------------

void MainWindow::Sync() {
    const std::string& caption = program_.state().caption;
    setWindowTitle(caption.empty() ? QStringLiteral("Kelvor") : ToQt(caption));
    SyncMenus();
    SyncForms();
    SyncModality();
    SyncActiveWindow();
    SyncStatus();
    if (program_.ended()) close();
}

void MainWindow::SyncForms() {
    const std::vector<Form*>& open = program_.state().formRegistry.InOpeningOrder();
    for (Form* form : views_.keys()) {
        if (std::find(open.begin(), open.end(), form) == open.end()) CloseView(form);
    }
    for (Form* form : open) {
        if (FormView* view = views_.value(form)) {
            view->Sync();
        } else {
            OpenView(*form);
        }
    }
}

FormView& MainWindow::OpenView(Form& form) {
    auto* view = new FormView(form, door_);
    auto* frame = new FormWindow(*view, door_);
    frame->setWindowTitle(view->windowTitle());
    frame->setWindowIcon(windowIcon());
    DropStayOnTop(*frame);
    area_->addSubWindow(frame, form.type().isHub ? kHubFlags : kFormFlags);
    views_.insert(&form, view);
    if (form.type().isHub) hubFrame_ = frame;
    Place(*frame);
    frame->show();
    return *view;
}

/// The hub fills the window; any other form stands in its middle, as large as its content asks.
void MainWindow::Place(QMdiSubWindow& window) {
    const QSize all = area_->viewport()->size();
    if (&window == hubFrame_) {
        window.setGeometry({{0, 0}, all.expandedTo(window.minimumSizeHint())});
        return;
    }
    window.resize(window.sizeHint());
    const QSize room = all - window.size();
    window.move(std::max(0, room.width() / 2), std::max(0, room.height() / 2));
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == area_->viewport() && event->type() == QEvent::Resize && hubFrame_ != nullptr) {
        Place(*hubFrame_);
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::CloseView(Form* form) {
    FormView* view = views_.take(form);
    view->Detach();
    QMdiSubWindow* frame = FrameOf(*view);
    frame->hide();
    area_->removeSubWindow(frame);
    frame->deleteLater();
}

/// While a modal form is in front, everything else is off.
void MainWindow::SyncModality() {
    const Form* current = program_.state().formRegistry.CurrentForm;
    const bool modal = current != nullptr && current->modal;
    menuBar()->setEnabled(!modal);
    for (const FormView* view : std::as_const(views_)) {
        FrameOf(*view)->setEnabled(!modal || view->form() == current);
    }
}

void MainWindow::SyncActiveWindow() {
    FormView* view = CurrentView();
    if (view == nullptr) return;
    QMdiSubWindow* frame = FrameOf(*view);
    if (area_->activeSubWindow() != frame) area_->setActiveSubWindow(frame);
    view->SyncFocus();
}

void MainWindow::SyncStatus() {
    const Form* form = program_.state().formRegistry.CurrentForm;
    const Control* focus = form == nullptr ? nullptr : form->focus;
    QString hint;
    if (focus != nullptr) hint = ToQt(focus->grid ? focus->grid->current().hint : focus->toolTip);
    if (hint_->text() != hint) hint_->setText(hint);
}

FormView* MainWindow::FindView(const std::string& form) const {
    return views_.value(program_.state().formRegistry.Find(form));
}

FormView* MainWindow::CurrentView() const { return views_.value(program_.state().formRegistry.CurrentForm); }

// --- From the user to the model
// -----------------------------------------------------------------------------

void MainWindow::OnSubWindowActivated(QMdiSubWindow* window) {
    if (window == nullptr || door_.busy()) return;
    const auto* view = dynamic_cast<const FormView*>(window->widget());
    if (view == nullptr || view->form() == nullptr) return;
    door_.Raise({UserEvent::Kind::ActivateForm, view->form()->name(), {}, 0});
    if (CurrentView() != view) door_.NoteRefusal();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!program_.ended() && stopReason_.empty()) {
        door_.Raise({UserEvent::Kind::Menu, "MenuFileExit", {}, 0});
    }
    event->setAccepted(program_.ended() || !stopReason_.empty());
}

void MainWindow::OnStop(const std::string& reason) {
    stopReason_ = reason.empty() ? "unknown" : reason;
    close();  // the last window: the application ends
}

}  // namespace kelvor

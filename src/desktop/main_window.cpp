#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "desktop/app_icon.h"
#include "desktop/key_table.h"
#include "desktop/language_menu.h"
#include "desktop/preview/page_browser.h"
#include "desktop/qt_text.h"

namespace kelvor {

namespace {

/// The size of the window at start, in letters of the system's font.
constexpr int kStartColumns = 200;
constexpr int kStartLines = 48;

/// What stands on a form's frame beside its caption, in letters: the icon, the close box, and room.
constexpr int kCaptionMargin = 16;

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

/// The area of the forms. On the hub Ctrl+Tab goes to the next tab; elsewhere it goes to the next form.
class FormArea : public QMdiArea {
  public:
    explicit FormArea(QWidget* parent) : QMdiArea(parent) {}

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const QMdiSubWindow* front = activeSubWindow();
        const bool hub = front != nullptr && front->windowFlags().testFlag(Qt::FramelessWindowHint);
        return !(hub && IsTabKey(*event)) && QMdiArea::eventFilter(watched, event);
    }

  private:
    static bool IsTabKey(const QEvent& event) {
        if (event.type() != QEvent::KeyPress) return false;
        const auto& key = static_cast<const QKeyEvent&>(event);
        return IsKeyOf(KeyAct::NextTab, key) || IsKeyOf(KeyAct::PreviousTab, key);
    }
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
      area_(new FormArea(this)),
      settings_(program.state().home.WindowFile()),
      status_(new WindowStatus(this)),
      metricForNew_(settings_.Metric()) {
    setCentralWidget(area_);
    setWindowIcon(AppIcon());
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    connect(area_, &QMdiArea::subWindowActivated, this, &MainWindow::OnSubWindowActivated);
    area_->viewport()->installEventFilter(this);
    setStatusBar(status_);
    menus_ = new MenuBar(door_, this);
    setMenuBar(menus_);
    company_ = std::make_unique<HubCompany>(door_, *menus_);
    company_->whenNoRoom = [this] { status_->ShowNoRoom(); };
    actions_ = std::make_unique<WindowActions>(door_, *menus_, *company_, *this);
    AddLanguageMenu(*menus_->FindMenu("MenuView"), settings_, program_.state());
    connect(menus_->FindAction("NewProj", 0), &QAction::triggered, this, &MainWindow::NewProjectMade);
    setAcceptDrops(true);
    handOverTimer_.setSingleShot(true);
    connect(&handOverTimer_, &QTimer::timeout, this, &MainWindow::OpenWhatWaits);
    // The frame needs some room of the screen too.
    const int frame = 2 * fontMetrics().lineSpacing();
    resize(StartSize().boundedTo(screen()->availableSize() - QSize(frame / 2, frame)));
    RestoreLook();
    Sync();
    if (program_.state().sProjectFile.empty()) NewProjectMade();
}

/// The child windows go first: they speak to the door as long as they live.
MainWindow::~MainWindow() {
    area_->disconnect(this);
    area_->viewport()->removeEventFilter(this);
    delete takeCentralWidget();
}

QSize MainWindow::StartSize() const {
    return {kStartColumns * fontMetrics().averageCharWidth(), kStartLines * fontMetrics().lineSpacing()};
}

QAction* MainWindow::FindAction(const std::string& name, int index) const {
    return menus_->FindAction(name, index);
}

QAction* MainWindow::FindWindowAction(const std::string& form) const {
    return menus_->FindWindowAction(form);
}

// --- From the model to the windows -----------------------------------------------------------------------

void MainWindow::Sync() {
    SyncTitle();
    menus_->Sync();
    SyncForms();
    SyncModality();
    SyncActiveWindow();
    company_->Sync();
    status_->Sync(program_, CurrentView());
    if (program_.ended()) close();
}

/// Beside the caption that the program gives the window, its name in a task bar says what it holds.
void MainWindow::SyncTitle() {
    const ProcessState& state = program_.state();
    setWindowTitle(state.caption.empty() ? QStringLiteral("Kelvor") : ToQt(state.caption));
    setWindowIconText(DocumentName(state) + (state.bProjectChanged ? "* - Kelvor" : " - Kelvor"));
}

void MainWindow::SyncForms() {
    const std::vector<Form*>& open = program_.state().formRegistry.InOpeningOrder();
    for (Form* form : views_.keys()) {
        if (std::find(open.begin(), open.end(), form) == open.end()) CloseView(form);
    }
    for (Form* form : open) {
        if (FormView* view = views_.value(form)) {
            view->Sync();
            FrameOf(*view)->setWindowTitle(view->windowTitle());
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
    view->whenMarked = [this, view] { status_->ShowFigures(view); };
    if (form.type().isHub) {
        hubFrame_ = frame;
        company_->Join(*view);
    }
    Place(*frame);
    frame->show();
    return *view;
}

bool MainWindow::FillsWindow(const QMdiSubWindow& window) const {
    if (&window == hubFrame_) return true;
    for (const QWidget* inside : window.findChildren<QWidget*>()) {
        if (dynamic_cast<const PageBrowser*>(inside) != nullptr) return true;
    }
    return false;
}

/// The hub fills the window, and so does a form that shows pages; any other form stands in its middle, as
/// large as its content asks.
void MainWindow::Place(QMdiSubWindow& window) {
    const QSize all = area_->viewport()->size();
    if (&window == hubFrame_) company_->Arrange(all);
    if (FillsWindow(window)) {
        window.setGeometry({{0, 0}, all.expandedTo(window.minimumSizeHint())});
        return;
    }
    const QFontMetrics metrics = window.fontMetrics();
    const int caption =
        metrics.horizontalAdvance(window.windowTitle()) + kCaptionMargin * metrics.averageCharWidth();
    const QSize asked = window.sizeHint().expandedTo({caption, 0});
    const QSize kept = settings_.SizeOf(FromQt(window.widget()->objectName())).boundedTo(all);
    window.resize(asked.expandedTo(kept));
    window.setProperty(kPlacedSizeProperty, window.size());
    const QSize room = all - window.size();
    window.move(std::max(0, room.width() / 2), std::max(0, room.height() / 2));
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == area_->viewport() && event->type() == QEvent::Resize) {
        for (QMdiSubWindow* window : area_->subWindowList()) {
            if (FillsWindow(*window)) Place(*window);
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::CloseView(Form* form) {
    FormView* view = views_.take(form);
    view->Detach();
    QMdiSubWindow* frame = FrameOf(*view);
    KeepSizeOf(*view, *frame);
    frame->hide();
    area_->removeSubWindow(frame);
    frame->deleteLater();
}

/// While a modal form is in front, everything else is off.
void MainWindow::SyncModality() {
    const Form* current = program_.state().formRegistry.CurrentForm;
    const bool modal = current != nullptr && current->modal;
    menuBar()->setEnabled(!modal);
    actions_->SetEnabled(!modal);
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
    SyncStacking(*view);
    if (frame->widget() == view && view->form() != nullptr) ScrollToFocus(*view);
}

/// The other forms stand in front of the hub, unless one hides the field in which the user works there.
void MainWindow::SyncStacking(const FormView& current) {
    QMdiSubWindow* frame = FrameOf(current);
    if (frame == hubFrame_) {
        if (!IsFocusHidden(current)) return;
        hubFrame_->raise();
        hubInFront_ = true;
    } else if (std::exchange(hubInFront_, false)) {
        for (Form* form : program_.state().formRegistry.InOpeningOrder()) {
            if (!form->type().isHub) FrameOf(*views_.value(form))->raise();
        }
        frame->raise();
    }
}

bool MainWindow::IsFocusHidden(const FormView& hub) const {
    const Control* focus = hub.form()->focus;
    const QWidget* widget = focus == nullptr ? nullptr : hub.FindWidget(focus->name);
    if (widget == nullptr) return false;
    const QRect place(widget->mapTo(area_->viewport(), QPoint(0, 0)), widget->size());
    return std::any_of(views_.cbegin(), views_.cend(), [&](const FormView* view) {
        return view != &hub && FrameOf(*view)->geometry().intersects(place);
    });
}

/// In a window that is smaller than a form, what has the focus is brought into view.
void MainWindow::ScrollToFocus(const FormView& view) {
    const Control* focus = view.form()->focus;
    const QWidget* widget = focus == nullptr ? nullptr : view.FindWidget(focus->name);
    if (widget == nullptr || view.form()->type().isHub) return;
    const QRect place(widget->mapTo(area_, QPoint(0, 0)) - area_->viewport()->pos(), widget->size());
    const QSize room = area_->viewport()->size();
    const auto scroll = [](QScrollBar& bar, int first, int last, int length) {
        if (last > length) bar.setValue(bar.value() + std::min(last - length, first));
        if (first < 0) bar.setValue(bar.value() + first);
    };
    scroll(*area_->horizontalScrollBar(), place.left(), place.right(), room.width());
    scroll(*area_->verticalScrollBar(), place.top(), place.bottom(), room.height());
}

FormView* MainWindow::FindView(const std::string& form) const {
    return views_.value(program_.state().formRegistry.Find(form));
}

FormView* MainWindow::CurrentView() const { return views_.value(program_.state().formRegistry.CurrentForm); }

// --- From the user to the model ----------------------------------------------------------------------

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
    if (event->isAccepted()) KeepLook();
}

/// The one project file that is being dragged; empty if it is anything else.
QString MainWindow::DraggedFile(const QMimeData& dragged) {
    const QList<QUrl> urls = dragged.urls();
    return urls.size() == 1 && urls.constFirst().isLocalFile() ? urls.constFirst().toLocalFile() : QString();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!DraggedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

/// The sender waits for the end of the drop, so what follows comes after it.
void MainWindow::dropEvent(QDropEvent* event) {
    const std::string file = FromQt(DraggedFile(*event->mimeData()));
    if (file.empty()) return;
    event->acceptProposedAction();
    QMetaObject::invokeMethod(
        this,
        [this, file] {
            door_.Raise({UserEvent::Kind::OpenFile, {}, file, 0});
        },
        Qt::QueuedConnection);
}

void MainWindow::OnStop(const std::string& reason) {
    stopReason_ = reason.empty() ? "unknown" : reason;
    close();  // the last window: the application ends
}

}  // namespace kelvor

#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "desktop/app_icon.h"
#include "desktop/preview/page_browser.h"
#include "desktop/qt_text.h"

namespace kelvor {

namespace {

/// The size of the window at start, in letters of the system's font.
constexpr int kStartColumns = 150;
constexpr int kStartLines = 46;

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
    menus_ = new MenuBar(door_, this);
    setMenuBar(menus_);
    setAcceptDrops(true);
    // The frame needs some room of the screen too.
    const int frame = 2 * fontMetrics().lineSpacing();
    resize(StartSize().boundedTo(screen()->availableSize() - QSize(frame / 2, frame)));
    Sync();
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
    const std::string& caption = program_.state().caption;
    setWindowTitle(caption.empty() ? QStringLiteral("Kelvor") : ToQt(caption));
    menus_->Sync();
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
    if (form.type().isHub) hubFrame_ = frame;
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
    if (FillsWindow(window)) {
        window.setGeometry({{0, 0}, all.expandedTo(window.minimumSizeHint())});
        return;
    }
    const QFontMetrics metrics = window.fontMetrics();
    const int caption =
        metrics.horizontalAdvance(window.windowTitle()) + kCaptionMargin * metrics.averageCharWidth();
    window.resize(window.sizeHint().expandedTo({caption, 0}));
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
    if (frame->widget() == view && view->form() != nullptr) ScrollToFocus(*view);
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

void MainWindow::SyncStatus() {
    const Form* form = program_.state().formRegistry.CurrentForm;
    const Control* focus = form == nullptr ? nullptr : form->focus;
    QString hint;
    if (focus != nullptr) hint = ToQt(focus->grid ? focus->grid->current().hint : focus->toolTip);
    if (const std::string preview = program_.EntryPreview(); !preview.empty()) hint = ToQt(preview);
    if (!program_.state().dbWork.IsOpen()) {
        hint = QStringLiteral("No project is open: choose New Project or Open Project");
    }
    if (hint_->text() != hint) hint_->setText(hint);
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

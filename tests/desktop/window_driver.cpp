#include "desktop/window_driver.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <exception>
#include <map>

#include "console/script/command_line.h"
#include "desktop/chart_view.h"
#include "desktop/drawing_menu.h"
#include "desktop/qt_text.h"
#include "desktop/widget_reading.h"
#include "platform/number_text.h"

namespace kelvor::test {

namespace {

/// Longer texts are pasted.
constexpr std::size_t kLongestTyped = 60;

const std::map<std::string, Qt::Key>& NamedKeys() {
    static const std::map<std::string, Qt::Key> keys = {
        {"Enter", Qt::Key_Return}, {"Tab", Qt::Key_Tab},       {"BackTab", Qt::Key_Backtab},
        {"Esc", Qt::Key_Escape},   {"Space", Qt::Key_Space},   {"F1", Qt::Key_F1},
        {"F2", Qt::Key_F2},        {"Delete", Qt::Key_Delete}, {"Up", Qt::Key_Up},
        {"Down", Qt::Key_Down},    {"Left", Qt::Key_Left},     {"Right", Qt::Key_Right},
    };
    return keys;
}

bool IsTypable(const std::string& text) {
    if (text.size() > kLongestTyped) return false;
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

}  // namespace

WindowDriver::WindowDriver(DesktopProgram& desktop, DialogResponder& responder)
    : ModelDriver(desktop.program(), [&](const std::string& answer) { responder.QueueAnswer(answer); }),
      desktop_(desktop),
      responder_(responder) {
    ComeToFront();
}

/// Without a window manager nobody brings the window back once a box has closed.
void WindowDriver::ComeToFront() {
    QApplication::processEvents();
    if (desktop_.window().isActiveWindow() || !desktop_.window().isVisible()) return;
    desktop_.window().activateWindow();
    (void)QTest::qWaitForWindowActive(&desktop_.window());
}

// --- What no window does -------------------------------------------------------------------------------

void WindowDriver::OnModel(const std::function<void()>& act) {
    std::exception_ptr failure;
    desktop_.window().door().Perform([&](Program&) {
        try {
            act();
        } catch (...) {
            failure = std::current_exception();
        }
    });
    if (failure) std::rethrow_exception(failure);
}

void WindowDriver::Set(const CellKey& key, const std::string& value) {
    OnModel([&] { ModelDriver::Set(key, value); });
}

void WindowDriver::Calc(const std::string& key, const std::string& target) {
    OnModel([&] { ModelDriver::Calc(key, target); });
}

void WindowDriver::CalcCell(const std::string& key, int dim1, int dim2, const std::string& target) {
    OnModel([&] { ModelDriver::CalcCell(key, dim1, dim2, target); });
}

int WindowDriver::Solve(const std::string& screen, int term) {
    int result = 0;
    OnModel([&] { result = ModelDriver::Solve(screen, term); });
    return result;
}

void WindowDriver::OpenForm(const std::string& name, int dim2) {
    OnModel([&] { ModelDriver::OpenForm(name, dim2); });
}

// --- Menus -------------------------------------------------------------------------------------------

void WindowDriver::New() { ChooseMenu("NewProj", 0); }

void WindowDriver::Open(const std::string& path) {
    responder_.AnswerFileDialogWith(path);
    ChooseMenu("MenuFileOpen", 0);
}

void WindowDriver::Save() { ChooseMenu("MenuFileSave", 0); }

void WindowDriver::SaveAs(const std::string& path) {
    responder_.AnswerFileDialogWith(path);
    ChooseMenu("MenuFileSaveAs", 0);
}

void WindowDriver::ChooseUnits(bool metric) {
    ChooseMenu(metric ? "MenuUnitsMetric" : "MenuUnitsEnglish", 0);
}

std::optional<std::string> WindowDriver::Undo() { return ChooseStep("MenuEditUndo"); }

std::optional<std::string> WindowDriver::Redo() { return ChooseStep("MenuEditRedo"); }

std::optional<std::string> WindowDriver::ChooseStep(const std::string& name) {
    const QAction* entry = desktop_.window().FindAction(name, 0);
    if (!desktop_.window().menuBar()->isEnabled() || !entry->isEnabled()) return std::nullopt;
    QString act = entry->text().section(' ', 1);
    ChooseMenu(name, 0);
    return FromQt(act.replace("&&", "&"));
}

void WindowDriver::ClickEntry(QMenu& menu, QAction& entry) {
    QMenuBar* bar = desktop_.window().menuBar();
    if (!bar->isEnabled()) return;  // a form in front keeps it off
    auto* outer = qobject_cast<QMenu*>(menu.parent());
    QMenu& first = outer == nullptr ? menu : *outer;
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(first.menuAction()).center());
    if (outer != nullptr) {
        QTest::mouseClick(outer, Qt::LeftButton, {}, outer->actionGeometry(menu.menuAction()).center());
        QApplication::processEvents();
    }
    const bool enabled = entry.isEnabled();
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&entry).center());
    if (!enabled) QTest::keyClick(&menu, Qt::Key_Escape);
    QApplication::processEvents();
}

void WindowDriver::ChooseMenu(const std::string& name, int index) {
    if (BuiltScreenNamed(name)) {  // the hidden menu cannot be clicked
        desktop_.window().door().Raise({UserEvent::Kind::Menu, name, {}, index});
        QApplication::processEvents();
        return;
    }
    QAction* entry = desktop_.window().FindAction(name, index);
    if (entry != nullptr && !entry->isVisible()) entry = nullptr;
    auto* menu = entry == nullptr ? nullptr : qobject_cast<QMenu*>(entry->parent());
    if (menu == nullptr) throw ScriptError("there is no menu entry " + name);
    ClickEntry(*menu, *entry);
}

// --- Forms -------------------------------------------------------------------------------------------

FormView& WindowDriver::View() {
    ComeToFront();
    FormView* view = desktop_.window().CurrentView();
    if (view == nullptr) throw ScriptError("no screen is open");
    return *view;
}

QWidget& WindowDriver::Widget(const std::string& control) {
    return *View().FindWidget(FindControl(control).name);
}

void WindowDriver::ActivateForm(const std::string& name) {
    FormView* view = desktop_.window().FindView(OpenFormName(name));
    if (view == nullptr) throw ScriptError(name + " is not open");
    auto* menu = desktop_.window().findChild<QMenu*>(QStringLiteral("MenuWindow"));
    QMenuBar* bar = desktop_.window().menuBar();
    if (!bar->isEnabled()) return;  // a form in front keeps it off
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    QAction* entry = desktop_.window().FindWindowAction(view->form()->name());
    if (entry == nullptr) throw ScriptError(name + " is not in the Window menu");
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    QApplication::processEvents();
}

void WindowDriver::CloseForm(const std::optional<std::string>& name) {
    FormView* view = name ? desktop_.window().FindView(OpenFormName(*name)) : &View();
    if (view == nullptr) throw ScriptError(*name + " is not open");
    view->parentWidget()->close();
    QApplication::processEvents();
}

std::vector<std::string> WindowDriver::Forms() {
    std::vector<std::string> names;
    const auto* area = qobject_cast<const QMdiArea*>(desktop_.window().centralWidget());
    for (const QMdiSubWindow* frame : area->subWindowList(QMdiArea::CreationOrder)) {
        names.push_back(FromQt(frame->widget()->objectName()));
    }
    return names;
}

void WindowDriver::SwitchTab(int tab) {
    const auto* area = qobject_cast<const QMdiArea*>(desktop_.window().centralWidget());
    for (const QMdiSubWindow* frame : area->subWindowList()) {
        const auto* view = dynamic_cast<const FormView*>(frame->widget());
        if (view == nullptr || view->tabs() == nullptr) continue;
        QTabBar* bar = view->tabs()->tabBar();
        if (tab < 0 || tab >= bar->count()) throw ScriptError("there is no tab " + std::to_string(tab));
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
        return;
    }
    throw ScriptError("there are no tabs");
}

// --- Controls ----------------------------------------------------------------------------------------

void WindowDriver::Click(QWidget& widget) {
    if (!widget.isVisibleTo(&desktop_.window()) || !widget.isEnabled()) return;
    QPoint place = widget.rect().center();
    // An option is as wide as its column; its mark and its words stand at the left.
    if (qobject_cast<QRadioButton*>(&widget) != nullptr || qobject_cast<QCheckBox*>(&widget) != nullptr) {
        place.setX(widget.height() / 2);
    }
    QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
}

QWidget& WindowDriver::FocusWidget() {
    ComeToFront();
    QWidget* focus = QApplication::focusWidget();
    return focus != nullptr ? *focus : View();
}

void WindowDriver::Focus(const std::string& control) {
    QWidget& widget = Widget(control);
    if (!widget.isVisibleTo(&desktop_.window()) || !widget.isEnabled()) return;
    if (auto* box = qobject_cast<QLineEdit*>(&widget)) {
        if (box->hasFocus()) return;
        Click(*box);
        if (box->hasFocus()) QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    } else {
        widget.setFocus(Qt::TabFocusReason);
    }
    QApplication::processEvents();
}

void WindowDriver::TypeInto(QWidget& box, const std::string& text) {
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    if (text.empty()) {
        QTest::keyClick(&box, Qt::Key_Delete);
    } else if (IsTypable(text)) {
        QTest::keyClicks(&box, ToQt(text));
    } else {
        QApplication::clipboard()->setText(ToQt(text));
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    }
}

void WindowDriver::Type(const std::string& text) {
    (void)View();
    if (auto* grid = dynamic_cast<GridView*>(&FocusWidget())) QTest::keyClick(grid, Qt::Key_F2);
    QWidget* focus = &FocusWidget();
    if (const auto* list = qobject_cast<const QComboBox*>(focus)) focus = list->lineEdit();
    if (auto* box = qobject_cast<QLineEdit*>(focus)) TypeInto(*box, text);
}

void WindowDriver::Key(const std::string& key) {
    QWidget& target = FocusWidget();
    if (const auto named = NamedKeys().find(key); named != NamedKeys().end()) {
        QTest::keyClick(&target, named->second);
    } else if (key.size() == 5 && key.starts_with("Alt+")) {
        QTest::keyClick(&target, key.back(), Qt::AltModifier);
    } else if (key.size() == 1) {
        QTest::keyClick(&target, key.front());
    } else if (const QString text = ToQt(key); text.size() == 1) {
        QTest::sendKeyEvent(QTest::Click, &target, Qt::Key_unknown, text, Qt::NoModifier);
    } else {
        throw ScriptError("there is no key " + key);
    }
    QApplication::processEvents();
}

void WindowDriver::Press(const std::string& control) {
    QWidget& widget = Widget(control);
    if (qobject_cast<QAbstractButton*>(&widget) == nullptr) throw ScriptError(control + " is no button");
    Click(widget);
    QApplication::processEvents();
}

void WindowDriver::Choose(const std::string& control, const std::string& item) {
    QWidget& widget = Widget(control);
    auto* list = qobject_cast<QComboBox*>(&widget);
    if (qobject_cast<QAbstractButton*>(&widget) != nullptr && KindOf(widget) != ControlKind::CommandButton) {
        Click(widget);
    } else if (list != nullptr && list->findText(ToQt(item)) >= 0) {
        list->showPopup();
        const QModelIndex index = list->model()->index(list->findText(ToQt(item)), 0);
        QTest::mouseClick(list->view()->viewport(), Qt::LeftButton, {},
                          list->view()->visualRect(index).center());
    } else {
        throw ScriptError(control + " has no such choice");
    }
    QApplication::processEvents();
}

// --- Reading -----------------------------------------------------------------------------------------

PropertyValue WindowDriver::Read(const std::string& control, const std::string& property) {
    if (property == "text") {
        if (IsCurrentForm(control)) return FromQt(View().parentWidget()->windowTitle());
        if (const auto title = TitleInCatalogue(control)) return *title;
    }
    const QWidget& widget = Widget(control);
    if (property == "text") return TextOf(widget);
    if (property == "enabled") return IsEnabled(widget);
    if (property == "visible") return !widget.isHidden();
    if (property == "bold") return widget.font().bold();
    if (property == "backcolor") return BackColour(widget);
    if (property == "forecolor") return LetterColour(ForeColour(widget));
    if (property == "value" && FindControl(control).height)
        return NumberProperty(ParseNumber(TextOf(widget)));
    if (property == "value") return ValueOf(widget);
    throw ScriptError("a control has no property " + property);
}

std::vector<ControlReport> WindowDriver::Controls() {
    std::vector<ControlReport> reports;
    for (const auto& control : CurrentForm().controls()) {
        const QWidget& widget = Widget(control->name);
        reports.push_back({FromQt(widget.objectName()), NameOf(KindOf(widget)), control->tag, TextOf(widget),
                           IsEnabled(widget), !widget.isHidden()});
    }
    return reports;
}

ChartData WindowDriver::Chart(const std::string& control) {
    if (!FindControl(control).chart) throw ScriptError(control + " is no chart");
    return dynamic_cast<const ChartView&>(Widget(control)).shown();
}

void WindowDriver::SavePicture(const std::string& control, const std::string& file) {
    if (!FindControl(control).chart) throw ScriptError(control + " is no chart");
    try {
        SaveDrawing(desktop_.program().state().host.files, Chart(control), file);
    } catch (const FileError& failure) {
        throw ScriptError("cannot write " + file + ": " + failure.what());
    }
}

std::optional<std::string> WindowDriver::FocusName() {
    ComeToFront();
    const QWidget* focus = QApplication::focusWidget();
    const FormView* view = desktop_.window().CurrentView();
    if (focus == nullptr || view == nullptr || focus == view || !view->isAncestorOf(focus)) {
        return std::nullopt;
    }
    if (const auto* list = qobject_cast<const QComboBox*>(focus->parentWidget())) focus = list;
    return FromQt(focus->objectName());
}

}  // namespace kelvor::test

#include "desktop/window_driver.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
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
#include "desktop/control_widgets.h"
#include "desktop/picture_view.h"
#include "desktop/qt_text.h"
#include "desktop/theme.h"

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

ControlKind KindOf(const QWidget& widget) {
    if (qobject_cast<const QGraphicsView*>(&widget) != nullptr) return ControlKind::Chart;
    if (qobject_cast<const QTableView*>(&widget) != nullptr) return ControlKind::Grid;
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr) return ControlKind::TextBox;
    if (qobject_cast<const QComboBox*>(&widget) != nullptr) return ControlKind::ComboBox;
    if (qobject_cast<const QPushButton*>(&widget) != nullptr) return ControlKind::CommandButton;
    if (qobject_cast<const QToolButton*>(&widget) != nullptr) return ControlKind::CommandButton;
    if (qobject_cast<const QRadioButton*>(&widget) != nullptr) return ControlKind::OptionButton;
    if (qobject_cast<const QCheckBox*>(&widget) != nullptr) return ControlKind::CheckBox;
    if (qobject_cast<const QGroupBox*>(&widget) != nullptr) return ControlKind::Frame;
    if (qobject_cast<const QTabWidget*>(&widget) != nullptr) return ControlKind::TabStrip;
    if (dynamic_cast<const PictureView*>(&widget) != nullptr) return ControlKind::Image;
    return ControlKind::Label;
}

/// True for the sunken label of an indicator, whose caption has the line ends of the model.
bool IsIndicator(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label != nullptr && label->frameShadow() == QFrame::Sunken;
}

/// A caption without the mark that the view put in.
std::string CaptionText(const QWidget& widget, QString text) {
    const auto mark = widget.property(kAddedMarkProperty).value<qsizetype>();
    if (mark >= 0 && mark < text.size() && text[mark] == u'&') text.remove(mark, 1);
    return FromQt(IsIndicator(widget) ? text.replace("\n", "\r\n") : text);
}

std::string TextOf(const QWidget& widget) {
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) return FromQt(box->text());
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) return FromQt(list->currentText());
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) return FromQt(frame->title());
    if (const auto* picture = dynamic_cast<const PictureView*>(&widget)) return picture->file();
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
        return FromQt(tabs->tabText(tabs->currentIndex()).replace("&&", "&"));
    }
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return CaptionText(widget, label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return CaptionText(widget, button->text());
    }
    return {};
}

/// What is chosen: whether an option is, which tab shows, or a text.
PropertyValue ValueOf(const QWidget& widget) {
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) return tabs->currentIndex();
    const auto* choice = qobject_cast<const QAbstractButton*>(&widget);
    if (choice != nullptr && KindOf(widget) != ControlKind::CommandButton) return choice->isChecked();
    return TextOf(widget);
}

bool IsEnabled(const QWidget& widget) { return !widget.testAttribute(Qt::WA_ForceDisabled); }

/// The colour of the model that a widget shows in a role; what the widget has from the palette is `usual`.
std::string ColourName(const QWidget& widget, QPalette::ColorRole role, Colour usual) {
    const QPalette& palette = widget.palette();
    if (!widget.testAttribute(Qt::WA_SetPalette) || !palette.isBrushSet(QPalette::Active, role)) {
        return std::string(usual);
    }
    const QColor shown = palette.color(QPalette::Active, role);
    for (const Colour colour : {colours::kLightCyan, colours::kLightRed, colours::kBrightWhite,
                                colours::kResting, colours::kBlue, colours::kBlack}) {
        const bool isText = role == QPalette::Text || role == QPalette::WindowText;
        const QColor own = isText ? ScreenTextColour(colour, QPalette()) : ScreenColour(colour, QPalette());
        if (own == shown) return std::string(colour);
    }
    return std::string(usual);
}

std::string BackColour(const QWidget& widget) {
    const ControlKind kind = KindOf(widget);
    const bool isBox = kind == ControlKind::TextBox || kind == ControlKind::ComboBox;
    const bool hidden = isBox && widget.isHidden();
    const auto* line = qobject_cast<const QLineEdit*>(&widget);
    const QPalette& palette = widget.palette();
    if (line != nullptr && !line->isReadOnly() && widget.testAttribute(Qt::WA_SetPalette) &&
        palette.color(QPalette::Active, QPalette::Base) ==
            palette.color(QPalette::Active, QPalette::Window)) {
        return std::string(colours::kButtonFace);
    }
    return ColourName(widget, isBox ? QPalette::Base : QPalette::Window,
                      isBox && !hidden ? colours::kWindow : colours::kButtonFace);
}

std::string ForeColour(const QWidget& widget) {
    const bool isBox = KindOf(widget) == ControlKind::TextBox;
    return ColourName(widget, isBox ? QPalette::Text : QPalette::WindowText, colours::kWindowText);
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

void WindowDriver::OpenForm(const std::string& name) {
    OnModel([&] { ModelDriver::OpenForm(name); });
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

void WindowDriver::ClickEntry(QMenu& menu, QAction& entry) {
    QMenuBar* bar = desktop_.window().menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu.menuAction()).center());
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
    CheckMenu(name);
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
    FormView* view = desktop_.window().FindView(name);
    if (view == nullptr) throw ScriptError(name + " is not open");
    auto* menu = desktop_.window().findChild<QMenu*>(QStringLiteral("MenuWindow"));
    QMenuBar* bar = desktop_.window().menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    QAction* entry = desktop_.window().FindWindowAction(view->form()->name());
    if (entry == nullptr) throw ScriptError(name + " is not in the Window menu");
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    QApplication::processEvents();
}

void WindowDriver::CloseForm(const std::optional<std::string>& name) {
    FormView* view = name ? desktop_.window().FindView(*name) : &View();
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

// --- Grids -------------------------------------------------------------------------------------------

GridView& WindowDriver::FindGridView() {
    auto* grid = dynamic_cast<GridView*>(View().findChild<QTableView*>());
    if (grid == nullptr) throw ScriptError(CurrentForm().name() + " has no grid");
    return *grid;
}

/// Clicks a cell, unless a value that is being typed elsewhere keeps the cursor.
bool WindowDriver::ClickCell(GridView& grid, int row, int column) {
    const QModelIndex cell = grid.model()->index(row - 1, column);
    grid.scrollTo(cell);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(cell).center());
    ComeToFront();
    return grid.currentIndex() == cell && grid.isAncestorOf(QApplication::focusWidget());
}

void WindowDriver::EditCell(int row, const std::string& column, const std::string& text) {
    CheckRow(row);
    CheckColumn(column);
    GridView& grid = FindGridView();
    const auto place = static_cast<int>(*FindGrid().Find(column));
    if (!ClickCell(grid, row, place) || FindGrid().columns[static_cast<std::size_t>(place)].locked) return;
    QTest::keyClick(&grid, Qt::Key_F2);
    if (auto* line = qobject_cast<QLineEdit*>(grid.editor())) {
        TypeInto(*line, text);
        if (text.empty() && grid.model()->data(grid.currentIndex()).toString().isEmpty()) {
            QTest::keyClick(line, Qt::Key_Escape);
            return;
        }
    } else if (auto* list = qobject_cast<QComboBox*>(grid.editor())) {
        PickInList(*list, text);
    }
    // Leaves the cell for another one of the row, and comes back.
    const int beside = place == 0 ? 1 : place - 1;
    ClickCell(grid, row, beside);
    if (CurrentForm().focus != nullptr) ClickCell(grid, row, place);
}

/// An entry that the list does not offer cannot be picked; it is handed to the form as if typed.
void WindowDriver::PickInList(QComboBox& list, const std::string& text) {
    const int entry = list.findText(ToQt(text), Qt::MatchFixedString);
    if (entry < 0) {
        QTest::keyClick(&list, Qt::Key_Escape);
        desktop_.window().door().Raise({UserEvent::Kind::Type, {}, text, 0});
        return;
    }
    list.showPopup();
    const QModelIndex index = list.model()->index(entry, 0);
    QTest::mouseClick(list.view()->viewport(), Qt::LeftButton, {}, list.view()->visualRect(index).center());
}

void WindowDriver::MoveToRow(int row) {
    CheckRow(row);
    ClickCell(FindGridView(), row, static_cast<int>(FindGrid().column));
}

void WindowDriver::DeleteRow(int row) {
    CheckRow(row);
    GridView& grid = FindGridView();
    if (!ClickCell(grid, row, static_cast<int>(FindGrid().column))) return;
    QTest::keyClick(&grid, Qt::Key_Delete, Qt::ControlModifier);
    QApplication::processEvents();
}

std::vector<GridCellReport> WindowDriver::GridCells() {
    std::vector<GridCellReport> cells;
    const QAbstractItemModel& shown = *FindGridView().model();
    for (int row = 0; row < shown.rowCount(); ++row) {
        for (int column = 0; column < shown.columnCount(); ++column) {
            const std::string text = FromQt(shown.data(shown.index(row, column)).toString());
            const std::string variable = FindGrid().columns[static_cast<std::size_t>(column)].variable;
            if (!text.empty()) cells.push_back({row + 1, variable, text});
        }
    }
    return cells;
}

// --- Reading -----------------------------------------------------------------------------------------

PropertyValue WindowDriver::Read(const std::string& control, const std::string& property) {
    const QWidget& widget = Widget(control);
    if (property == "text") return TextOf(widget);
    if (property == "enabled") return IsEnabled(widget);
    if (property == "visible") return !widget.isHidden();
    if (property == "bold") return widget.font().bold();
    if (property == "backcolor") return BackColour(widget);
    if (property == "forecolor") return ForeColour(widget);
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
    return DrawnChart(Widget(control));
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

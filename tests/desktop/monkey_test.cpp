// Random keys, clicks, menu choices and blocks of cells: nothing falls over, and the windows go on showing
// what the model holds. KELVOR_SOAK_ACTS and KELVOR_SOAK_SEED make a long run of it.

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QRadioButton>
#include <QTest>
#include <cstdio>
#include <random>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"
#include "desktop/layout_audit.h"
#include "forms/form.h"

namespace kelvor::test {
namespace {

constexpr unsigned kSeed = 20260117;
constexpr int kActs = 2000;

/// A number from the environment, for long runs.
unsigned FromEnvironment(const char* name, unsigned usual) {
    bool given = false;
    const unsigned number = qEnvironmentVariable(name).toUInt(&given);
    return given ? number : usual;
}

/// The act under way, for a report of what ends the process.
unsigned seedOfRun = 0;
int actUnderWay = 0;

[[maybe_unused]] void TellWhere() { std::fprintf(stderr, "seed %u, act %d\n", seedOfRun, actUnderWay); }

constexpr Qt::Key kKeys[] = {
    Qt::Key_Return, Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Space,    Qt::Key_F1,
    Qt::Key_F2,     Qt::Key_Up,    Qt::Key_Down,    Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Delete,
    Qt::Key_0,      Qt::Key_5,     Qt::Key_9,       Qt::Key_Period, Qt::Key_Comma,    Qt::Key_Minus,
    Qt::Key_E,      Qt::Key_X,     Qt::Key_Home,    Qt::Key_End,    Qt::Key_PageDown, Qt::Key_Backspace,
    Qt::Key_Insert, Qt::Key_Enter,
};
constexpr Qt::Key kAltKeys[] = {Qt::Key_S, Qt::Key_O, Qt::Key_D, Qt::Key_A, Qt::Key_R, Qt::Key_T, Qt::Key_Q};
constexpr Qt::Key kControlKeys[] = {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_A,   Qt::Key_C,     Qt::Key_V,
                                    Qt::Key_X,      Qt::Key_Z,        Qt::Key_Tab, Qt::Key_Delete};
constexpr Qt::Key kPopupKeys[] = {Qt::Key_Up,     Qt::Key_Down, Qt::Key_Return,
                                  Qt::Key_Escape, Qt::Key_M,    Qt::Key_E};
constexpr Qt::Key kArrows[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right};
constexpr const char* kMenus[] = {"MenuUnitsEnglish", "MenuUnitsMetric", "NewProj",     "MenuFileSave",
                                  "MenuAbout",        "mnuRecentFile",   "MenuFileOpen"};
constexpr const char* kAnswers[] = {"ok", "cancel", "yes", "no"};
constexpr const char* kScreens[] = {"DeF", "DeR", "DeS", "LayDet", "TrAx", "TrVe", "TrTr", "TrFa"};
constexpr const char* kScreensWithGrids[] = {"LayDet", "TrAx"};
constexpr const char* kBlocks[] = {"5", "x", "1\t2\t3\n4\t5\t6\n", "s\t18\t9\nt\tmany\n\n\"", "\t\t\n", ""};
constexpr const char* kTyped[] = {"5", "0.4", "many", "1e308", "-1", "s", "5,000"};

class MonkeyTest : public DesktopTest {
  protected:
    template <typename Range>
    auto Any(const Range& range) {
        return range[std::uniform_int_distribution<std::size_t>(0, std::size(range) - 1)(random_)];
    }

    int Upto(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }

    QWidget& Target() {
        if (!window().isActiveWindow()) {
            window().activateWindow();
            (void)QTest::qWaitForWindowActive(&window());
        }
        QWidget* focus = QApplication::focusWidget();
        return focus != nullptr ? *focus : window();
    }

    FormView& AnyView() {
        const auto open = state().formRegistry.InOpeningOrder();
        return *window().FindView(Any(open)->name());
    }

    void ClickSomewhere() {
        FormView& view = AnyView();
        const std::vector<QWidget*> leaves = VisibleLeaves(view);
        QWidget* place = leaves.empty() || Upto(4) == 0 ? &view : Any(leaves);
        const QPoint point(Upto(place->width()), Upto(place->height()));
        if (Upto(5) == 0) {
            QTest::mouseDClick(place, Qt::LeftButton, {}, point);
        } else {
            QTest::mouseClick(place, Qt::LeftButton, {}, point);
        }
    }

    /// A menu or a list that has dropped down takes a few keys.
    void WorkPopup() {
        for (int i = Upto(4); i >= 0; --i) {
            QWidget* popup = QApplication::activePopupWidget();
            if (popup == nullptr) return;
            QTest::keyClick(popup, Any(kPopupKeys));
        }
        while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    }

    void OpenUnitsMenu() {
        QTest::keyClick(&Target(), Qt::Key_U, Qt::AltModifier);
        WorkPopup();
    }

    void OpenList() {
        auto* list = qobject_cast<QComboBox*>(&Target());
        if (list == nullptr) list = qobject_cast<QComboBox*>(Target().parentWidget());
        if (list == nullptr) return;
        list->showPopup();
        WorkPopup();
    }

    // --- Grids ------------------------------------------------------------------------------------------

    GridView* AnyGrid() {
        std::vector<GridView*> grids;
        for (const Form* form : state().formRegistry.InOpeningOrder()) {
            for (auto* table : window().FindView(form->name())->findChildren<QTableView*>()) {
                auto* grid = dynamic_cast<GridView*>(table);
                if (grid != nullptr && table->isVisible() && table->isEnabled()) grids.push_back(grid);
            }
        }
        return grids.empty() ? nullptr : Any(grids);
    }

    static void ClickCell(GridView& grid, const QModelIndex& cell, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, keys, grid.visualRect(cell).center());
    }

    QModelIndex AnyCell(const GridView& grid) {
        const QAbstractItemModel& cells = *grid.model();
        if (cells.rowCount() == 0) return {};
        return cells.index(Upto(std::min(cells.rowCount(), 8) - 1), Upto(cells.columnCount() - 1));
    }

    /// The menu of a grid holds the process up until something is chosen or it is closed.
    void OpenGridMenu(GridView& grid) {
        QMetaObject::invokeMethod(
            &window(), [this] { WorkPopup(); }, Qt::QueuedConnection);
        const QPoint middle = grid.viewport()->rect().center();
        QContextMenuEvent menu(QContextMenuEvent::Mouse, middle, grid.viewport()->mapToGlobal(middle));
        QApplication::sendEvent(grid.viewport(), &menu);
    }

    void WorkGrid() {
        GridView* grid = AnyGrid();
        if (grid == nullptr) {
            window().door().Raise({UserEvent::Kind::OpenForm, Any(kScreensWithGrids), {}, 0});
            return;
        }
        const QModelIndex cell = AnyCell(*grid);
        switch (Upto(6)) {
            case 0:
                return ClickCell(*grid, cell);
            case 1:
                return ClickCell(*grid, cell, Qt::ShiftModifier);  // marks a block
            case 2:
                QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(cell).center());
                return OpenList();
            case 3:
                QTest::keyClick(&Target(), Any(kArrows), Qt::ShiftModifier);
                return;
            case 4:
                return OpenGridMenu(*grid);
            default:
                ClickCell(*grid, cell);
                QTest::keyClick(&Target(), Qt::Key_F2);
                QTest::keyClicks(&Target(), Any(kTyped));
        }
    }

    // --- Everything else ----------------------------------------------------------------------------------

    /// A box that is up is worked by keys, and what else can be reached is closed behind it.
    void MeetNextDialog() {
        responder.whileDialogIsUp = [this](QDialog& dialog) {
            QTest::keyClick(&dialog, Any(kArrows));
            if (Upto(2) == 0) window().close();
            if (Upto(2) == 0) AnyView().parentWidget()->close();
        };
    }

    void UseMenu() {
        if (Upto(20) == 0) responder.AnswerFileDialogWith((home / "bad.kvr").string());
        if (Upto(3) == 0) window().FindAction(Any(kMenus))->trigger();
    }

    void Open() {
        if (Upto(2) == 0) window().door().Raise({UserEvent::Kind::OpenForm, Any(kScreens), {}, 0});
    }

    void DoAnything() {
        responder.QueueAnswer(Any(kAnswers));
        if (Upto(20) == 0) MeetNextDialog();
        if (Upto(20) == 0) QApplication::clipboard()->setText(Any(kBlocks));
        switch (Upto(14)) {
            case 0:
            case 1:
                ClickSomewhere();
                break;
            case 2:
                QTest::keyClick(&Target(), Any(kAltKeys), Qt::AltModifier);
                break;
            case 3:
                QTest::keyClick(&Target(), Any(kControlKeys), Qt::ControlModifier);
                break;
            case 4:
                UseMenu();
                break;
            case 5:
                if (Upto(2) == 0) AnyView().parentWidget()->close();
                break;
            case 6:
            case 7:
                WorkGrid();
                break;
            case 8:
                OpenUnitsMenu();
                break;
            case 9:
                OpenList();
                break;
            case 10:
                Open();
                break;
            default:
                QTest::keyClick(&Target(), Any(kKeys));
        }
        QApplication::processEvents();
    }

    void ExpectMirrored() {
        for (const Form* form : state().formRegistry.InOpeningOrder()) {
            const FormView* view = window().FindView(form->name());
            ASSERT_NE(view, nullptr);
            for (const auto& control : form->controls()) {
                const QWidget* widget = view->FindWidget(control->name);
                if (const auto* box = qobject_cast<const QLineEdit*>(widget)) {
                    ASSERT_EQ(box->text().toStdString(), control->text) << control->name;
                }
                if (const auto* option = qobject_cast<const QRadioButton*>(widget)) {
                    ASSERT_EQ(option->isChecked(), control->value) << control->name;
                }
                ASSERT_EQ(widget->testAttribute(Qt::WA_ForceDisabled), !control->enabled) << control->name;
                ASSERT_EQ(widget->isHidden(), !control->visible) << control->name;
            }
        }
        ASSERT_EQ(window().CurrentView(), window().FindView(state().formRegistry.CurrentForm->name()));
    }

    const unsigned seed_ = FromEnvironment("KELVOR_SOAK_SEED", kSeed);
    const int acts_ = static_cast<int>(FromEnvironment("KELVOR_SOAK_ACTS", kActs));
    std::mt19937 random_{seed_};
};

TEST_F(MonkeyTest, RandomActsDoNoHarm) {
    seedOfRun = seed_;
    std::printf("seed %u, %d acts\n", seed_, acts_);
    std::fflush(stdout);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(TellWhere);
#endif
    WriteFile(home / "bad.kvr", "no project");
    for (actUnderWay = 0; actUnderWay < acts_; ++actUnderWay) {
        SCOPED_TRACE("seed " + std::to_string(seed_) + ", act " + std::to_string(actUnderWay));
        DoAnything();
        ASSERT_TRUE(window().stopReason().empty()) << window().stopReason();
        ASSERT_TRUE(window().isVisible());
        ASSERT_NO_FATAL_FAILURE(ExpectMirrored());
    }
    EXPECT_FALSE(Messages().empty()) << "the acts are too tame to mean anything";
}

}  // namespace
}  // namespace kelvor::test

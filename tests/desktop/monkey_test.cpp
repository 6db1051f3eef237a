// Random keys, clicks, menu choices, designs and blocks of cells: nothing falls over, the windows go on
// showing what the model holds, the line under an equation tells the truth, and the work copy has the work.
// KELVOR_SOAK_ACTS and KELVOR_SOAK_SEED make a long run of it.

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
#include <map>
#include <random>
#include <string>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

#include "desktop/desktop_fixture.h"
#include "desktop/equation_truth.h"
#include "desktop/grid_view.h"
#include "desktop/layout_audit.h"
#include "forms/form.h"

namespace kelvor::test {
namespace {

constexpr unsigned kSeed = 20260117;
constexpr int kActs = 2000;
constexpr int kActsToAComparison = 100;  // of the work copy

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

/// The terms of a design, in the order of the screen, with a value each that is usual.
struct Term {
    const char* name;
    const char* value;
};
constexpr Term kFlexible[] = {{"FLEXE18", "5000000"}, {"FLEXREL", "95"}, {"FLEXDEV", "0.45"},
                              {"RM", "5000"},         {"FLEXPO", "4.2"}, {"FLEXPT", "2.5"}};
constexpr Term kRigid[] = {{"RIGE18", "5000000"}, {"RIGREL", "95"}, {"RIGDEV", "0.29"}, {"MR", "650"},
                           {"EC", "5000000"},     {"J", "3.2"},     {"K", "72"},        {"C", "1"},
                           {"RIGPO", "4.2"},      {"RIGPT", "2.5"}};
constexpr const char* kEntered[] = {"2", "2.2", "4.4", "0.5", "80", "97.5", "8000", "150", "3000000"};
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

    /// Fills a design in, now and then with another value, and mostly solves it.
    template <typename Terms>
    void Design(const char* screen, const char* solvedFor, const Terms& terms) {
        EventDoor& door = window().door();
        door.Raise({UserEvent::Kind::OpenForm, screen, {}, 0});
        for (const Term& term : terms) {
            door.Raise({UserEvent::Kind::Focus, term.name, {}, 0});
            door.Raise({UserEvent::Kind::Type, {}, Upto(9) == 0 ? Any(kEntered) : term.value, 0});
            door.Raise({UserEvent::Kind::Key, "Enter", {}, 0});
        }
        if (Upto(4) == 0) return;
        door.Raise({UserEvent::Kind::Focus, solvedFor, {}, 0});
        door.Raise({UserEvent::Kind::Press, "Command1", {}, 0});
    }

    void DesignAnything() {
        if (Upto(3) != 0) return;
        Upto(1) == 0 ? Design("DeF", "SN", kFlexible) : Design("DeR", "DEPTH", kRigid);
    }

    void DoAnything() {
        responder.QueueAnswer(Any(kAnswers));
        if (Upto(20) == 0) MeetNextDialog();
        if (Upto(20) == 0) QApplication::clipboard()->setText(Any(kBlocks));
        switch (Upto(15)) {
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
            case 11:
                DesignAnything();
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

    /// The line under each design equation says what the stored cells give, in red if they do not fit, and
    /// the window shows it.
    void ExpectTrueChecks() {
        if (!state().dbWork.IsOpen()) return;
        const auto number = [this](const char* name) { return state().dbWork.GetVar(name).value(); };
        for (const char* screen : {"DeF", "DeR"}) {
            const Form* form = state().formRegistry.Find(screen);
            if (form == nullptr) continue;
            const Control* line = form->Find("CHECK");
            ASSERT_NE(line, nullptr);
            const std::string truth = TruthOfCheck(screen, number);
            ASSERT_EQ(line->text.substr(0, truth.size()), truth) << screen << ": " << line->text;
            ASSERT_EQ(line->foreColor == colours::kRed, line->text.starts_with("Not in balance"))
                << line->text;
            const auto* label = qobject_cast<const QLabel*>(window().FindView(screen)->FindWidget("CHECK"));
            ASSERT_NE(label, nullptr);
            ASSERT_EQ(label->text().toStdString(), line->text);
            ++checks_[truth];
        }
    }

    void ExpectSameInWorkCopy() {
        if (!state().dbWork.IsOpen()) return;
        const std::vector<std::string> differences = state().dbWork.CompareWithWorkCopy();
        ASSERT_TRUE(differences.empty()) << "the work copy has another " << differences.front();
    }

    const unsigned seed_ = FromEnvironment("KELVOR_SOAK_SEED", kSeed);
    const int acts_ = static_cast<int>(FromEnvironment("KELVOR_SOAK_ACTS", kActs));
    std::mt19937 random_{seed_};
    std::map<std::string, int> checks_;  // by what the line had to say
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
        ASSERT_NO_FATAL_FAILURE(ExpectTrueChecks());
        if (actUnderWay % kActsToAComparison == 0) {
            ASSERT_NO_FATAL_FAILURE(ExpectSameInWorkCopy());
        }
    }
    for (const auto& [truth, count] : checks_) std::printf("\"%s\" held %d times\n", truth.c_str(), count);
    for (const char* truth : {"In balance: ", "Not in balance: "}) {
        EXPECT_GT(checks_[truth], 0) << "the acts never led to \"" << truth << '"';
    }
    EXPECT_FALSE(Messages().empty()) << "the acts are too tame to mean anything";
}

}  // namespace
}  // namespace kelvor::test

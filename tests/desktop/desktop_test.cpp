// What a user does at the windows: only keys and clicks are sent, and what is compared is read from widgets.

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/theme.h"
#include "forms/form.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Qt::KeyboardModifier kNone = Qt::NoModifier;

class WindowTest : public KeyboardTest {
  protected:
    /// From the start page to the flexible design screen.
    void OpenFlexibleDesign() {
        for (int i = 0; i < 3; ++i) Press(Qt::Key_PageDown, Qt::ControlModifier);
        Press(Qt::Key_A, Qt::AltModifier);
        Press(Qt::Key_D, Qt::AltModifier);
    }

    void TypeFlexibleInputs() {
        for (const char* text : {"5,000,000", "95", "0.45", "5,000", "", "4.2", "2.5"}) TypeAndEnter(text);
    }

    template <typename WidgetType>
    WidgetType& Find(const char* name) {
        auto* widget = window().findChild<WidgetType*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }

    std::string Shown(const char* field) { return Find<QLineEdit>(field).text().toStdString(); }
    std::string Indicator() { return Find<QLabel>("SolveFor").text().toStdString(); }

    static std::string FocusName() {
        ComeBack();
        const QWidget* focus = QApplication::focusWidget();
        return focus == nullptr ? "" : focus->objectName().toStdString();
    }

    /// Without a window manager nobody brings the window back once a box has closed.
    static void ComeBack() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (qobject_cast<QMainWindow*>(widget) == nullptr || !widget->isVisible()) continue;
            widget->activateWindow();
            (void)QTest::qWaitForWindowActive(widget);
        }
    }
};

TEST_F(WindowTest, FromTheStartToASolvedStructuralNumberByKeysAlone) {
    OpenFlexibleDesign();
    EXPECT_EQ(FocusName(), "FLEXE18");
    TypeFlexibleInputs();
    EXPECT_EQ(Shown("FLEXE18"), "5,000,000");
    EXPECT_EQ(Indicator(), "WARNING!\nInput Value Changed\nPress Solve For to Recalculate");
    Press(Qt::Key_T, Qt::AltModifier);  // Structural Number
    EXPECT_EQ(FocusName(), "SN");
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_EQ(Shown("SN"), "5.41");
    EXPECT_EQ(Indicator(), "Structural Number\n5.41 ");
    EXPECT_TRUE(Find<QLabel>("SolveFor").font().bold());
    EXPECT_EQ(FocusName(), "SN");
    EXPECT_EQ(state().dbWork.GetVar("SN"), 5.4134716796874995);
}

TEST_F(WindowTest, UnitsSwitchByTheMenuKeysAndTheRedIndicatorStays) {
    OpenFlexibleDesign();
    TypeFlexibleInputs();
    EXPECT_EQ(Find<QLabel>("uRM").text(), "psi");
    QTest::keyClick(&window(), Qt::Key_U, Qt::AltModifier);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_M);
    QApplication::processEvents();
    EXPECT_EQ(Find<QLabel>("uRM").text(), "MPa");
    EXPECT_EQ(Shown("RM"), "34");
    EXPECT_TRUE(window().FindAction("MenuUnitsMetric")->isChecked());
    EXPECT_FALSE(window().FindAction("MenuUnitsEnglish")->isChecked());
    EXPECT_TRUE(Indicator().starts_with("WARNING!"));
    QTest::keyClick(&window(), Qt::Key_U, Qt::AltModifier);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_M);  // the one that is active
    QApplication::processEvents();
    EXPECT_TRUE(window().FindAction("MenuUnitsMetric")->isChecked());
}

TEST_F(WindowTest, TheThreeStatesOfTheIndicatorLookDifferent) {
    OpenFlexibleDesign();
    const QPalette resting = Find<QLabel>("SolveFor").palette();
    EXPECT_EQ(resting.color(QPalette::Window), ScreenColour(colours::kResting, QPalette()));
    TypeFlexibleInputs();
    const QPalette warning = Find<QLabel>("SolveFor").palette();
    EXPECT_EQ(warning.color(QPalette::Window), ScreenColour(colours::kLightRed, QPalette()));
    EXPECT_EQ(warning.color(QPalette::WindowText), QColor(Qt::white));
    Press(Qt::Key_T, Qt::AltModifier);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Find<QLabel>("SolveFor").palette().color(QPalette::Window),
              ScreenColour(colours::kResting, QPalette()));
}

// --- Bad input ----------------------------------------------------------------------------------------

TEST_F(WindowTest, ATextInANumberBoxIsRefusedAndTheFocusStays) {
    OpenFlexibleDesign();
    TypeAndEnter("many");
    EXPECT_THAT(Messages(), ElementsAre("Please enter valid numeric value."));
    EXPECT_EQ(FocusName(), "FLEXE18");
    EXPECT_EQ(Shown("FLEXE18"), "");
}

TEST_F(WindowTest, AValueOutOfRangeIsRefusedAlsoByAClickElsewhere) {
    OpenFlexibleDesign();
    Press(Qt::Key_Return);
    Type("20");
    QTest::mouseClick(&Find<QLineEdit>("RM"), Qt::LeftButton);
    EXPECT_THAT(Messages(), ElementsAre("Warning: Input out of range. Enter value between 50 and 99.99"));
    EXPECT_EQ(FocusName(), "FLEXREL");
    EXPECT_EQ(Shown("FLEXREL"), "");
}

TEST_F(WindowTest, AValueThatIsRefusedKeepsItsScreenInFront) {
    OpenFlexibleDesign();
    Type("many");
    auto* hub = window().FindView("TabForm");
    QTest::mouseClick(hub->tabs()->tabBar(), Qt::LeftButton, {}, hub->tabs()->tabBar()->tabRect(0).center());
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(window().CurrentView(), window().FindView("DeF"));
    EXPECT_EQ(hub->tabs()->currentIndex(), 2);
    EXPECT_EQ(FocusName(), "FLEXE18");
}

TEST_F(WindowTest, ServiceabilityThatDoesNotFallIsToldAndNothingIsSolved) {
    OpenFlexibleDesign();
    for (const char* text : {"5,000,000", "95", "0.45", "5,000", "", "2.5", "4.2"}) TypeAndEnter(text);
    Press(Qt::Key_T, Qt::AltModifier);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_THAT(Messages(), ElementsAre("          Error:   Pt  >=  Po          "));
    EXPECT_EQ(Shown("SN"), "");
}

TEST_F(WindowTest, AnEmptyTermIsToldAndTheIndicatorStaysRed) {
    OpenFlexibleDesign();
    for (const char* text : {"5,000,000", "", "0.45", "5,000", "", "4.2", "2.5"}) TypeAndEnter(text);
    Press(Qt::Key_T, Qt::AltModifier);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Shown("SN"), "");
    EXPECT_TRUE(Indicator().starts_with("WARNING!"));
}

TEST_F(WindowTest, AHalfTypedValueIsStoredBeforeSolveForRuns) {
    OpenFlexibleDesign();
    TypeFlexibleInputs();
    Press(Qt::Key_T, Qt::AltModifier);
    Press(Qt::Key_S, Qt::AltModifier);
    Type("3");  // into Structural Number
    Press(Qt::Key_E, Qt::AltModifier);
    QApplication::processEvents();
    EXPECT_EQ(state().dbWork.GetVar("SN"), 3.0);
    Press(Qt::Key_R, Qt::AltModifier);
    Type("9");
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_THAT(Messages(), ElementsAre("Warning: Input out of range. Enter value between 50 and 99.99"));
    EXPECT_TRUE(Indicator().starts_with("WARNING!")) << "a refused value stops the solve";
    EXPECT_EQ(FocusName(), "FLEXREL");
}

TEST_F(WindowTest, AThousandPastedCharactersAreRefusedWithOneMessage) {
    OpenFlexibleDesign();
    QApplication::clipboard()->setText(QString(1000, u'x'));
    Press(Qt::Key_V, Qt::ControlModifier);
    Press(Qt::Key_Return);
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Shown("FLEXE18"), "");
    QApplication::clipboard()->setText(QString(400, u'9'));
    Press(Qt::Key_V, Qt::ControlModifier);
    Press(Qt::Key_Return);
    EXPECT_EQ(Messages().size(), 1U);
}

TEST_F(WindowTest, EnterHeldDownGoesRoundAndChangesNothing) {
    OpenFlexibleDesign();
    TypeFlexibleInputs();
    const auto before = Shown("FLEXE18");
    for (int i = 0; i < 365; ++i) {  // thirty rounds of twelve stops, and five
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, kNone, "\r", true);
        QApplication::sendEvent(QApplication::focusWidget(), &held);
    }
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_EQ(Shown("FLEXE18"), before);
    EXPECT_EQ(FocusName(), "FLEXE18");  // from Solve For over Layer Determ., Cross Section, OK and Help
    EXPECT_NE(window().FindView("DeF"), nullptr);
}

TEST_F(WindowTest, AltWithALetterThatIsNoAccessKeyTypesNothing) {
    OpenFlexibleDesign();
    TypeFlexibleInputs();
    Press(Qt::Key_E, Qt::AltModifier);
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_Z, Qt::AltModifier, "z");
    QApplication::sendEvent(QApplication::focusWidget(), &letter);
    EXPECT_EQ(Shown("FLEXPT"), "2.50");
}

TEST_F(WindowTest, SpaceHeldDownOnAButtonClicksItOnce) {
    OpenFlexibleDesign();
    TypeFlexibleInputs();
    Press(Qt::Key_T, Qt::AltModifier);
    Press(Qt::Key_S, Qt::AltModifier);
    for (int i = 0; i < 3; ++i) Press(Qt::Key_Tab);
    ASSERT_EQ(FocusName(), "Command1");
    for (int i = 0; i < 20; ++i) {
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, kNone, " ", i > 0);
        QApplication::sendEvent(QApplication::focusWidget(), &held);
    }
    EXPECT_EQ(FocusName(), "FLEXPT") << "the field that had the focus before";
    EXPECT_EQ(Shown("FLEXPT"), "2.50");
    QKeyEvent released(QEvent::KeyRelease, Qt::Key_Space, kNone, " ");
    QApplication::sendEvent(QApplication::focusWidget(), &released);
    Type(" ");
    EXPECT_EQ(Shown("FLEXPT"), " ");
}

TEST_F(WindowTest, AfterASaveOrASolveTheNextCharacterReplacesTheValue) {
    OpenFlexibleDesign();
    TypeFlexibleInputs();
    Press(Qt::Key_T, Qt::AltModifier);
    for (int i = 0; i < 2; ++i) Press(Qt::Key_S, Qt::AltModifier);
    Type("7");
    EXPECT_EQ(Shown("SN"), "7");
    responder.AnswerFileDialogWith((home / "road.kvr").string());
    QTest::keyClick(&window(), Qt::Key_S, Qt::ControlModifier);
    ComeToFront();
    Type("6");
    EXPECT_EQ(Shown("SN"), "6");
}

TEST_F(WindowTest, WhatAnInputMethodHoldsBackIsStoredWithItsField) {
    OpenFlexibleDesign();
    Press(Qt::Key_Return);
    QInputMethodEvent held;
    held.setCommitString("90");
    QApplication::sendEvent(QApplication::focusWidget(), &held);
    Press(Qt::Key_Return);
    EXPECT_EQ(Shown("FLEXREL"), "90.00");
    EXPECT_EQ(state().dbWork.GetVar("FLEXREL"), 90.0);
}

TEST_F(WindowTest, ClosingWhileABoxIsOpenDoesNothing) {
    OpenFlexibleDesign();
    bool tried = false;
    responder.whileDialogIsUp = [&](QDialog&) {
        tried = true;
        window().FindView("DeF")->parentWidget()->close();
        window().close();
    };
    TypeAndEnter("many");
    EXPECT_TRUE(tried);
    EXPECT_TRUE(window().isVisible());
    EXPECT_NE(window().FindView("DeF"), nullptr);
    EXPECT_EQ(Messages().size(), 1U);
}

TEST_F(WindowTest, EscShowsTheStoredValueAgain) {
    OpenFlexibleDesign();
    TypeAndEnter("5000000");
    Press(Qt::Key_Backtab);
    Type("77");
    EXPECT_EQ(Shown("FLEXE18"), "77");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Shown("FLEXE18"), "5,000,000");
    Type("8");
    EXPECT_EQ(Shown("FLEXE18"), "8") << "the value is selected as a whole again";
}

// --- Rigid design ------------------------------------------------------------------------------------------

TEST_F(WindowTest, FromTheStartToASolvedSlabWithKFromItsHelpByKeysAlone) {
    Press(Qt::Key_PageDown, Qt::ControlModifier);  // from the start tab round to the first one
    Press(Qt::Key_PageDown, Qt::ControlModifier);
    Press(Qt::Key_PageDown, Qt::ControlModifier);
    while (FocusName() != "oDeR") Press(Qt::Key_Tab);
    Press(Qt::Key_Return);
    Press(Qt::Key_D, Qt::AltModifier);
    ASSERT_EQ(FocusName(), "DEPTH");
    Press(Qt::Key_Return);
    for (const char* value : {"5,000,000", "95", "0.35", "650", "4,000,000", "3.2"}) TypeAndEnter(value);
    ASSERT_EQ(FocusName(), "K");
    Press(Qt::Key_F1);
    ASSERT_EQ(FocusName(), "MRSG");
    TypeAndEnter("7000");
    TypeAndEnter("15000");
    TypeAndEnter("6");
    Press(Qt::Key_O, Qt::AltModifier);
    ASSERT_EQ(FocusName(), "K");
    EXPECT_EQ(Shown("K"), "335.7");
    Press(Qt::Key_Return);
    for (const char* value : {"1", "4.5", "2.5"}) TypeAndEnter(value);
    EXPECT_EQ(FocusName(), "Command1");
    while (FocusName() != "DEPTH") Press(Qt::Key_Backtab);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_THAT(Messages(), IsEmpty());
    // The 1993 design equation for these inputs, solved by bisection beside the program: 8.96 inches.
    EXPECT_EQ(Shown("DEPTH"), "9.0");
    EXPECT_EQ(Indicator(), "Slab Thickness, D\n9.0 in");
}

// --- Grids -----------------------------------------------------------------------------------------------

class GridWindowTest : public WindowTest {
  protected:
    GridWindowTest() {
        OpenFlexibleDesign();
        Press(Qt::Key_L, Qt::AltModifier);
    }

    QTableView& Table() { return Find<QTableView>("Grid"); }

    std::string Cell(int row, int column) {
        return Table().model()->data(Table().model()->index(row - 1, column)).toString().toStdString();
    }
};

TEST_F(GridWindowTest, ALayerIsTypedByKeysAlone) {
    EXPECT_EQ(FocusName(), "Grid");
    Press(Qt::Key_Right);
    TypeAndEnter("0.44");
    TypeAndEnter("1");
    Type("4");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Cell(1, 4), "1.76");
    EXPECT_EQ(Shown("SSN"), "1.76");
    EXPECT_EQ(Table().currentIndex().row(), 1) << "Tab passes over what is computed";
    Press(Qt::Key_Backtab);
    Press(Qt::Key_Right);
    EXPECT_EQ(Find<QLabel>("Hint").text(), "Layer Struct No, SNi: computed");
    Press(Qt::Key_Left);
    Press(Qt::Key_F2);
    Press(Qt::Key_Home);
    Type("1");
    Press(Qt::Key_Down);
    EXPECT_EQ(Cell(1, 3), "14.0");
    EXPECT_EQ(Table().currentIndex().row(), 1);
    Press(Qt::Key_Up);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Cell(1, 3), "");
    EXPECT_EQ(Shown("SSN"), "0.00");
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(GridWindowTest, ARefusedCellStaysUnderTheCursor) {
    Press(Qt::Key_Right);
    TypeAndEnter("much");
    EXPECT_THAT(Messages(), ElementsAre("Please enter valid numeric value."));
    ComeToFront();
    EXPECT_EQ(Table().currentIndex().column(), 1);
    EXPECT_EQ(Cell(1, 1), "");
    TypeAndEnter("0.2");
    EXPECT_EQ(Cell(1, 1), "0.200");
}

TEST_F(GridWindowTest, EscLeavesTheCellAsItWas) {
    Press(Qt::Key_Right);
    Type("0.2");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Cell(1, 1), "");
    EXPECT_EQ(FocusName(), "Grid");
    Press(Qt::Key_Return);
    EXPECT_EQ(state().dbWork.GetVarDim("LDLayerCoef", 1, 1), 0.0);
}

TEST_F(GridWindowTest, ABlockOfFiftyRowsIsPastedAndCopiedAsPlainNumbers) {
    QString block;
    for (int row = 1; row <= 50; ++row) block += "0.1\t1\t10.5\t7\t8\n";
    Press(Qt::Key_Right);
    QApplication::clipboard()->setText(block);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_THAT(Messages(),
                ElementsAre("44 rows were left out. The first is row 7, Layer Coefficient, a: The "
                            "table has no such row."));
    EXPECT_EQ(Cell(6, 3), "10.5");
    EXPECT_EQ(Shown("SSN"), "6.30");
    Table().selectAll();
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("\t0.100\t1.00\t10.5\t1.05\t"));
}

// --- The frame --------------------------------------------------------------------------------------------

TEST_F(WindowTest, TheStatusLineAndTheToolTipSayWhatTheFieldWants) {
    OpenFlexibleDesign();
    Press(Qt::Key_Return);
    EXPECT_EQ(Find<QLabel>("Hint").text(), "Reliability: 50.00 to 99.99 percent");
    EXPECT_EQ(Find<QLineEdit>("FLEXREL").toolTip(), "Reliability: 50.00 to 99.99 percent");
    EXPECT_EQ(Find<QLineEdit>("FLEXREL").accessibleName(), "Reliability, percent");
}

TEST_F(WindowTest, AClickBesideTheControlsLeavesTheCursorWhereItIs) {
    OpenFlexibleDesign();
    Type("12");
    QTest::mouseClick(window().FindView("DeF"), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_EQ(FocusName(), "FLEXE18");
    Type("3");
    EXPECT_EQ(Shown("FLEXE18"), "123");
}

TEST_F(WindowTest, TheWindowMenuListsTheOpenFormsAndBringsThemToTheFront) {
    OpenFlexibleDesign();
    QTest::keyClick(&window(), Qt::Key_W, Qt::AltModifier);
    ASSERT_NE(window().FindWindowAction("DeF"), nullptr);
    EXPECT_TRUE(window().FindWindowAction("DeF")->isChecked());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_1);
    QApplication::processEvents();
    EXPECT_EQ(window().CurrentView(), window().FindView("TabForm"));
    QTest::keyClick(&window(), Qt::Key_W, Qt::AltModifier);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_2);
    QApplication::processEvents();
    EXPECT_EQ(window().CurrentView(), window().FindView("DeF"));
}

TEST_F(WindowTest, TheCloseBoxOfAScreenAsksWhileItIsNotBalanced) {
    OpenFlexibleDesign();
    TypeAndEnter("5000000");
    responder.QueueAnswer("no");
    window().FindView("DeF")->parentWidget()->close();
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_NE(window().FindView("DeF"), nullptr);
    responder.QueueAnswer("yes");
    window().FindView("DeF")->parentWidget()->close();
    EXPECT_EQ(window().FindView("DeF"), nullptr);
    Press(Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(Indicator().starts_with("WARNING!")) << "the warning outlasts the closing";
}

TEST_F(WindowTest, ExitOffersToSaveAndCancelStays) {
    OpenFlexibleDesign();
    TypeAndEnter("5000000");
    responder.QueueAnswer("cancel");
    window().close();
    EXPECT_TRUE(window().isVisible());
    EXPECT_THAT(Messages(), ElementsAre("The contents of <unnamed project> has changed. Do you want to save "
                                        "your changes?"));
    EXPECT_EQ(window().FindView("TabForm")->tabs()->currentIndex(), 7);
    responder.QueueAnswer("no");
    window().close();
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(desktop.program().ended());
}

TEST_F(WindowTest, ATitleNamesTheProjectOnceItIsSaved) {
    EXPECT_EQ(window().windowTitle(), "Kelvor");
    responder.AnswerFileDialogWith((home / "road.kvr").string());
    QTest::keyClick(&window(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(window().windowTitle().toStdString(), "KVR - " + (home / "road.kvr").string());
}

TEST_F(WindowTest, AModalFormKeepsTheUserFromEverythingElse) {
    FormType asks;
    asks.name = "Asks";
    asks.tag = "DeF";
    asks.caption = "Asks";
    asks.modal = true;
    asks.layout = Rows({Fields({{"SN"}})});
    state().formRegistry.Declare({asks});
    OpenFlexibleDesign();
    window().door().Raise({UserEvent::Kind::OpenForm, "Asks", {}, 0});
    QWidget* behind = window().FindView("DeF");
    EXPECT_FALSE(behind->isEnabled());
    EXPECT_FALSE(window().menuBar()->isEnabled());
    window().door().Raise({UserEvent::Kind::ActivateForm, "DeF", {}, 0});
    EXPECT_EQ(window().CurrentView(), window().FindView("Asks"));
    Press(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(window().FindView("Asks"), nullptr);
    EXPECT_TRUE(behind->isEnabled());
    EXPECT_TRUE(window().menuBar()->isEnabled());
    EXPECT_EQ(FocusName(), "FLEXE18");
}

TEST_F(WindowTest, AStopOfTheProgramClosesTheWindow) {
    window().door().Perform([](Program&) { throw ProgramStop("a cell has no row"); });
    EXPECT_EQ(window().stopReason(), "a cell has no row");
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(desktop.program().ended());
}

// --- Start ------------------------------------------------------------------------------------------------

TEST(DesktopStartTest, AMissingCatalogueIsToldAndNoWindowComes) {
    const TestHome home;
    std::filesystem::remove(home / "DataBase/Kelvor.mdb");
    QuestionRecord record;
    DialogResponder responder(record);
    DesktopProgram desktop(home.home());
    EXPECT_FALSE(desktop.Start(""));
    EXPECT_THAT(record.TakeTexts(),
                ElementsAre("One file is missing (Kelvor.mdb).\n\nPlease reinstall program."));
}

TEST(DesktopStartTest, AnAbsentFileLeavesAnEmptyWindowFromWhichNewGoesOn) {
    const TestHome home;
    QuestionRecord record;
    DialogResponder responder(record);
    DesktopProgram desktop(home.home());
    EXPECT_TRUE(desktop.Start("/nosuch.kvr"));
    EXPECT_THAT(record.TakeTexts(), ElementsAre("/nosuch.kvr file does not exist!"));
    EXPECT_EQ(desktop.window().CurrentView(), nullptr);
    desktop.window().FindAction("NewProj")->trigger();
    ASSERT_NE(desktop.window().CurrentView(), nullptr);
    EXPECT_EQ(desktop.window().CurrentView(), desktop.window().FindView("TabForm"));
}

}  // namespace
}  // namespace kelvor::test

// What stands round the screens: the overview, the start page, how the document stands, what is remembered.

#include <gmock/gmock.h>

#include <QAccessible>
#include <QClipboard>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <atomic>
#include <chrono>
#include <fstream>
#include <thread>

#include "desktop/desktop_fixture.h"
#include "desktop/hand_over.h"
#include "desktop/key_table.h"
#include "desktop/layout_audit.h"
#include "desktop/palettes.h"
#include "desktop/window_settings.h"
#include "forms/form.h"
#include "shell/file_suggestion.h"
#include "shell/overview.h"

namespace kelvor::test {
namespace {

using testing::IsEmpty;

/// Wide enough for the tabs and what stands beside them.
constexpr QSize kWide(1300, 850);

class LargeWindowTest : public KeyboardTest {
  protected:
    LargeWindowTest() {
        window().resize(kWide);
        QApplication::processEvents();
    }

    void TearDown() override { QApplication::setPalette(LightPalette()); }

    template <typename WidgetType>
    WidgetType& Find(const char* name) {
        auto* widget = window().findChild<WidgetType*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }

    void Raise(UserEvent::Kind kind, const std::string& name = {}, const std::string& text = {},
               int number = 0) {
        window().door().Raise({kind, name, text, number});
        QApplication::processEvents();
    }

    /// Numbers of a flexible design, of which SN is not what the equation asks for.
    void EnterFlexibleDesign() {
        Raise(UserEvent::Kind::OpenForm, "DeF");
        for (const char* value : {"5000000", "95", "0.45", "5000", "3", "4.2", "2.5"}) TypeAndEnter(value);
        responder.QueueAnswer("yes");  // it may close without being balanced
        Raise(UserEvent::Kind::CloseForm, "DeF");
        Messages();
    }

    QTableWidget& Overview() { return window().company().overview()->table(); }
    std::string Cell(int row, int column) { return Overview().item(row, column)->text().toStdString(); }
    std::string Document() { return Find<QLabel>("Document").text().toStdString(); }

    static std::string FocusName() {
        const QWidget* focus = QApplication::focusWidget();
        return focus == nullptr ? "" : focus->objectName().toStdString();
    }

    std::string SaveAs(const std::string& name) {
        std::string path = (home / name).string();
        responder.AnswerFileDialogWith(path);
        window().FindAction("MenuFileSaveAs")->trigger();
        ComeToFront();
        return path;
    }
};

// --- The overview ---------------------------------------------------------------------------------------

TEST_F(LargeWindowTest, TheOverviewHasALineForWhatHoldsDataAndItOpensTheScreen) {
    ASSERT_TRUE(window().company().overview()->isVisible());
    EXPECT_TRUE(Find<QLabel>("OverviewEmpty").isVisible());
    EnterFlexibleDesign();
    ASSERT_EQ(Overview().rowCount(), 1);
    EXPECT_EQ(Cell(0, 0), "Flexible Design Inputs");
    EXPECT_THAT(Cell(0, 1), testing::HasSubstr("3.00"));
    EXPECT_EQ(Cell(0, 2), "Not balanced");
    Overview().setFocus();
    QTest::keyClick(&Overview(), Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(window().CurrentView(), window().FindView("DeF"));
}

TEST_F(LargeWindowTest, ADoubleClickOnALineOpensItsScreen) {
    EnterFlexibleDesign();
    const QPoint place = Overview().visualItemRect(Overview().item(0, 0)).center();
    QTest::mouseClick(Overview().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(Overview().viewport(), Qt::LeftButton, {}, place);
    QApplication::processEvents();
    EXPECT_NE(window().FindView("DeF"), nullptr);
}

TEST_F(LargeWindowTest, TheOverviewFollowsSolveForAndTheUnits) {
    EnterFlexibleDesign();
    window().door().Perform([](Program& program) { program.Solve("DeF", 1); });
    EXPECT_EQ(Cell(0, 2), "Balanced");
    // The 1993 equation gives SN 5.41 for these inputs; a metric one is 25.4 times that.
    EXPECT_THAT(Cell(0, 1), testing::HasSubstr("5.41"));
    Raise(UserEvent::Kind::Menu, "MenuUnitsMetric");
    EXPECT_THAT(Cell(0, 1), testing::HasSubstr("137.5"));
}

TEST_F(LargeWindowTest, TheOverviewIsCopiedAsTextAndAsATable) {
    EnterFlexibleDesign();
    Overview().setFocus();
    QTest::keyClick(&Overview(), Qt::Key_C, Qt::ControlModifier);
    const QString text = QApplication::clipboard()->text();
    EXPECT_TRUE(text.startsWith("Screen\tResults\tEquation\nFlexible Design Inputs\t")) << text.toStdString();
    EXPECT_TRUE(text.endsWith("\tNot balanced\n"));
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->html().contains("<td>Flexible Design Inputs</td>"));
}

TEST_F(LargeWindowTest, F9HidesTheOverviewAndANarrowWindowHasNone) {
    OverviewPanel& panel = *window().company().overview();
    QTest::keyClick(&window(), Qt::Key_F9);
    EXPECT_FALSE(panel.isVisible());
    QTest::keyClick(&window(), Qt::Key_F9);
    EXPECT_TRUE(panel.isVisible());
    window().resize(800, 600);
    QApplication::processEvents();
    EXPECT_FALSE(panel.isVisible());
    QTest::keyClick(&window(), Qt::Key_F9);
    EXPECT_EQ(Find<QLabel>("Hint").text(), "The overview needs a wider window");
    QTest::keyClick(&window(), Qt::Key_F9);
    window().resize(kWide);
    QApplication::processEvents();
    EXPECT_TRUE(panel.isVisible());
}

/// The line under the keys is seen: it has the colour of what is chosen, and a paler one while the keys go
/// elsewhere.
TEST_F(LargeWindowTest, WhatIsChosenInTheOverviewIsPalerWithoutTheFocus) {
    EnterFlexibleDesign();
    QTableWidget& table = Overview();
    const auto ground = [&] {
        QApplication::processEvents();
        const QRect cell = table.visualItemRect(table.item(0, 0));
        return table.viewport()->grab().toImage().pixelColor(cell.right() - 6, cell.bottom() - 6);
    };
    Press(Qt::Key_8, Qt::ControlModifier);
    ASSERT_FALSE(table.hasFocus());
    const QColor resting = ground();
    for (int i = 0; i < 10 && !table.hasFocus(); ++i) Press(Qt::Key_Tab);
    ASSERT_TRUE(table.hasFocus());
    const QColor focused = ground();
    EXPECT_EQ(focused, QApplication::palette().color(QPalette::Highlight));
    EXPECT_NE(resting, focused);
    EXPECT_NE(resting, QApplication::palette().color(QPalette::Base));
    EXPECT_GT(std::abs(resting.lightness() - QApplication::palette().color(QPalette::Text).lightness()), 128);
}

TEST_F(LargeWindowTest, TheOverviewIsWorkedOutWithinFiveMilliseconds) {
    EnterFlexibleDesign();
    using Clock = std::chrono::steady_clock;
    auto best = Clock::duration::max();
    for (int i = 0; i < 20; ++i) {
        const auto begun = Clock::now();
        EXPECT_EQ(MakeOverview(state()).size(), 1U);
        best = std::min(best, Clock::now() - begun);
    }
    EXPECT_LT(best, std::chrono::milliseconds(5));
}

/// What is typed goes to a field that can be seen: a screen that hides it gives way until it is worked in
/// again.
TEST_F(LargeWindowTest, AFieldOfTheHubIsNeverHiddenBehindAScreen) {
    Raise(UserEvent::Kind::OpenForm, "ReDfF");
    Press(Qt::Key_5, Qt::ControlModifier);
    const auto isSeen = [this](const QWidget& widget) {
        const QWidget* top = window().childAt(widget.mapTo(&window(), widget.rect().center()));
        return top == &widget || widget.isAncestorOf(top);
    };
    ASSERT_EQ(FocusName(), "InterestRate");
    EXPECT_TRUE(isSeen(*QApplication::focusWidget()));
    Raise(UserEvent::Kind::ActivateForm, "ReDfF");
    EXPECT_TRUE(isSeen(*window().FindView("ReDfF")->FindWidget("Grid")));
    EXPECT_TRUE(isSeen(*window().FindView("ReDfF")->FindWidget("cmdAction")));
}

/// A keyboard without a Menu key has Shift+F10.
TEST_F(LargeWindowTest, ShiftF10OpensTheMenuOfAField) {
    Raise(UserEvent::Kind::OpenForm, "DeF");
    bool shown = false;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        shown = menu != nullptr && menu->objectName() == "FieldMenu";
        if (menu != nullptr) menu->close();
    });
    Press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(shown);
}

// --- The start page ---------------------------------------------------------------------------------------

TEST_F(LargeWindowTest, TabGoesThroughTheStartPageTheTabsAndTheOverview) {
    EnterFlexibleDesign();
    Press(Qt::Key_8, Qt::ControlModifier);
    std::vector<std::string> names;
    for (int i = 0; i < 8; ++i) {
        Press(Qt::Key_Tab);
        names.push_back(FocusName());
    }
    EXPECT_THAT(
        names, testing::ElementsAre("StartNew", "StartOpen", "StartRecent", "StartSamples",
                                    "StartFirstDesign", "StartNews", "qt_tabwidget_tabbar", "OverviewTable"));
    Press(Qt::Key_Backtab);
    EXPECT_EQ(FocusName(), "qt_tabwidget_tabbar");
    Press(Qt::Key_Right);
    EXPECT_EQ(window().FindView("TabForm")->tabs()->currentIndex(), 0) << "round to the first tab";
    EXPECT_EQ(FocusName(), "qt_tabwidget_tabbar") << "the strip keeps the focus";
}

TEST_F(LargeWindowTest, OnATabWithFieldsTabGoesRoundOverTheStripAndTheOverview) {
    EnterFlexibleDesign();
    Press(Qt::Key_3, Qt::ControlModifier);
    const Form& hub = *window().FindView("TabForm")->form();
    const std::string first = hub.focus->name;
    EXPECT_EQ(FocusName(), first);
    for (int i = 0; i < 20 && FocusName() != "qt_tabwidget_tabbar"; ++i) Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "qt_tabwidget_tabbar");
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "OverviewTable");
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), first);
    Press(Qt::Key_Backtab);
    EXPECT_EQ(FocusName(), "OverviewTable");
}

TEST_F(LargeWindowTest, ANewProjectOfTheStartPageBeginsAtItsFirstTab) {
    ASSERT_EQ(window().FindView("TabForm")->tabs()->currentIndex(), 7);
    QTest::mouseClick(&Find<QPushButton>("StartNew"), Qt::LeftButton);
    EXPECT_EQ(window().FindView("TabForm")->tabs()->currentIndex(), 0);
    EXPECT_EQ(FocusName(), "Agency");
}

TEST_F(LargeWindowTest, RecentProjectsStandWithTheirDateAndMissingOnesSaySo) {
    SaveAs("road.kvr");
    std::filesystem::remove(SaveAs("gone.kvr"));
    Press(Qt::Key_1, Qt::ControlModifier);
    Press(Qt::Key_8, Qt::ControlModifier);
    auto& recent = Find<QListWidget>("StartRecent");
    ASSERT_EQ(recent.count(), 2);
    EXPECT_THAT(recent.item(0)->text().toStdString(),
                testing::MatchesRegex("gone \\(....-..-.. ..:.., missing\\)"));
    EXPECT_THAT(recent.item(1)->text().toStdString(), testing::MatchesRegex("road \\(....-..-.. ..:..\\)"));
    recent.setCurrentRow(1);
    QTest::keyClick(&recent, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(state().sProjectFile, (home / "road.kvr").string());
}

TEST_F(LargeWindowTest, AButtonOfTheStartPageBeginsANewProject) {
    SaveAs("road.kvr");
    Press(Qt::Key_8, Qt::ControlModifier);
    Press(Qt::Key_Tab);
    Press(Qt::Key_Return);
    EXPECT_EQ(state().sProjectFile, "");
}

/// A home with a sample in it.
class SampleTest : public testing::Test {
  protected:
    SampleTest() {
        std::filesystem::create_directory(home / "Samples");
        std::filesystem::copy(Path(KELVOR_HOME_FOLDER) / "Samples/flexible_design.kvr", sample);
        EXPECT_TRUE(desktop.Start(""));
    }

    TestHome home;
    Path sample = home / "Samples/flexible_design.kvr";
    QuestionRecord record;
    DialogResponder responder{record};
    DesktopProgram desktop{home.home()};
};

TEST_F(SampleTest, ASampleOpensAsACopyWithoutANameAndIsNotRemembered) {
    auto* samples = desktop.window().findChild<QListWidget*>(QStringLiteral("StartSamples"));
    ASSERT_EQ(samples->count(), 1);
    EXPECT_EQ(samples->item(0)->text(), "Flexible design");
    QTest::keyClick(samples, Qt::Key_Return);
    QApplication::processEvents();
    ProcessState& state = desktop.program().state();
    EXPECT_NE(state.dbWork.GetVar("FLEXE18"), 0.0);
    EXPECT_EQ(state.sProjectFile, "");
    EXPECT_THAT(state.recentMenu, IsEmpty());
    EXPECT_EQ(desktop.window().windowTitle(), "Kelvor");
    EXPECT_EQ(SuggestedProjectFile(state), "flexible_design.kvr");
    EXPECT_NE(desktop.window().findChild<QMenu*>(QStringLiteral("MenuSamples"))->actions().size(), 0);
    EXPECT_THAT(record.TakeTexts(), IsEmpty());
}

// --- The document -----------------------------------------------------------------------------------------

TEST_F(LargeWindowTest, TheFootSaysHowTheProjectStands) {
    EXPECT_EQ(Document(), "Unnamed project");
    EnterFlexibleDesign();
    EXPECT_EQ(Document(), "Unnamed project*");
    SaveAs("road.kvr");
    EXPECT_EQ(Document(), "Saved road");
    EXPECT_EQ(window().windowIconText(), "road - Kelvor");
    Raise(UserEvent::Kind::OpenForm, "DeF");
    TypeAndEnter("6000000");
    EXPECT_EQ(Document(), "road*");
    EXPECT_EQ(window().windowIconText(), "road* - Kelvor");
    EXPECT_EQ(window().windowTitle().toStdString(), "KVR - " + (home / "road.kvr").string());
}

TEST_F(LargeWindowTest, TheToolBarActsWithoutTakingTheFocus) {
    Raise(UserEvent::Kind::OpenForm, "DeF");
    Type("77");
    auto& bar = Find<QToolBar>("ToolBar");
    QStringList captions;
    for (const QAction* action : bar.actions()) captions << action->iconText();
    captions.removeAll(QString());
    EXPECT_EQ(captions.join(' ').toStdString(),
              "New Open Save Undo Redo Cut Copy Paste Print English Metric Overview Help");
    QWidget* undo = bar.widgetForAction(window().FindAction("MenuEditUndo"));
    QTest::mouseClick(undo, Qt::LeftButton);
    EXPECT_EQ(Find<QLineEdit>("FLEXE18").text(), "") << "what was being typed is dropped";
    EXPECT_EQ(FocusName(), "FLEXE18");
}

TEST_F(LargeWindowTest, AValueIsCopiedWithItsUnitAndAScreenAsATable) {
    EnterFlexibleDesign();
    Raise(UserEvent::Kind::OpenForm, "DeF");
    Raise(UserEvent::Kind::Focus, "RM");
    Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "5,000 psi");
    Press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    const QString table = QApplication::clipboard()->text();
    EXPECT_TRUE(table.startsWith("Flexible Design Inputs\n")) << table.toStdString();
    EXPECT_TRUE(table.contains("\t5,000\tpsi\n")) << table.toStdString();
}

// --- What is remembered
// -------------------------------------------------------------------------------------

TEST(RememberedWindowTest, SizeOverviewAndUnitsAreThereAtTheNextStart) {
    const TestHome home;
    QuestionRecord record;
    DialogResponder responder(record);
    {
        DesktopProgram desktop(home.home());
        ASSERT_TRUE(desktop.Start(""));
        desktop.window().resize(640, 500);
        desktop.window().FindAction("MenuUnitsMetric")->trigger();
        desktop.window().findChild<QAction*>(QStringLiteral("ViewOverview"))->trigger();
        desktop.window().close();
    }
    DesktopProgram desktop(home.home());
    ASSERT_TRUE(desktop.Start(""));
    QApplication::processEvents();
    EXPECT_EQ(desktop.window().size(), QSize(640, 500));
    EXPECT_FALSE(desktop.window().company().overviewWanted());
    EXPECT_TRUE(desktop.program().state().units->bMetric());
    desktop.window().FindAction("MenuUnitsEnglish")->trigger();
    desktop.window().FindAction("NewProj")->trigger();
    EXPECT_TRUE(desktop.program().state().units->bMetric())
        << "a new project begins in the remembered system";
    EXPECT_FALSE(desktop.program().state().bProjectChanged);
}

TEST(RememberedWindowTest, ALanguageThatCannotBeKeptIsNotPromised) {
    const TestHome home;
    EXPECT_TRUE(WindowSettings(home / "kvrwindow.ini").KeepLanguage("es"));
    EXPECT_FALSE(WindowSettings(home.path()).KeepLanguage("es")) << "a folder is no file";
}

TEST_F(LargeWindowTest, AScreenKeepsTheSizeThatTheUserGaveIt) {
    Raise(UserEvent::Kind::OpenForm, "LayDet");
    QWidget* frame = window().FindView("LayDet")->parentWidget();
    const QSize larger = frame->size() + QSize(60, 90);
    const int gridBefore = window().FindView("LayDet")->FindWidget("Grid")->height();
    frame->resize(larger);
    QApplication::processEvents();
    EXPECT_GT(window().FindView("LayDet")->FindWidget("Grid")->height(), gridBefore) << "the table grows";
    Raise(UserEvent::Kind::CloseForm, "LayDet");
    Raise(UserEvent::Kind::OpenForm, "LayDet");
    EXPECT_EQ(window().FindView("LayDet")->parentWidget()->size(), larger);
}

TEST_F(LargeWindowTest, ASecondStartHandsItsProjectToTheFirst) {
    const std::string path = SaveAs("road.kvr");
    window().FindAction("NewProj")->trigger();
    ASSERT_EQ(state().sProjectFile, "");
    std::atomic<int> taken = -1;
    std::thread second([&] { taken = HandOver(home.home(), path) ? 1 : 0; });
    (void)QTest::qWaitFor([&] { return taken >= 0; });
    second.join();
    EXPECT_EQ(taken, 1);
    QApplication::processEvents();
    EXPECT_EQ(state().sProjectFile, path);
}

TEST(HandOverTest, NothingIsHandedOverWhereNoProgramRuns) {
    const TestHome home;
    EXPECT_FALSE(HandOver(home.home(), "road.kvr"));
    { const std::ofstream left(home.home().HandOverFile()); }
    EXPECT_FALSE(HandOver(home.home(), "road.kvr")) << "the file of a program that was killed";
}

// --- Keys ------------------------------------------------------------------------------------------------

TEST_F(LargeWindowTest, TheTabsHaveKeys) {
    const QTabWidget& tabs = *window().FindView("TabForm")->tabs();
    for (int tab = 0; tab < 8; ++tab) {
        Press(static_cast<Qt::Key>(Qt::Key_1 + tab), Qt::ControlModifier);
        EXPECT_EQ(tabs.currentIndex(), tab);
    }
    Press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs.currentIndex(), 0);
    Press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs.currentIndex(), 1);
    Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(tabs.currentIndex(), 0);
    Raise(UserEvent::Kind::OpenForm, "DeF");
    Press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(tabs.currentIndex(), 1);
    EXPECT_EQ(window().CurrentView(), window().FindView("TabForm")) << "from a screen back to the hub";
}

TEST(KeyTableTest, TheHelpPageOfKeysShowsEveryRow) {
    const std::string page = ReadFile(KELVOR_SOURCE_FOLDER "/data/help/Keys.html");
    std::vector<KeyRow> rows = WindowKeys();
    rows.insert(rows.end(), PreviewKeys().begin(), PreviewKeys().end());
    for (const KeyRow& row : rows) {
        const std::string line =
            "<tr><td>" + std::string(row.shown) + "</td><td>" + row.effect + "</td></tr>";
        EXPECT_THAT(page, testing::HasSubstr(line));
        EXPECT_FALSE(KeysOf(row.act).isEmpty());
        for (const QKeySequence& keys : KeysOf(row.act)) EXPECT_FALSE(keys.isEmpty()) << row.keys;
    }
}

TEST_F(LargeWindowTest, TheHelpPageOfKeysHasTheKeysOfTheMenus) {
    const std::string page = ReadFile(KELVOR_SOURCE_FOLDER "/data/help/Keys.html");
    int keys = 0;
    for (const QAction* action : window().menuBar()->findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts()) {
            const std::string shown = key.toString(QKeySequence::PortableText).toStdString();
            const bool stands = page.find(">" + shown + "<") != std::string::npos ||
                                page.find(">" + shown + ",") != std::string::npos ||
                                page.find(" " + shown + ",") != std::string::npos ||
                                page.find(" " + shown + "<") != std::string::npos;
            EXPECT_TRUE(stands) << shown << " of " << action->text().toStdString();
            ++keys;
        }
    }
    EXPECT_GE(keys, 8);
}

// --- Those who hear the screen, and those who see little --------------------------------------------------

/// A grid and a chart tell what they hold; whatever else takes the focus also has a tool tip.
void ExpectToSpeak(const FormView& view, const Control& control) {
    SCOPED_TRACE(view.form()->name() + " " + control.name);
    QWidget* widget = view.FindWidget(control.name);
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(told, nullptr);
    EXPECT_FALSE(told->text(QAccessible::Name).isEmpty());
    EXPECT_NE(told->role(), QAccessible::NoRole);
    EXPECT_NE(told->role(), QAccessible::Client);
    EXPECT_FALSE(told->text(QAccessible::Description).isEmpty());
    EXPECT_TRUE(control.grid || control.chart || !widget->toolTip().isEmpty());
}

void ExpectAllToSpeak(const FormView& view) {
    for (const auto& control : view.form()->controls()) {
        const bool acts = control->IsButton() || control->IsChoice() || view.form()->CanFocus(*control);
        const bool bound = !control->IsBox() || !control->tag.empty() || !control->toolTip.empty();
        if (control->visible && acts && bound) ExpectToSpeak(view, *control);
    }
}

TEST_F(LargeWindowTest, EveryControlSaysItsNameItsRoleAndWhatItIsFor) {
    for (int tab = 0; tab < 8; ++tab) {
        Raise(UserEvent::Kind::SwitchTab, {}, {}, tab);
        ExpectAllToSpeak(*window().FindView("TabForm"));
    }
    for (const std::string& name : state().formRegistry.TypeNames()) {
        Raise(UserEvent::Kind::OpenForm, name);
        const FormView* view = window().FindView(name);
        ASSERT_NE(view, nullptr) << name;
        ExpectAllToSpeak(*view);
        responder.QueueAnswer("yes");
        Raise(UserEvent::Kind::CloseForm, name);
    }
}

TEST_F(LargeWindowTest, TheBoxOfAHelpSaysWhatItsFieldWants) {
    Raise(UserEvent::Kind::OpenForm, "DeF");
    Raise(UserEvent::Kind::Focus, "FLEXREL");
    Press(Qt::Key_F1);
    const FormView* help = window().CurrentView();
    ASSERT_EQ(help->form()->name(), "HelpForm");
    ExpectAllToSpeak(*help);
    EXPECT_EQ(help->FindWidget("TextBox")->toolTip(), "Reliability: 50.00 to 99.99 percent");
}

TEST_F(LargeWindowTest, WhatStandsBesideTheTabsIsNamedWholeAndReadableLightAndDark) {
    EnterFlexibleDesign();
    for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
        QApplication::setPalette(palette);
        for (int tab = 0; tab < 8; ++tab) {
            Raise(UserEvent::Kind::SwitchTab, {}, {}, tab);
            SCOPED_TRACE(tab);
            const FormView& hub = *window().FindView("TabForm");
            EXPECT_THAT(FindCutWidgets(hub), IsEmpty());
            EXPECT_THAT(FindOverlaps(hub), IsEmpty());
            EXPECT_THAT(FindUnnamed(hub), IsEmpty());
            EXPECT_THAT(FindWeakContrast(hub), IsEmpty());
        }
    }
}

}  // namespace
}  // namespace kelvor::test

// What comes up at a right click, at Alt+Down, and when a second start hands over a project while a box is
// up.

#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"
#include "desktop/window_settings.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MenusTest : public KeyboardTest {
  protected:
    void Open(const char* form) {
        window().door().Raise({UserEvent::Kind::OpenForm, form});
        QApplication::processEvents();
    }

    QWidget& On(const char* form, const char* control) {
        return *window().FindView(form)->FindWidget(control);
    }

    /// The captions of the menu that a right click on a widget brings up, without their keys; the entry of a
    /// caption is chosen.
    std::vector<std::string> RightClick(QWidget& widget, const std::string& chosen = {}) {
        std::vector<std::string> captions;
        QTimer::singleShot(0, &window(), [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr) return;
            QAction* entry = nullptr;
            for (QAction* action : menu->actions()) {
                if (action->isSeparator()) continue;
                captions.push_back(action->text().section(u'\t', 0, 0).remove(u'&').toStdString());
                if (captions.back() == chosen) entry = action;
            }
            if (entry != nullptr) entry->trigger();
            menu->close();
        });
        const QPoint middle = widget.rect().center();
        QContextMenuEvent click(QContextMenuEvent::Mouse, middle, widget.mapToGlobal(middle));
        QApplication::sendEvent(&widget, &click);
        QApplication::processEvents();
        return captions;
    }
};

TEST_F(MenusTest, AFieldOffersItsValueWithTheUnitAndItsHelp) {
    Open("DeF");
    window().door().Raise({UserEvent::Kind::Focus, "RM"});
    ComeToFront();
    TypeAndEnter("5000");
    window().door().Raise({UserEvent::Kind::Focus, "RM"});
    const std::vector<std::string> captions = RightClick(On("DeF", "RM"), "Copy Value with Unit");
    EXPECT_THAT(captions, testing::IsSupersetOf({"Copy Value with Unit", "Help on This Field", "Paste"}));
    EXPECT_EQ(QApplication::clipboard()->text(), "5,000 psi");
}

TEST_F(MenusTest, AGridOffersWhatIsDoneToItsRows) {
    Open("LayDet");
    window().door().Raise({UserEvent::Kind::MoveToCell, "LDLayerCoef", {}, 1});
    window().door().Raise({UserEvent::Kind::PasteCells, {}, "0.44\t1\t4"});
    auto& grid = dynamic_cast<GridView&>(On("LayDet", "Grid"));
    EXPECT_THAT(RightClick(*grid.viewport(), "Insert Row"),
                ElementsAre("Copy", "Paste", "Fill Down", "Insert Row", "Move Row Up", "Move Row Down",
                            "Delete Row"));
    EXPECT_EQ(state().dbWork.GetVarDim("LDLayerThick", 2, 1), 4.0);
}

TEST_F(MenusTest, AChartOffersItsPicture) {
    Open("CostChart");
    QWidget* chart = nullptr;
    for (const auto& control : state().formRegistry.CurrentForm->controls()) {
        if (control->chart) chart = window().CurrentView()->FindWidget(control->name);
    }
    ASSERT_NE(chart, nullptr);
    EXPECT_THAT(RightClick(*chart), ElementsAre("Save as SVG...", "Save as PNG...", "Copy", "Print..."));
}

TEST_F(MenusTest, AltAndDownOpenTheListOfACell) {
    Open("LayDet");
    const GridData& data = *state().formRegistry.Find("LayDet")->FindGrid()->grid;
    window().door().Raise({UserEvent::Kind::MoveToCell, data.columns.front().variable, {}, 1});
    ComeToFront();
    Press(Qt::Key_Down, Qt::AltModifier);
    auto* list = On("LayDet", "Grid").findChild<QComboBox*>();
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(list->view()->isVisible());
    list->hidePopup();
}

TEST_F(MenusTest, AltAndDownOpenTheListOfAField) {
    window().door().Raise({UserEvent::Kind::SwitchTab, {}, {}, 6});
    window().door().Raise({UserEvent::Kind::Focus, "CustCombo"});
    ComeToFront();
    auto* list = qobject_cast<QComboBox*>(&On("TabForm", "CustCombo"));
    ASSERT_NE(list, nullptr);
    Press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(list->view()->isVisible());
    list->hidePopup();
}

// --- Projects that are handed over
// ---------------------------------------------------------------------------

class HandedOverTest : public MenusTest {
  protected:
    HandedOverTest() {
        responder.AnswerFileDialogWith(path);
        window().FindAction("MenuFileSaveAs")->trigger();
        window().FindAction("NewProj")->trigger();
    }

    const std::string path = (home / "road.kvr").string();
};

TEST_F(HandedOverTest, WhileABoxIsUpTheProjectWaitsAndIsOpenedThen) {
    ASSERT_EQ(state().sProjectFile, "");
    desktop.program().SetValue("SN", 1, 1, "4");
    responder.whileDialogIsUp = [&](QDialog& /*box*/) {
        window().OpenHandedOver((home / "nosuch.kvr").string());
        window().OpenHandedOver(path);
        QTest::qWait(250);
        EXPECT_EQ(state().sProjectFile, "");
    };
    responder.QueueAnswer("cancel");
    window().FindAction("MenuFileExit")->trigger();  // asks whether to save
    Messages();
    EXPECT_TRUE(QTest::qWaitFor([&] { return state().sProjectFile == path; }));
    EXPECT_THAT(Messages(), IsEmpty()) << "of several the last one is opened";
}

TEST_F(HandedOverTest, WhileAMenuIsUpTheProjectWaits) {
    Open("LayDet");
    auto& grid = dynamic_cast<GridView&>(On("LayDet", "Grid"));
    QTimer::singleShot(0, &window(), [&] { window().OpenHandedOver(path); });
    RightClick(*grid.viewport());
    EXPECT_TRUE(QTest::qWaitFor([&] { return state().sProjectFile == path; }));
}

// --- The sheet of the reports
// ---------------------------------------------------------------------------------

TEST(RememberedSheetTest, PaperAndMarginsAreThereAtTheNextStart) {
    const TestHome home;
    QuestionRecord record;
    DialogResponder responder(record);
    {
        DesktopProgram desktop(home.home());
        ASSERT_TRUE(desktop.Start(""));
        desktop.program().state().reports.engine()->SetPages({Paper::A4, 36.0});
        desktop.window().close();
    }
    DesktopProgram desktop(home.home());
    ASSERT_TRUE(desktop.Start(""));
    const PageSetup setup = desktop.program().state().reports.engine()->Pages();
    EXPECT_EQ(setup.paper, Paper::A4);
    EXPECT_EQ(setup.marginPoints, 36.0);
}

TEST(RememberedSheetTest, ASheetThatMakesNoSenseIsThatOfANewHome) {
    const TestHome home;
    {
        QSettings settings(QString::fromStdString(home.home().WindowFile().string()), QSettings::IniFormat);
        settings.setValue("Reports/Paper", "Parchment");
        settings.setValue("Reports/MarginPoints", 1e9);
    }
    const PageSetup setup = WindowSettings(home.home().WindowFile()).Pages();
    EXPECT_EQ(setup.paper, Paper::Letter);
    EXPECT_EQ(setup.marginPoints, 54.0);
}

}  // namespace
}  // namespace kelvor::test

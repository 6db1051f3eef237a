// A cell that is being edited when something else happens to its screen.

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"

namespace kelvor::test {
namespace {

using testing::IsEmpty;

class GridEditorTest : public KeyboardTest {
  protected:
    /// The layers' grid with its first thickness in edit; `typed` has been typed into it.
    GridEditorTest() {
        window().door().Raise({UserEvent::Kind::OpenForm, "LayDet", {}, 0});
        for (int i = 0; i < 3; ++i) Press(Qt::Key_Right);
        Press(Qt::Key_F2);
        EXPECT_NE(Grid().editor(), nullptr);
    }

    GridView& Grid() { return dynamic_cast<GridView&>(*window().FindView("LayDet")->FindWidget("Grid")); }
    QWidget* Frame() { return window().FindView("LayDet")->parentWidget(); }
    double Thickness(int row) { return state().dbWork.GetVarDim("LDLayerThick", row, 1).value(); }

    /// What has been put off until the toolkit comes round is done too.
    static void Settle() {
        for (int i = 0; i < 3; ++i) {
            QApplication::processEvents();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
};

TEST_F(GridEditorTest, TheScreenIsClosedByItsButtonsKey) {
    Type("4");
    Press(Qt::Key_O, Qt::AltModifier);
    Settle();
    EXPECT_EQ(window().FindView("LayDet"), nullptr);
    EXPECT_EQ(Thickness(1), 4.0) << "what was typed is stored first";
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(GridEditorTest, TheScreenIsClosedByItsCloseBox) {
    Type("4");
    Frame()->close();
    Settle();
    EXPECT_EQ(window().FindView("LayDet"), nullptr);
    EXPECT_EQ(Thickness(1), 4.0);
}

TEST_F(GridEditorTest, TheScreenIsClosedByANewProject) {
    Type("4");
    responder.QueueAnswer("no");  // do not save
    window().FindAction("NewProj")->trigger();
    Settle();
    EXPECT_EQ(window().FindView("LayDet"), nullptr);
    EXPECT_EQ(Thickness(1), 0.0) << "a fresh project";
    EXPECT_TRUE(window().isVisible());
}

TEST_F(GridEditorTest, TheScreenIsClosedOverAnEditorIntoWhichNothingWasTyped) {
    Frame()->close();
    Settle();
    EXPECT_EQ(window().FindView("LayDet"), nullptr);
}

TEST_F(GridEditorTest, ARefusedValueKeepsTheScreenOpen) {
    Type("four");
    Frame()->close();
    Settle();
    EXPECT_THAT(Messages(), testing::ElementsAre("Please enter valid numeric value."));
    ASSERT_NE(window().FindView("LayDet"), nullptr);
    ComeToFront();
    Type("4");
    Press(Qt::Key_Return);
    EXPECT_EQ(Thickness(1), 4.0);
}

TEST_F(GridEditorTest, TheUnitsAreSwitchedOverAnEdit) {
    Type("4");
    window().FindAction("MenuUnitsMetric")->trigger();
    Settle();
    EXPECT_EQ(Thickness(1), 4.0) << "stored in the units in which it was typed";
    EXPECT_EQ(Grid().model()->index(0, 3).data().toString(), "101.6") << "of 25.4 mm each inch";
}

// --- Clicks while a value is refused ----------------------------------------------------------------------

class RefusedClickTest : public GridEditorTest {
  protected:
    void Click(int row, int column) {
        const QPoint place = Grid().visualRect(Grid().model()->index(row, column)).center();
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, place);
        Settle();
    }

    QModelIndexList Marked() { return Grid().selectionModel()->selectedIndexes(); }
};

TEST_F(RefusedClickTest, TheCursorAndWhatIsMarkedStayOnTheCell) {
    Type("four");
    Click(2, 1);
    EXPECT_THAT(Messages(), testing::ElementsAre("Please enter valid numeric value."));
    const QModelIndex cell = Grid().model()->index(0, 3);
    EXPECT_EQ(Grid().currentIndex(), cell);
    EXPECT_THAT(Marked(), testing::ElementsAre(cell));
    Type("5");
    Press(Qt::Key_Return);
    EXPECT_EQ(Thickness(1), 5.0) << "the marked cell is the one that is typed into";
}

TEST_F(RefusedClickTest, OtherwiseTheClickedCellHasTheCursorAndIsMarked) {
    Type("4");
    Click(2, 1);
    const QModelIndex cell = Grid().model()->index(2, 1);
    EXPECT_EQ(Thickness(1), 4.0);
    EXPECT_EQ(Grid().currentIndex(), cell);
    EXPECT_THAT(Marked(), testing::ElementsAre(cell));
}

/// What a box looks like without the focus, with its caret at the place where a click would show it.
QImage PictureOf(QLineEdit& box) {
    box.deselect();
    return box.grab().toImage();
}

class RefusedBoxTest : public KeyboardTest {
  protected:
    RefusedBoxTest() {
        QApplication::setCursorFlashTime(0);  // a caret that shows does so always
        window().door().Raise({UserEvent::Kind::OpenForm, "DeF", {}, 0});
    }

    void TearDown() override { QApplication::setCursorFlashTime(before_); }

    QLineEdit& Box(const char* name) {
        return dynamic_cast<QLineEdit&>(*window().FindView("DeF")->FindWidget(name));
    }

    int before_ = QApplication::cursorFlashTime();
};

TEST_F(RefusedBoxTest, ABoxThatMayNotHaveTheFocusShowsNoCaret) {
    QLineEdit& clicked = Box("FLEXPT");
    const QImage before = PictureOf(clicked);
    QTest::mouseClick(&Box("SN"), Qt::LeftButton);
    Type("50");
    QTest::mouseClick(&clicked, Qt::LeftButton);
    ComeToFront();
    EXPECT_THAT(Messages(), testing::SizeIs(1));
    EXPECT_EQ(QApplication::focusWidget(), &Box("SN"));
    EXPECT_EQ(PictureOf(clicked), before);
}

// --- Whose key it is --------------------------------------------------------------------------------------

TEST_F(GridEditorTest, UpAndDownLeaveTheLineOfACell) {
    Type("4");
    Press(Qt::Key_Down);
    EXPECT_EQ(Thickness(1), 4.0);
    EXPECT_EQ(Grid().editor(), nullptr);
    EXPECT_EQ(Grid().currentIndex().row(), 1);
    EXPECT_EQ(Grid().currentIndex().column(), 3);
    Press(Qt::Key_F2);
    Type("5");
    Press(Qt::Key_Up);
    EXPECT_EQ(Thickness(2), 5.0);
    EXPECT_EQ(Grid().currentIndex().row(), 0);
}

TEST_F(GridEditorTest, LeftRightAndSpaceStayInTheLineOfACell) {
    Type("45");
    Press(Qt::Key_Left);
    Type("0");
    Press(Qt::Key_Right);
    ASSERT_NE(Grid().editor(), nullptr);
    EXPECT_EQ(dynamic_cast<QLineEdit&>(*Grid().editor()).text(), "405");
    Press(Qt::Key_Space);
    EXPECT_EQ(dynamic_cast<QLineEdit&>(*Grid().editor()).text(), "405 ");
    EXPECT_EQ(Grid().currentIndex().column(), 3);
}

TEST_F(GridEditorTest, DeleteInTheLineOfACellTakesOneCharacter) {
    Type("45");
    Press(Qt::Key_Home);
    Press(Qt::Key_Delete);
    ASSERT_NE(Grid().editor(), nullptr);
    EXPECT_EQ(dynamic_cast<QLineEdit&>(*Grid().editor()).text(), "5");
}

TEST_F(GridEditorTest, UpAndDownInAListChooseAnEntryAndDoNotLeaveIt) {
    Press(Qt::Key_Escape);
    for (int i = 0; i < 3; ++i) Press(Qt::Key_Left);
    Press(Qt::Key_F2);
    ASSERT_NE(qobject_cast<QComboBox*>(Grid().editor()), nullptr);
    Press(Qt::Key_Down);
    EXPECT_NE(Grid().editor(), nullptr);
    EXPECT_EQ(Grid().currentIndex().row(), 0);
}

TEST_F(GridEditorTest, KeysWithControlAndAltAreNotTheModels) {
    Type("4");
    for (const Qt::KeyboardModifier held : {Qt::ControlModifier, Qt::MetaModifier}) {
        Press(Qt::Key_Return, held);
        EXPECT_NE(Grid().editor(), nullptr);
        EXPECT_EQ(Thickness(1), 0.0) << "not stored yet";
    }
    ASSERT_NE(Grid().editor(), nullptr);
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_Z, Qt::AltModifier, "z");
    QApplication::sendEvent(Grid().editor(), &letter);
    EXPECT_EQ(dynamic_cast<QLineEdit&>(*Grid().editor()).text(), "4") << "no access key, and no text either";
}

TEST_F(GridEditorTest, ShiftWithEnterMovesOnAsTabDoes) {
    Type("4");
    Press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Thickness(1), 4.0);
    EXPECT_EQ(Grid().currentIndex().row(), 1) << "the first cell of the next row that takes a value";
}

TEST_F(GridEditorTest, ASpaceThatIsHeldFromAButtonTypesNothing) {
    Press(Qt::Key_Escape);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
    window().door().spaceHeld = true;
    QApplication::sendEvent(&Grid(), &held);
    EXPECT_EQ(Grid().editor(), nullptr);
    QKeyEvent released(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, " ");
    QApplication::sendEvent(&Grid(), &released);
    EXPECT_FALSE(window().door().spaceHeld);
}

TEST_F(GridEditorTest, ASpaceThatRepeatsAfterItsReleaseIsNotLookedFor) {
    window().door().spaceHeld = true;
    QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, " ", true);
    QApplication::sendEvent(&Grid(), &repeated);
    EXPECT_TRUE(window().door().spaceHeld) << "the keyboard repeats; the key is still down";
    window().door().spaceHeld = false;
}

TEST_F(GridEditorTest, AnAccessKeyThatRepeatsActsOnce) {
    Press(Qt::Key_Escape);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_O, Qt::AltModifier, "o", true);
    QApplication::sendEvent(&Grid(), &repeated);
    EXPECT_NE(window().FindView("LayDet"), nullptr);
}

TEST_F(GridEditorTest, ControlWithPageDownGoesToTheNextTabOnlyWhereThereAreTabs) {
    Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window().CurrentView(), window().FindView("LayDet"));
    EXPECT_EQ(window().FindView("TabForm")->form()->page(), state().formRegistry.Find("TabForm")->page());
}

}  // namespace
}  // namespace kelvor::test

// Which keys the model gets, and which a widget keeps for itself.

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "forms/form.h"

namespace kelvor::test {
namespace {

class KeyRoutingTest : public KeyboardTest {
  protected:
    void OpenWithFocus(const char* form, const char* control) {
        window().door().Raise({UserEvent::Kind::OpenForm, form, {}, 0});
        window().door().Raise({UserEvent::Kind::Focus, control, {}, 0});
        ComeToFront();
        QApplication::processEvents();
        ASSERT_EQ(FocusName(), control);
    }

    std::string FocusName() {
        const Form* form = state().formRegistry.CurrentForm;
        return form == nullptr || form->focus == nullptr ? "" : form->focus->name;
    }

    template <typename WidgetType>
    WidgetType& Find(const char* form, const char* name) {
        return dynamic_cast<WidgetType&>(*window().FindView(form)->FindWidget(name));
    }
};

TEST_F(KeyRoutingTest, InABoxTheArrowsMoveItsOwnCursor) {
    OpenWithFocus("DeF", "FLEXREL");
    Type("95");
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Down}) Press(key);
    auto& box = Find<QLineEdit>("DeF", "FLEXREL");
    EXPECT_EQ(FocusName(), "FLEXREL");
    EXPECT_EQ(box.text(), "95");
    Press(Qt::Key_Home);
    Press(Qt::Key_Right);
    EXPECT_EQ(box.cursorPosition(), 1);
    Press(Qt::Key_Space);
    EXPECT_EQ(box.text(), "9 5");
    EXPECT_FALSE(window().door().spaceHeld) << "it clicks nothing there";
}

TEST_F(KeyRoutingTest, InAListUpAndDownChooseAndLeftAndRightStayInItsText) {
    OpenWithFocus("TrFa", "TrPer");
    auto& list = Find<QComboBox>("TrFa", "TrPer");
    const int last = list.count() - 1;
    list.lineEdit()->setFocus(Qt::TabFocusReason);
    for (int i = 0; i <= last + 1; ++i) Press(Qt::Key_Down);
    EXPECT_EQ(list.currentText(), list.itemText(last));
    EXPECT_EQ(state().formRegistry.Find("TrFa")->Find("TrPer")->text, list.itemText(last).toStdString());
    Press(Qt::Key_Up);
    EXPECT_EQ(list.currentText(), list.itemText(last - 1));
    const QString chosen = list.currentText();
    Press(Qt::Key_Home);
    Press(Qt::Key_Right);
    EXPECT_EQ(list.lineEdit()->cursorPosition(), 1);
    Press(Qt::Key_Left);
    EXPECT_EQ(list.lineEdit()->cursorPosition(), 0);
    EXPECT_EQ(list.currentText(), chosen);
    EXPECT_EQ(FocusName(), "TrPer");
}

TEST_F(KeyRoutingTest, OutsideABoxTheArrowsAndSpaceAreTheModels) {
    window().door().Raise({UserEvent::Kind::SwitchTab, {}, {}, 2});  // Design / Evaluation
    window().door().Raise({UserEvent::Kind::Focus, "oDeF", {}, 0});
    ComeToFront();
    ASSERT_EQ(FocusName(), "oDeF");
    Press(Qt::Key_Down);
    const std::string next = FocusName();
    EXPECT_NE(next, "oDeF");
    EXPECT_TRUE(state().formRegistry.Find("TabForm")->Find(next)->value);
    Press(Qt::Key_Left);
    EXPECT_EQ(FocusName(), "oDeF");
    Press(Qt::Key_Right);
    EXPECT_EQ(FocusName(), next);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), "oDeF");
}

TEST_F(KeyRoutingTest, SpaceOnAButtonIsHeldUntilItIsLetGo) {
    OpenWithFocus("DeF", "Command2");
    QKeyEvent pressed(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
    QApplication::sendEvent(QApplication::focusWidget(), &pressed);
    EXPECT_TRUE(window().door().spaceHeld);
    EXPECT_EQ(state().formRegistry.CurrentForm->name(), "LayDet");
    QKeyEvent released(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, " ");
    QApplication::sendEvent(QApplication::focusWidget(), &released);
    EXPECT_FALSE(window().door().spaceHeld);
}

TEST_F(KeyRoutingTest, AnAccessKeyThatRepeatsActsOnce) {
    OpenWithFocus("DeF", "FLEXE18");
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_O, Qt::AltModifier, "o", true);
    QApplication::sendEvent(QApplication::focusWidget(), &repeated);
    EXPECT_NE(window().FindView("DeF"), nullptr);
    QKeyEvent pressed(QEvent::KeyPress, Qt::Key_O, Qt::AltModifier, "o");
    QApplication::sendEvent(QApplication::focusWidget(), &pressed);
    EXPECT_EQ(window().FindView("DeF"), nullptr);
}

TEST_F(KeyRoutingTest, AKeyWithControlIsTheWidgetsOwn) {
    OpenWithFocus("DeF", "FLEXREL");
    Press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(FocusName(), "FLEXREL");
    Press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_NE(FocusName(), "FLEXREL");
}

}  // namespace
}  // namespace kelvor::test

// The small buttons beside fields whose values a help works out.

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QToolButton>

#include "desktop/desktop_fixture.h"

namespace kelvor::test {
namespace {

class SmallButtonTest : public KeyboardTest {
  protected:
    FormView& Open(const char* form) {
        window().door().Raise({UserEvent::Kind::OpenForm, form, {}, 0});
        QApplication::processEvents();
        return *window().FindView(form);
    }

    static QRect PlaceOf(const FormView& view, const char* name) {
        const QWidget& widget = *view.FindWidget(name);
        return {widget.mapTo(&view, QPoint(0, 0)), widget.size()};
    }

    std::string FocusName() { return state().formRegistry.CurrentForm->focus->name; }
};

TEST_F(SmallButtonTest, StandsBehindTheUnitAndIsNoTallerThanTheBox) {
    FormView& view = Open("DeS");
    for (const auto& [button, unit, box] :
         {std::array{"cmdbK", "uK", "K"}, std::array{"cmdbRM", "uRM", "RM"}}) {
        const QRect place = PlaceOf(view, button);
        EXPECT_GE(place.left(), PlaceOf(view, unit).right()) << button;
        EXPECT_LE(place.height(), PlaceOf(view, box).height()) << button;
        EXPECT_LE(place.width(), 2 * place.height()) << button;
        EXPECT_LE(std::abs(place.center().y() - PlaceOf(view, box).center().y()), 1) << button;
    }
}

TEST_F(SmallButtonTest, IsNamedByWhatItDoes) {
    QWidget* button = Open("DeR").FindWidget("cmdbK");
    EXPECT_NE(qobject_cast<QToolButton*>(button), nullptr);
    EXPECT_EQ(button->toolTip(), "Work out the modulus of subgrade reaction");
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(button);
    EXPECT_EQ(heard->text(QAccessible::Name), button->toolTip());
}

TEST_F(SmallButtonTest, AClickLeavesTheFieldAndOpensItsHelp) {
    FormView& view = Open("DeF");
    window().door().Raise({UserEvent::Kind::Focus, "RM", {}, 0});
    Type("6000");
    QTest::mouseClick(view.FindWidget("cmdbRM"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(state().dbWork.GetVar("RM"), 6000.0);
    ASSERT_NE(window().FindView("H_SRM"), nullptr);
    Press(Qt::Key_Escape);
    EXPECT_EQ(FocusName(), "RM");
}

TEST_F(SmallButtonTest, TabAndEnterPassOverItAndF2PressesIt) {
    FormView& view = Open("DeF");
    window().door().Raise({UserEvent::Kind::Focus, "RM", {}, 0});
    QApplication::processEvents();
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "SN");
    Press(Qt::Key_Backtab);
    EXPECT_EQ(FocusName(), "RM");
    EXPECT_FALSE(view.FindWidget("cmdbRM")->hasFocus());
    Press(Qt::Key_F2);
    EXPECT_NE(window().FindView("H_SRM"), nullptr);
    Press(Qt::Key_Escape);
    EXPECT_EQ(FocusName(), "RM");
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), "SN");
}

}  // namespace
}  // namespace kelvor::test

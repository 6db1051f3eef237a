// Two thousand random keys, clicks and menu choices: nothing falls over, and the windows go on showing what
// the model holds.

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QRadioButton>
#include <QTest>
#include <random>

#include "desktop/desktop_fixture.h"
#include "desktop/layout_audit.h"
#include "forms/form.h"

namespace kelvor::test {
namespace {

constexpr unsigned kSeed = 20260117;
constexpr int kEvents = 2000;

constexpr Qt::Key kKeys[] = {
    Qt::Key_Return, Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Space,    Qt::Key_F1,
    Qt::Key_F2,     Qt::Key_Up,    Qt::Key_Down,    Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Delete,
    Qt::Key_0,      Qt::Key_5,     Qt::Key_9,       Qt::Key_Period, Qt::Key_Comma,    Qt::Key_Minus,
    Qt::Key_E,      Qt::Key_X,     Qt::Key_Home,    Qt::Key_End,    Qt::Key_PageDown, Qt::Key_Backspace,
    Qt::Key_Insert, Qt::Key_Enter,
};
constexpr Qt::Key kAltKeys[] = {Qt::Key_S, Qt::Key_O, Qt::Key_D, Qt::Key_A, Qt::Key_R, Qt::Key_T, Qt::Key_Q};
constexpr Qt::Key kControlKeys[] = {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_A, Qt::Key_C,
                                    Qt::Key_V,      Qt::Key_X,        Qt::Key_Z, Qt::Key_Tab};
constexpr const char* kMenus[] = {"MenuUnitsEnglish", "MenuUnitsMetric", "NewProj",     "MenuFileSave",
                                  "MenuAbout",        "mnuRecentFile",   "MenuFileOpen"};
constexpr const char* kAnswers[] = {"ok", "cancel", "yes", "no"};

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

    void ClickSomewhere() {
        const auto names = state().formRegistry.InOpeningOrder();
        FormView* view = window().FindView(names[static_cast<std::size_t>(Upto(9)) % names.size()]->name());
        if (Upto(9) == 0) {
            view->parentWidget()->close();
            return;
        }
        const std::vector<QWidget*> leaves = VisibleLeaves(*view);
        QWidget* place = leaves.empty() || Upto(4) == 0 ? view : Any(leaves);
        QTest::mouseClick(place, Qt::LeftButton, {}, {Upto(place->width()), Upto(place->height())});
    }

    void DoAnything() {
        responder.QueueAnswer(Any(kAnswers));
        switch (Upto(9)) {
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
                if (Upto(20) == 0) responder.AnswerFileDialogWith((home / "bad.kvr").string());
                if (Upto(3) == 0) window().FindAction(Any(kMenus))->trigger();
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

    std::mt19937 random_{kSeed};
};

TEST_F(MonkeyTest, TwoThousandEventsDoNoHarm) {
    WriteFile(home / "bad.kvr", "no project");
    for (int i = 0; i < kEvents; ++i) {
        SCOPED_TRACE("event " + std::to_string(i));
        DoAnything();
        ASSERT_TRUE(window().stopReason().empty()) << window().stopReason();
        ASSERT_TRUE(window().isVisible());
        ASSERT_NO_FATAL_FAILURE(ExpectMirrored());
    }
    EXPECT_FALSE(Messages().empty()) << "the events are too tame to mean anything";
}

}  // namespace
}  // namespace kelvor::test

// Work that was mistyped, dropped or lost with the process, had back at the windows by keys alone.

#include <gmock/gmock.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QTest>
#include <filesystem>

#include "desktop/desktop_fixture.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A window on a home, and someone who works it by keys. A key goes to whatever has the focus.
class KeyWorker {
  public:
    explicit KeyWorker(const Home& home) : desktop_(home) {
        EXPECT_TRUE(desktop_.Start(""));
        ComeToFront();
    }

    MainWindow& window() { return desktop_.window(); }
    ProcessState& state() { return desktop_.program().state(); }
    DialogResponder& responder() { return responder_; }
    std::vector<std::string> Messages() { return record_.TakeTexts(); }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        if (!window().isActiveWindow()) ComeToFront();
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QApplication::processEvents();
    }

    /// A key for the menu that has dropped down.
    static void PressInMenu(Qt::Key key) {
        QWidget* menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr);
        QTest::keyClick(menu, key);
        QApplication::processEvents();
    }

    /// Goes on by Tab to a field, and enters a value.
    void Enter(const char* field, const char* value) {
        constexpr int kMostFields = 30;
        for (int i = 0; i < kMostFields && QApplication::focusWidget()->objectName() != field; ++i)
            Press(Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget()->objectName(), field);
        QTest::keyClicks(QApplication::focusWidget(), value);
        Press(Qt::Key_Return);
    }

    void Solve() {
        Press(Qt::Key_T, Qt::AltModifier);  // Structural Number
        Press(Qt::Key_S, Qt::AltModifier);
    }

    /// From the start page to a flexible design that is solved.
    void Design() {
        Press(Qt::Key_Tab);  // to the button New Project
        Press(Qt::Key_Return);
        Press(Qt::Key_3, Qt::ControlModifier);
        Press(Qt::Key_A, Qt::AltModifier);
        Press(Qt::Key_D, Qt::AltModifier);
        for (const auto& [field, value] :
             {std::pair("FLEXE18", "5,000,000"), std::pair("FLEXREL", "95"), std::pair("FLEXDEV", "0.45"),
              std::pair("RM", "5,000"), std::pair("FLEXPO", "4.2"), std::pair("FLEXPT", "2.5")}) {
            Enter(field, value);
        }
        Solve();
    }

    double Number(const char* name) { return state().dbWork.GetVar(name).value(); }

    /// What a box of the flexible design shows.
    std::string Shown(const char* name) {
        const FormView* view = window().FindView("DeF");
        const auto* box = view == nullptr ? nullptr : qobject_cast<QLineEdit*>(view->FindWidget(name));
        return box == nullptr ? "" : box->text().toStdString();
    }

  private:
    void ComeToFront() {
        window().activateWindow();
        (void)QTest::qWaitForWindowActive(&window());
    }

    QuestionRecord record_;
    DialogResponder responder_{record_};
    DesktopProgram desktop_;
};

// The structural number of the design, by bisection of the 1993 equation beside the program.
const char* const kSolved = "5.41";

TEST(RecoverByKeysTest, WhatWasMistypedAndSolvedIsUndoneAndRedone) {
    const TestHome home;
    KeyWorker user(home.home());
    user.Design();
    ASSERT_EQ(user.Shown("SN"), kSolved);
    user.Enter("FLEXREL", "59");  // for 95
    user.Solve();
    const std::string mistaken = user.Shown("SN");
    ASSERT_LT(user.Number("SN"), 5.0) << "less reliability takes less of a pavement";
    user.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(user.Shown("SN"), kSolved) << "the solve is undone";
    EXPECT_EQ(user.Shown("FLEXREL"), "59.00");
    user.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(user.Shown("FLEXREL"), "95.00") << "so is the value";
    user.Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(user.Shown("FLEXREL"), "59.00");
    user.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(user.Shown("SN"), mistaken);
    for (int i = 0; i < 2; ++i) user.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(user.Shown("FLEXREL"), "95.00");
    EXPECT_EQ(user.Shown("SN"), kSolved);
    EXPECT_THAT(user.Messages(), IsEmpty());
}

TEST(RecoverByKeysTest, AfterAKillTheNextStartOffersTheWorkAndShowsIt) {
    const TestHome home;
    const TemporaryFolder disk;  // as it is when the process is killed
    const Path left = disk / "home";
    {
        KeyWorker user(home.home());
        user.Design();
        ASSERT_EQ(user.Shown("SN"), kSolved);
        std::filesystem::copy(home.path(), left, std::filesystem::copy_options::recursive);
    }
    KeyWorker user({left, left});  // who takes what is offered
    EXPECT_THAT(user.Messages(), ElementsAre(HasSubstr("unnamed project: Flexible Design Inputs: 5.41")));
    EXPECT_EQ(user.window().windowTitle().toStdString(), "Kelvor");
    user.Press(Qt::Key_3, Qt::ControlModifier);
    user.Press(Qt::Key_A, Qt::AltModifier);
    user.Press(Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(user.Shown("SN"), kSolved);
    EXPECT_EQ(user.Shown("FLEXE18"), "5,000,000");
}

TEST(RecoverByKeysTest, WhatNewDroppedIsHadBackByTheMenu) {
    const TestHome home;
    KeyWorker user(home.home());
    user.Design();
    user.Press(Qt::Key_F, Qt::AltModifier);
    KeyWorker::PressInMenu(Qt::Key_N);
    EXPECT_EQ(user.Number("SN"), 0.0);
    user.Press(Qt::Key_F, Qt::AltModifier);
    KeyWorker::PressInMenu(Qt::Key_R);
    KeyWorker::PressInMenu(Qt::Key_1);
    EXPECT_NEAR(user.Number("SN"), 5.4135, 0.0001);
    EXPECT_EQ(user.window().windowTitle().toStdString(), "Kelvor");
    EXPECT_THAT(user.Messages(), IsEmpty());
}

}  // namespace
}  // namespace kelvor::test

// The hub at the windows: every screen by the keyboard alone, projects from the menu and by drop.

#include <gmock/gmock.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <set>

#include "desktop/desktop_fixture.h"
#include "desktop/picture_view.h"
#include "forms/form.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HubWindowTest : public DesktopTest {
  protected:
    HubWindowTest() { ComeToFront(); }

    void ComeToFront() {
        window().activateWindow();
        (void)QTest::qWaitForWindowActive(&window());
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        if (!window().isActiveWindow()) ComeToFront();
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &window(), key, modifiers);
        QApplication::processEvents();
    }

    const Form& Current() { return *state().formRegistry.CurrentForm; }

    /// Goes to a control with Tab alone. False if Tab does not lead there.
    bool TabTo(const std::string& name) {
        for (std::size_t i = 0; i <= Current().controls().size(); ++i) {
            if (Current().focus != nullptr && Current().focus->name == name) return true;
            // Out of a table Tab leads only at its end.
            const bool inTable = Current().focus != nullptr && Current().focus->grid;
            for (int cell = 0; inTable && cell < 500 && Current().focus->grid; ++cell) Press(Qt::Key_Tab);
            if (!inTable) Press(Qt::Key_Tab);
        }
        return false;
    }

    std::string ClosingButton() {
        for (const char* name : {"cmdAction", "Close", "cmdbClose"}) {
            if (Current().Find(name) != nullptr) return name;
        }
        return {};
    }

    std::string Save(const std::string& name) {
        const std::string path = (home / name).string();
        responder.AnswerFileDialogWith(path);
        window().FindAction("MenuFileSaveAs")->trigger();
        ComeToFront();  // without a window manager nobody brings it back once a box has closed
        return path;
    }

    void Drop(const QList<QUrl>& urls) {
        QMimeData dragged;
        dragged.setUrls(urls);
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window(), &enter);
        entered = enter.isAccepted();
        QDropEvent drop({10, 10}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window(), &drop);
        QApplication::processEvents();
    }

    bool entered = false;
};

TEST_F(HubWindowTest, EveryTabShowsByKeysAndItsFirstControlHasTheFocus) {
    for (int tab = 0; tab < 8; ++tab) {
        Press(Qt::Key_PageDown, Qt::ControlModifier);
        const FormView& hub = *window().FindView("TabForm");
        EXPECT_EQ(hub.tabs()->currentIndex(), tab);
        const Control* focus = Current().focus;
        if (focus == nullptr) continue;
        EXPECT_TRUE(hub.FindWidget(focus->name)->isVisible()) << focus->name;
        EXPECT_EQ(QApplication::focusWidget(), hub.FindWidget(focus->name)) << focus->name;
    }
}

/// A screen reached from a form: a control that is chosen or focused, and a button that is pressed.
struct Step {
    std::string control;
    std::string button;
};

TEST_F(HubWindowTest, EveryScreenOfTheHubIsReachedByTheKeyboardAlone) {
    std::set<std::string> reached;
    for (int tab = 0; tab < 8; ++tab) {
        Press(Qt::Key_PageDown, Qt::ControlModifier);
        std::vector<Step> steps;
        for (const auto& option : Current().controls()) {
            if (option->kind != ControlKind::OptionButton || !Current().CanFocus(*option)) continue;
            for (const auto& button : Current().controls()) {
                if (button->IsButton() && Current().CanFocus(*button)) {
                    steps.push_back({option->name, button->name});
                }
            }
        }
        for (const Step& step : steps) {
            ASSERT_TRUE(TabTo(step.control)) << step.control;
            Press(Qt::Key_Return);
            EXPECT_TRUE(Current().focus->value) << step.control << ": Enter selects it";
            ASSERT_TRUE(TabTo(step.button)) << step.button;
            Press(Qt::Key_Space);
            QKeyEvent released(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, " ");
            // Where the button had a message, its box has gone: a window manager brings the window to the
            // front.
            window().activateWindow();
            ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }))
                << step.button;
            QApplication::sendEvent(QApplication::focusWidget(), &released);
            if (Current().type().isHub) continue;
            reached.insert(Current().name());
            ASSERT_TRUE(TabTo(ClosingButton())) << Current().name();
            Press(Qt::Key_Space);
            QApplication::sendEvent(QApplication::focusWidget(), &released);
            ASSERT_TRUE(Current().type().isHub);
        }
    }
    EXPECT_TRUE(reached.contains("DeF"));
    for (const char* screen : {"DeR", "DeS", "TrFa", "ExF", "ExR", "ExC", "LcS"}) {
        EXPECT_EQ(reached.contains(screen), state().formRegistry.FindType(screen) != nullptr) << screen;
    }
}

TEST_F(HubWindowTest, TheMenuShowsTheRecentProjectsWithTheirKeys) {
    QMenu* menu = window().findChild<QMenu*>("MenuFile");
    EXPECT_FALSE(window().FindAction("mnuRecentFile")->isVisible());
    Save("first.kvr");
    const std::string second = Save("second.kvr");
    EXPECT_TRUE(window().FindAction("mnuRecentFile", 1)->isVisible());
    EXPECT_FALSE(window().FindAction("mnuRecentFile", 2)->isVisible());
    EXPECT_EQ(window().FindAction("mnuRecentFile")->toolTip().toStdString(), second);
    QTest::keyClick(&window(), Qt::Key_F, Qt::AltModifier);
    ASSERT_EQ(QApplication::activePopupWidget(), menu);
    QTest::keyClick(menu, Qt::Key_2);
    QApplication::processEvents();
    EXPECT_EQ(window().windowTitle().toStdString(), "KVR - " + (home / "first.kvr").string());
    EXPECT_TRUE(window().FindAction("mnuRecentFile")->text().endsWith("first.kvr"));
    EXPECT_TRUE(window().FindAction("mnuRecentFile")->text().startsWith("&1 "));
}

TEST_F(HubWindowTest, ALongPathIsShortenedInItsMiddle) {
    const std::string path = Save(std::string(200, 'x') + ".kvr");
    const QString text = window().FindAction("mnuRecentFile")->text();
    EXPECT_LT(text.size(), 100);
    EXPECT_TRUE(text.startsWith("&1 ")) << text.toStdString();
    EXPECT_TRUE(text.endsWith(".kvr"));
    EXPECT_EQ(window().FindAction("mnuRecentFile")->toolTip().toStdString(), path);
}

TEST_F(HubWindowTest, AProjectThatIsGoneLeavesTheMenu) {
    std::filesystem::remove(Save("gone.kvr"));
    window().FindAction("mnuRecentFile")->trigger();
    EXPECT_THAT(Messages(), ElementsAre("Selected file was not found."));
    EXPECT_FALSE(window().FindAction("mnuRecentFile")->isVisible());
}

TEST_F(HubWindowTest, AProjectDroppedOnTheWindowOpens) {
    state().units->SetDisplayValue("SN", 1, 1, "4");
    const std::string path = Save("Straße 'alt'.kvr");
    window().FindAction("NewProj")->trigger();
    Drop({QUrl::fromLocalFile(QString::fromStdString(path))});
    EXPECT_TRUE(entered);
    EXPECT_EQ(window().windowTitle().toStdString(), "KVR - " + path);
    EXPECT_EQ(state().dbWork.GetVar("SN"), 4.0);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(HubWindowTest, OneFileAloneCanBeDropped) {
    const std::string path = Save("road.kvr");
    window().FindAction("NewProj")->trigger();
    const QUrl file = QUrl::fromLocalFile(QString::fromStdString(path));
    const QList<QUrl> others[] = {{}, {file, file}, {QUrl("https://example.org/road.kvr")}};
    for (const QList<QUrl>& urls : others) {
        Drop(urls);
        EXPECT_FALSE(entered);
        EXPECT_EQ(state().sProjectFile, "");
    }
    Drop({QUrl::fromLocalFile(QString::fromStdString(home.path().string()))});
    EXPECT_EQ(Messages().size(), 1U) << "a folder is no project";
}

TEST_F(HubWindowTest, TheStartTabShowsItsDrawing) {
    const auto* picture = window().findChild<QWidget*>("Image1");
    ASSERT_NE(dynamic_cast<const PictureView*>(picture), nullptr);
    EXPECT_TRUE(dynamic_cast<const PictureView*>(picture)->isDrawn());
    EXPECT_TRUE(picture->isVisible());
    EXPECT_FALSE(PictureView("nosuch.svg", nullptr).isDrawn());
}

TEST_F(HubWindowTest, ASecondProgramOnTheSameFolderSaysSoAndEnds) {
    DesktopProgram second(home.home());
    EXPECT_FALSE(second.Start(""));
    EXPECT_THAT(Messages(), ElementsAre("Kelvor is already running on " + home.path().string() +
                                        ".\n\nPlease use the program that is open."));
    EXPECT_TRUE(window().isVisible());
}

}  // namespace
}  // namespace kelvor::test

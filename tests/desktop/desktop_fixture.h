#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <memory>
#include <string>
#include <utility>

#include "desktop/application.h"
#include "desktop/dialog_responder.h"
#include "desktop/window_driver.h"
#include "support/test_home.h"
#include "support/test_host.h"

namespace kelvor::test {

/// The desktop program on a home folder of the test's own, started and shown.
class DesktopTest : public testing::Test {
  protected:
    explicit DesktopTest(std::unique_ptr<PrintSystem> printers = std::make_unique<LpPrintSystem>())
        : desktop(home.home(), std::move(printers)) {
        EXPECT_TRUE(desktop.Start(""));
    }

    MainWindow& window() { return desktop.window(); }
    ProcessState& state() { return desktop.program().state(); }

    /// The texts of the boxes that came up since the last call.
    std::vector<std::string> Messages() { return record.TakeTexts(); }

    TestHome home;
    QuestionRecord record;
    DialogResponder responder{record};
    DesktopProgram desktop;
};

/// The same, worked by keys alone. A key goes to whatever has the focus.
class KeyboardTest : public DesktopTest {
  protected:
    explicit KeyboardTest(std::unique_ptr<PrintSystem> printers = std::make_unique<LpPrintSystem>())
        : DesktopTest(std::move(printers)) {
        ComeToFront();
    }

    void ComeToFront() {
        window().activateWindow();
        (void)QTest::qWaitForWindowActive(&window());
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        if (!window().isActiveWindow()) ComeToFront();
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QApplication::processEvents();
    }

    void Type(const char* text) {
        if (!window().isActiveWindow()) ComeToFront();
        // The first character may open a line for the rest.
        for (const char* c = text; *c != '\0'; ++c) QTest::keyClick(QApplication::focusWidget(), *c);
    }

    void TypeAndEnter(const char* text) {
        Type(text);
        Press(Qt::Key_Return);
    }
};

}  // namespace kelvor::test

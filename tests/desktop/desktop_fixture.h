#pragma once

#include <gtest/gtest.h>

#include <string>

#include "desktop/application.h"
#include "desktop/dialog_responder.h"
#include "desktop/window_driver.h"
#include "support/test_home.h"
#include "support/test_host.h"

namespace kelvor::test {

/// The desktop program on a home folder of the test's own, started and shown.
class DesktopTest : public testing::Test {
  protected:
    DesktopTest() { EXPECT_TRUE(desktop.Start("")); }

    MainWindow& window() { return desktop.window(); }
    ProcessState& state() { return desktop.program().state(); }

    /// The texts of the boxes that came up since the last call.
    std::vector<std::string> Messages() { return record.TakeTexts(); }

    TestHome home;
    QuestionRecord record;
    DialogResponder responder{record};
    DesktopProgram desktop{home.home()};
};

}  // namespace kelvor::test

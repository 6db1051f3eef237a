// Runs every script twice, by the model and by the windows, and compares what both print.

#include <gtest/gtest.h>

#include <QApplication>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "console/script/output.h"
#include "console/script/runner.h"
#include "desktop/desktop_fixture.h"
#include "support/script_files.h"

namespace kelvor::test {
namespace {

/// What cannot be done in a window, and why.
const std::map<std::string, std::string> kModelOnly = {
    {"questions/folder_or_nothing", "a file dialog gives neither a folder nor a file that is not there"},
};

std::vector<std::string> WindowScripts() {
    std::vector<std::string> names = ScriptNames();
    std::erase_if(names, [](const std::string& name) { return kModelOnly.contains(name); });
    return names;
}

std::string WindowOutput(const std::string& name) {
    const TestHome home;
    std::istringstream script(
        ReplaceAll(ReadFile(ScriptFolder() / (name + ".kvs")), "{HOME}", home.path().string()));
    std::ostringstream printed;
    std::ostringstream errors;
    JsonOutput output(printed);
    DialogResponder responder(output);
    DesktopProgram desktop(home.home());
    if (!desktop.Start("")) return "the start failed";
    WindowDriver driver(desktop, responder);
    const ScriptEnd end = RunScript(script, driver, output, errors);
    std::string result = printed.str();
    if (!errors.str().empty()) result += "stderr: " + errors.str();
    result += "exit: " + std::to_string(static_cast<int>(end)) + "\n";
    return ReplaceAll(result, home.path().string(), "{HOME}");
}

class WindowScriptTest : public testing::TestWithParam<std::string> {};

TEST_P(WindowScriptTest, TheWindowsShowWhatTheModelSays) {
    EXPECT_EQ(WindowOutput(GetParam()), ReadFile(ScriptFolder() / (GetParam() + ".expected")));
}

std::string CaseName(const testing::TestParamInfo<std::string>& test) {
    return ReplaceAll(test.param, "/", "_");
}

INSTANTIATE_TEST_SUITE_P(EachScript, WindowScriptTest, testing::ValuesIn(WindowScripts()), CaseName);

}  // namespace
}  // namespace kelvor::test

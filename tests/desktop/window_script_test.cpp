// Runs every script twice, by the model and by the windows, and compares what both print.

#include <gtest/gtest.h>

#include <QApplication>
#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "console/script/output.h"
#include "console/script/runner.h"
#include "desktop/desktop_fixture.h"

namespace kelvor::test {
namespace {

const Path kScripts = Path(KELVOR_SOURCE_FOLDER) / "tests/scripts";

/// What cannot be done in a window, and why.
const std::map<std::string, std::string> kModelOnly = {
    {"questions/folder_or_nothing", "a file dialog gives neither a folder nor a file that is not there"},
};

std::vector<std::string> ScriptNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kScripts)) {
        if (entry.path().extension() != ".kvs") continue;
        const std::string name = entry.path().lexically_relative(kScripts).replace_extension().string();
        if (!kModelOnly.contains(name)) names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string ReplaceAll(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

std::string WindowOutput(const std::string& name) {
    const TestHome home;
    std::istringstream script(
        ReplaceAll(ReadFile(kScripts / (name + ".kvs")), "{HOME}", home.path().string()));
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
    EXPECT_EQ(WindowOutput(GetParam()), ReadFile(kScripts / (GetParam() + ".expected")));
}

std::string CaseName(const testing::TestParamInfo<std::string>& test) {
    return ReplaceAll(test.param, "/", "_");
}

INSTANTIATE_TEST_SUITE_P(EachScript, WindowScriptTest, testing::ValuesIn(ScriptNames()), CaseName);

}  // namespace
}  // namespace kelvor::test

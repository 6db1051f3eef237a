// Runs every script below this folder through kelvor-cli, on a home folder of its own, and compares
// what it prints with the file `.expected` beside it: the JSON lines, then what went to standard error,
// then the exit status. `{HOME}` stands for the home folder. KELVOR_RENEW_EXPECTED=1 rewrites the files;
// read the difference before you keep it.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/script_files.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

std::string Prefixed(const std::string& text, const std::string& prefix) {
    std::istringstream lines(text);
    std::string line;
    std::string result;
    while (std::getline(lines, line)) result += prefix + line + "\n";
    return result;
}

std::string RunScriptFile(const std::string& name) {
    const TestHome home;
    const std::string script =
        ReplaceAll(ReadFile(ScriptFolder() / (name + ".kvs")), "{HOME}", home.path().string());
    WriteFile(home / "script.kvs", script);
    const std::string command = "cd '" + home.path().string() + "' && '" KELVOR_CLI "' --json --home '" +
                                home.path().string() + "' --script script.kvs > out.txt 2> err.txt";
    const int status = std::system(command.c_str());
    const std::string result = ReadFile(home / "out.txt") + Prefixed(ReadFile(home / "err.txt"), "stderr: ") +
                               "exit: " + std::to_string(WEXITSTATUS(status)) + "\n";
    return ReplaceAll(result, home.path().string(), "{HOME}");
}

class ScriptTest : public testing::TestWithParam<std::string> {};

TEST_P(ScriptTest, PrintsWhatIsExpected) {
    const Path expected = ScriptFolder() / (GetParam() + ".expected");
    const std::string actual = RunScriptFile(GetParam());
    if (std::getenv("KELVOR_RENEW_EXPECTED") != nullptr) {
        WriteFile(expected, actual);
        GTEST_SKIP() << "rewritten: read the difference";
    }
    EXPECT_EQ(actual, ReadFile(expected));
}

std::string CaseName(const testing::TestParamInfo<std::string>& test) {
    return ReplaceAll(test.param, "/", "_");
}

INSTANTIATE_TEST_SUITE_P(EachScript, ScriptTest, testing::ValuesIn(ScriptNames()), CaseName);

}  // namespace
}  // namespace kelvor::test

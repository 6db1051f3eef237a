#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "console/application.h"
#include "forms/control.h"
#include "shell/calculations.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

class ConsolePageTest : public testing::Test {
  protected:
    /// The block of code that follows a mark of the page.
    [[nodiscard]] std::string Block(const std::string& mark, const std::string& language) const {
        const std::string opening = "<!-- " + mark + " -->\n```" + language + "\n";
        const std::size_t begin = page_.find(opening);
        if (begin == std::string::npos) return "no block " + mark;
        const std::size_t start = begin + opening.size();
        return page_.substr(start, page_.find("```", start) - start);
    }

    const std::string page_ = ReadFile(Path(KELVOR_SOURCE_FOLDER) / "docs/console.md");
};

TEST_F(ConsolePageTest, TheCommandsThatItShowsPrintTheObjectsThatItShows) {
    const TestHome home;
    std::string words[] = {"kelvor-cli", "--home", home.path().string(), "--json"};
    char* arguments[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data()};
    std::istringstream commands(Block("commands", ""));
    std::ostringstream output;
    std::ostringstream errors;
    EXPECT_EQ(RunConsole(4, arguments, commands, output, errors), 0);
    EXPECT_EQ(errors.str(), "");
    EXPECT_EQ(output.str(), Block("their output", "json"));
}

TEST_F(ConsolePageTest, EveryOptionIsOnItsPageInTheManualAndInTheCompletion) {
    std::string words[] = {"kelvor-cli", "--help"};
    char* arguments[] = {words[0].data(), words[1].data()};
    std::istringstream commands;
    std::ostringstream output;
    std::ostringstream errors;
    EXPECT_EQ(RunConsole(2, arguments, commands, output, errors), 0);
    const std::string manual = ReadFile(Path(KELVOR_SOURCE_FOLDER) / "packaging/kelvor-cli.1.in");
    const std::string completion = ReadFile(Path(KELVOR_SOURCE_FOLDER) / "packaging/kelvor-cli.bash");
    const std::string help = output.str();
    const std::regex option("--([a-z]+)");
    std::set<std::string> options;
    for (std::sregex_iterator hit(help.begin(), help.end(), option), end; hit != end; ++hit)
        options.insert((*hit)[1]);
    EXPECT_GE(options.size(), 6U);
    for (const std::string& name : options) {
        EXPECT_NE(page_.find("`--" + name), std::string::npos) << name;
        EXPECT_NE(manual.find("\\-\\-" + name), std::string::npos) << name;
        EXPECT_NE(completion.find("--" + name), std::string::npos) << name;
    }
}

TEST_F(ConsolePageTest, EveryKeyThatIsServedIsListed) {
    const auto isListed = [this](const std::string& command, std::string_view key) {
        return page_.find("| `" + command + "` | `" + std::string(key) + "` |") != std::string::npos;
    };
    const Dispatch calculations = JoinCalculations();
    for (const std::string_view key : calculations.FieldKeys()) EXPECT_TRUE(isListed("calc", key)) << key;
    for (const std::string_view key : calculations.CellKeys()) EXPECT_TRUE(isListed("calccell", key)) << key;
}

TEST_F(ConsolePageTest, EveryKindOfControlIsListed) {
    for (int kind = 0; kind <= static_cast<int>(ControlKind::TabStrip); ++kind) {
        const std::string name = NameOf(static_cast<ControlKind>(kind));
        EXPECT_NE(page_.find("`" + name + "`"), std::string::npos) << name;
    }
}

}  // namespace
}  // namespace kelvor::test

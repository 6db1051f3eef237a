// A front end shows whatever the core declares: it knows no screen and no variable by name.

#include <gtest/gtest.h>

#include <cctype>
#include <regex>
#include <set>
#include <string>

#include "support/test_home.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

std::string Folded(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

/// The names of every screen and every variable, in small letters.
std::set<std::string> ForbiddenNames(ProcessState& state) {
    std::set<std::string> names;
    for (const std::string& name : state.formRegistry.TypeNames()) names.insert(Folded(name));
    for (const Variable& variable : state.dbCatalogue->variables()) names.insert(Folded(variable.name));
    // Keys of the JSON output too: the subscripts of a cell, and the place in a grid.
    for (const char* key : {"dim1", "dim2", "column"}) names.erase(key);
    return names;
}

/// The texts in quotes of a source that are one of some names.
std::vector<std::string> NamesIn(const std::string& source, const std::set<std::string>& names) {
    static const std::regex kText("\"(([^\"\\\\\n]|\\\\.)*)\"");
    std::vector<std::string> found;
    for (std::sregex_iterator text(source.begin(), source.end(), kText), end; text != end; ++text) {
        if (names.contains(Folded((*text)[1]))) found.push_back((*text)[1]);
    }
    return found;
}

TEST(FrontEndsTest, KnowNoScreenAndNoVariableByName) {
    TestProgram program;
    const std::set<std::string> names = ForbiddenNames(program.program.state());
    int sources = 0;
    for (const char* folder : {"src/desktop", "src/console"}) {
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(Path(KELVOR_SOURCE_FOLDER) / folder)) {
            if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") continue;
            ++sources;
            EXPECT_EQ(NamesIn(ReadFile(entry.path()), names), std::vector<std::string>()) << entry.path();
        }
    }
    EXPECT_GT(sources, 10);
}

TEST(FrontEndsTest, ANameInQuotesIsFound) {
    const std::set<std::string> names = {"def", "sn"};
    EXPECT_EQ(NamesIn(R"(Open("DeF"); Say("a \"DeF\""); Get("sn");)", names),
              (std::vector<std::string>{"DeF", "sn"}));
    EXPECT_TRUE(NamesIn("int SN = DeF;", names).empty());
}

}  // namespace
}  // namespace kelvor::test

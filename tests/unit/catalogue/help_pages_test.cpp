// The pages of the help, as files: there is one for each screen, and the contents know each.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "catalogue/catalogue.h"
#include "platform/text.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::IsEmpty;

const Path kPages = Path(KELVOR_SOURCE_FOLDER) / "data" / "help";

/// Screens without a page of their own: the fields of a tab, the helps of a field, the pavement that shares
/// its screens with another one, and the drawings.
bool NeedsNoPage(const std::string& screen) {
    static const std::vector<const char*> kPatterns = {
        "InfForm", "EcFa",   "HelpForm", "HelpGrid", "Helpfrm",       "H_SN",
        "H_SRMII", "H_TrIn", "H_TrFa",   "H_TrDLD",  "H_LDLayerCoef", "H_ACACOLLC",
        "LcA2*",   "CSec",   "CSec2",    "D??CS",    "Ov*CS"};
    return std::any_of(kPatterns.begin(), kPatterns.end(),
                       [&](const char* pattern) { return Like(screen, pattern); });
}

TEST(HelpPagesTest, EveryScreenHasAPage) {
    const TestHome home;
    const Catalogue catalogue(home / "DataBase/Kelvor.mdb");
    std::vector<std::string> missing;
    for (const Screen& screen : catalogue.screens()) {
        if (NeedsNoPage(screen.name)) continue;
        if (!std::filesystem::exists(kPages / (screen.name + ".html"))) missing.push_back(screen.name);
    }
    EXPECT_THAT(missing, IsEmpty());
}

TEST(HelpPagesTest, TheContentsAndTheListOfFilesNameEveryPage) {
    const std::string project = ReadFile(kPages / "kelvor.qhp");
    for (const auto& entry : std::filesystem::directory_iterator(kPages)) {
        if (entry.path().extension() != ".html") continue;
        const std::string page = entry.path().filename().string();
        EXPECT_THAT(project, HasSubstr("<file>" + page + "</file>"));
        EXPECT_THAT(project, ContainsRegex("<section title=\"[^\"]*\" ref=\"" + page + "\""));
    }
}

}  // namespace
}  // namespace kelvor::test

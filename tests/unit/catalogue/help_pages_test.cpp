// The pages of the help, as files: there is one for each screen, and the contents know each.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "catalogue/catalogue.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::IsEmpty;

const Path kPages = Path(KELVOR_SOURCE_FOLDER) / "data" / "help";

/// Screens whose page has another name: the fields of a tab, and the helps of a field, which need none.
bool NeedsNoPage(const std::string& screen) {
    static const std::vector<std::string> kOthers = {"InfForm", "EcFa",   "HelpForm",   "HelpGrid",
                                                     "Helpfrm", "H_SN",   "H_SRMII",    "H_LDLayerCoef",
                                                     "H_TrIn",  "H_TrFa", "H_ACACOLLC", "H_TrDLD"};
    return std::find(kOthers.begin(), kOthers.end(), screen) != kOthers.end();
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

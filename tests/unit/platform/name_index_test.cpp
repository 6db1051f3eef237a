#include "platform/name_index.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelvor::test {
namespace {

TEST(NameIndexTest, EachNameIsFoundInAnyCaseAlsoOnceTheTableHasGrown) {
    std::vector<std::string> names = {"", "k", "SN", "RM2", "EXISTRM", "AnalysisPeriodA"};
    for (int i = 0; i < 1000; ++i) names.push_back("Variable" + std::to_string(i));
    const auto nameAt = [&](std::uint32_t place) -> const std::string& { return names[place]; };
    NameIndex index;
    EXPECT_EQ(index.Find("SN", nameAt), std::nullopt) << "it holds nothing yet";
    for (const std::string& name : names) index.Add(name);
    for (std::uint32_t place = 0; place < names.size(); ++place) {
        std::string folded;
        for (const char letter : names[place]) folded += FoldLetter(letter);
        EXPECT_EQ(index.Find(names[place], nameAt), place) << names[place];
        EXPECT_EQ(index.Find(folded, nameAt), place) << folded;
    }
    for (const char* other : {"S", "SNN", "Variable1000", "Variable 1", "@n"}) {
        EXPECT_EQ(index.Find(other, nameAt), std::nullopt) << other;
    }
    index.Clear();
    EXPECT_EQ(index.Find("SN", nameAt), std::nullopt);
}

}  // namespace
}  // namespace kelvor::test

#include "platform/file_name.h"

#include <gtest/gtest.h>

namespace kelvor::test {
namespace {

TEST(FileNameTest, ATitleWithoutForbiddenLettersIsItsName) {
    EXPECT_EQ(FileNameFrom("Route 12, km 4 to 9"), "Route 12, km 4 to 9");
    EXPECT_EQ(FileNameFrom("Carretera de Alcalá"), "Carretera de Alcalá");
}

TEST(FileNameTest, WhatNoNameMayHoldBecomesABlank) {
    EXPECT_EQ(FileNameFrom("A1/A7: \"north\" <2>|*?\\x"), "A1 A7 north 2 x");
    EXPECT_EQ(FileNameFrom("two\nlines\x7F!"), "two lines !");
}

TEST(FileNameTest, BlanksAndStopsAtTheEndsAreLeftOut) {
    EXPECT_EQ(FileNameFrom(" .. .hidden. "), "hidden");
    EXPECT_EQ(FileNameFrom("../../etc"), "etc");
    EXPECT_EQ(FileNameFrom("no. 4"), "no. 4");
}

TEST(FileNameTest, NothingGivesNoName) {
    EXPECT_EQ(FileNameFrom(""), "");
    EXPECT_EQ(FileNameFrom(" ./ "), "");
}

TEST(FileNameTest, ALongTitleIsCutBehindAWholeCharacter) {
    const std::string sixty(60, 'x');
    EXPECT_EQ(FileNameFrom(sixty), sixty);
    EXPECT_EQ(FileNameFrom(sixty + "y"), sixty);
    const std::string odd(59, 'x');
    EXPECT_EQ(FileNameFrom(odd + "ñy"), odd) << "its two bytes would be parted";
    EXPECT_EQ(FileNameFrom(odd + " y"), odd) << "no blank is left at the end";
}

}  // namespace
}  // namespace kelvor::test

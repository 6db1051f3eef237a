#include "reports/document/characters.h"

#include <gtest/gtest.h>

namespace kelvor {
namespace {

TEST(CharactersTest, LineBreaksBecomeOneKind) {
    EXPECT_EQ(CleanText("a\r\nb\rc\nd\u2028e"), "a\nb\nc\nd\ne");
}

TEST(CharactersTest, OtherControlCharactersBecomeBlanks) {
    EXPECT_EQ(CleanText(std::string_view("a\0b\tc\x1B", 6)), "a b c ");
    EXPECT_EQ(CleanText("a\u0085b"), "a b");
}

TEST(CharactersTest, EveryLetterStays) { EXPECT_EQ(CleanText("&<>{}\\\"é漢字😀"), "&<>{}\\\"é漢字😀"); }

// A stray byte, an overlong form, half a surrogate pair, a character cut short (RFC 3629, Section 3).
TEST(CharactersTest, WhatIsNoCharacterIsReplaced) {
    EXPECT_EQ(CleanText("a\xFF"), "a\uFFFD");
    EXPECT_EQ(CleanText("\xC0\x80"), "\uFFFD\uFFFD");
    EXPECT_EQ(CleanText("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(CleanText("\xE6\xBC"), "\uFFFD\uFFFD");
}

TEST(CharactersTest, LettersOfEastAsiaTakeTwoPlacesAndMarksNone) {
    EXPECT_EQ(DisplayWidth("abc"), 3U);
    EXPECT_EQ(DisplayWidth("é漢字"), 5U);
    EXPECT_EQ(DisplayWidth("e\u0301"), 1U);
}

}  // namespace
}  // namespace kelvor

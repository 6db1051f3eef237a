#include "platform/text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kelvor::test {
namespace {

using namespace std::string_view_literals;

struct LikeRow {
    std::string_view text;
    std::string_view pattern;
    bool matches;
};

constexpr LikeRow kLikeRows[] = {
    // plain letters, without regard to case
    {"", "", true},
    {"a", "", false},
    {"", "a", false},
    {"abc", "abc", true},
    {"abc", "ABC", true},
    {"ABC", "abc", true},
    {"abc", "ab", false},
    {"ab", "abc", false},
    {"abc", "abd", false},
    {"a b", "a b", true},
    // the wild cards of other languages are plain letters
    {"_", "_", true},
    {"a", "_", false},
    {"%", "%", true},
    {"abc", "%", false},
    {"abc", "a%", false},
    {"a_c", "a_c", true},
    {"abc", "a_c", false},
    {"O'Brien", "o'brien", true},
    {"a.c", "a.c", true},
    {"abc", "a.c", false},
    {"a\\b", "a\\b", true},
    {"a*b", "a\\*b", false},
    {"a]", "a]", true},
    {"a!", "a!", true},
    {"a-b", "a-b", true},
    {"^a$", "^a$", true},
    // * any run
    {"", "*", true},
    {"abc", "*", true},
    {"abc", "***", true},
    {"", "***", true},
    {"abc", "a*", true},
    {"a", "a*", true},
    {"bac", "a*", false},
    {"abc", "*c", true},
    {"c", "*c", true},
    {"cab", "*c", false},
    {"abc", "a*c", true},
    {"ac", "a*c", true},
    {"abcb", "a*c", false},
    {"acbc", "a*c", true},
    {"abc", "*b*", true},
    {"b", "*b*", true},
    {"ac", "*b*", false},
    {"abab", "*ab", true},
    {"aab", "*ab", true},
    {"mississippi", "m*iss*ppi", true},
    {"mississippi", "m*iss*iss*iss*", false},
    {"LDLayerCoef", "ldlayer*", true},
    {"*", "*", true},
    // ? one character
    {"a", "?", true},
    {"", "?", false},
    {"ab", "?", false},
    {"ab", "??", true},
    {"abc", "a?c", true},
    {"ac", "a?c", false},
    {"abc", "?*", true},
    {"", "?*", false},
    {"a", "*?", true},
    {"", "*?", false},
    {"ab", "*??", true},
    {"a", "*??", false},
    {"?", "?", true},
    // # one digit
    {"0", "#", true},
    {"9", "#", true},
    {"a", "#", false},
    {"", "#", false},
    {"12", "#", false},
    {"12", "##", true},
    {"AT51", "at##", true},
    {"AT5", "at##", false},
    {"AT5a", "at##", false},
    {"#", "#", false},
    {"x1y22", "*#", true},
    {"x1y22z", "*#", false},
    {"\xD9\xA1", "#", false},
    // [ ] one of a list
    {"a", "[abc]", true},
    {"c", "[abc]", true},
    {"d", "[abc]", false},
    {"B", "[abc]", true},
    {"b", "[ABC]", true},
    {"", "[abc]", false},
    {"ab", "[abc]", false},
    {"ab", "[abc][abc]", true},
    {"a", "[a-c]", true},
    {"b", "[a-c]", true},
    {"c", "[a-c]", true},
    {"d", "[a-c]", false},
    {"-", "[a-c]", false},
    {"B", "[a-c]", true},
    {"b", "[A-C]", true},
    {"b", "[c-a]", false},
    {"5", "[0-9]", true},
    {"x", "[0-9a-z]", true},
    {"y", "[0-9xa-c]", false},
    {"-", "[-a]", true},
    {"a", "[-a]", true},
    {"b", "[-a]", false},
    {"-", "[a-]", true},
    {"a", "[a-]", true},
    {"b", "[a-]", false},
    {"*", "[*]", true},
    {"a", "[*]", false},
    {"?", "[?]", true},
    {"a", "[?]", false},
    {"#", "[#]", true},
    {"1", "[#]", false},
    {"[", "[[]", true},
    {"a[b", "a[[]b", true},
    {"100%", "1*[%]", true},
    {"xbx", "*[a-c]*", true},
    {"xdx", "*[a-c]*", false},
    // [! ] one outside it
    {"d", "[!abc]", true},
    {"a", "[!abc]", false},
    {"A", "[!abc]", false},
    {"", "[!abc]", false},
    {"d", "[!a-c]", true},
    {"b", "[!a-c]", false},
    {"!", "[!a-c]", true},
    {"!", "[a!]", true},
    {"-", "[!-]", false},
    {"a", "[!-]", true},
    {"ab", "*[!b]", false},
    {"ba", "*[!b]", true},
    // a list without its end
    {"a", "[a", false},
    {"[a", "[a", false},
    {"[", "[", false},
    {"", "[", false},
    {"abc", "abc[", false},
    {"abc[", "abc[", false},
    {"abc", "*[", false},
    {"a", "[!", false},
    {"a", "[a-", false},
    {"a", "*[a", false},
    // a character is one, however many bytes it takes
    {"\xC3\xA4", "?", true},
    {"\xC3\xA4", "??", false},
    {"\xE2\x82\xAC", "?", true},
    {"\xF0\x9F\x9B\xA3", "?", true},
    {"\xF0\x9F\x9B\xA3", "*?*?", false},
    {"x\xC3\xA4y", "x?y", true},
    {"\xC3\xA4", "[\xC3\xA4\xC3\xB6]", true},
    {"\xC3\xB6", "[\xC3\xA4\xC3\xB6]", true},
    {"\xC3\xBC", "[\xC3\xA4\xC3\xB6]", false},
    {"\xC3\xBC", "[!\xC3\xA4\xC3\xB6]", true},
    {"\xC3\xB5", "[\xC3\xA0-\xC3\xB6]", true},
    {"\xC3\xBC", "[\xC3\xA0-\xC3\xB6]", false},
    {"M\xC3\xBCller", "m*ler", true},
    {"M\xC3\xBCller", "M\xC3\xBCller", true},
    // bytes that are no text
    {"\xFF", "\xFF", true},
    {"\xFF", "?", true},
    {"\xC3", "?", true},
    {"\xC3", "\xC3", true},
    {"\xC3\xA4", "\xC3", false},
    {"\xC3\xA4", "\xC3*", false},
    {"\xFF\xFE", "??", true},
    {"a\0b"sv, "a\0b"sv, true},
    {"a\0b"sv, "a\0c"sv, false},
    {"a\0b"sv, "a", false},
    {"a\0b"sv, "a?b", true},
};

TEST(TextTest, LikeKnowsFourWildCards) {
    for (const LikeRow& row : kLikeRows) {
        EXPECT_EQ(Like(row.text, row.pattern), row.matches) << '"' << row.text << "\" like " << row.pattern;
    }
}

/// The meaning of a pattern without lists, word by word; of lower-case letters alone.
bool LikeByDefinition(std::string_view text, std::string_view pattern) {
    if (pattern.empty()) return text.empty();
    const std::string_view rest = pattern.substr(1);
    if (pattern[0] == '*') {
        for (std::size_t run = 0; run <= text.size(); ++run) {
            if (LikeByDefinition(text.substr(run), rest)) return true;
        }
        return false;
    }
    if (text.empty()) return false;
    const bool isDigit = text[0] >= '0' && text[0] <= '9';
    const bool matches = pattern[0] == '?' || (pattern[0] == '#' ? isDigit : pattern[0] == text[0]);
    return matches && LikeByDefinition(text.substr(1), rest);
}

std::string RandomText(std::mt19937& random, std::string_view letters, unsigned most) {
    std::string text(random() % (most + 1), '\0');
    for (char& c : text) c = letters[random() % letters.size()];
    return text;
}

TEST(TextTest, LikeAgreesWithItsDefinition) {
    std::mt19937 random(42);
    int matches = 0;
    for (int i = 0; i < 50000; ++i) {
        const std::string text = RandomText(random, "ab1", 8);
        const std::string pattern = RandomText(random, "ab1**?#", 6);
        ASSERT_EQ(Like(text, pattern), LikeByDefinition(text, pattern))
            << '"' << text << "\" like " << pattern;
        matches += Like(text, pattern) ? 1 : 0;
    }
    EXPECT_GT(matches, 1000) << "the random patterns match too little to tell";
}

TEST(TextTest, ManyStarsTakeNoEndlessTime) {
    // A matcher that tries every run for every star would not end in a lifetime.
    const std::string text = std::string(5000, 'a') + "b";
    std::string pattern;
    for (int i = 0; i < 30; ++i) pattern += "*a";
    EXPECT_FALSE(Like(text, pattern));
    EXPECT_TRUE(Like(text, pattern + "*"));
    EXPECT_TRUE(Like(text, pattern + "b"));
    EXPECT_FALSE(Like(text, pattern + "c"));
    std::string lists;
    for (int i = 0; i < 30; ++i) lists += "*[!b]";
    EXPECT_FALSE(Like(text, lists));
    EXPECT_TRUE(Like(text, lists + "?"));
}

// --- comparison -------------------------------------------------------------------------------------

struct EqualRow {
    std::string_view a;
    std::string_view b;
    bool equal;
};

constexpr EqualRow kEqualRows[] = {
    {"", "", true},
    {"a", "", false},
    {"SN", "sn", true},
    {"FLEXE18", "FlexE18", true},
    {"FLEXE18", "FLEXE17", false},
    {"abc", "abcd", false},
    {"abcd", "abc", false},
    {"a b", "A B", true},
    {"a", " a", false},
    // only letters have a case: these differ by the same bit
    {"@", "`", false},
    {"[", "{", false},
    {"1", "\x11", false},
    // beyond ASCII no letter is folded
    {"\xC3\x84", "\xC3\xA4", false},
    {"\xC3\xA4", "\xC3\xA4", true},
    {"a\0b"sv, "A\0B"sv, true},
    {"a\0b"sv, "a\0c"sv, false},
};

TEST(TextTest, TextsAreEqualWithoutRegardToCase) {
    for (const EqualRow& row : kEqualRows) {
        EXPECT_EQ(EqualNoCase(row.a, row.b), row.equal) << row.a << " and " << row.b;
        EXPECT_EQ(EqualNoCase(row.b, row.a), row.equal) << row.b << " and " << row.a;
        EXPECT_EQ(NameEqual()(row.a, row.b), row.equal) << row.a << " and " << row.b;
        if (row.equal) {
            EXPECT_EQ(NameHash()(row.a), NameHash()(row.b)) << row.a << " and " << row.b;
        }
    }
}

TEST(TextTest, FoldingTouchesTheCapitalsAlone) {
    for (int code = 0; code < 256; ++code) {
        const char c = static_cast<char>(code);
        const bool capital = code >= 65 && code <= 90;
        EXPECT_EQ(FoldLetter(c), capital ? static_cast<char>(code + 32) : c) << code;
    }
}

TEST(TextTest, ANameIsFoundInATableWithoutRegardToCase) {
    std::unordered_map<std::string, int, NameHash, NameEqual> table;
    table["FLEXE18"] = 1;
    table["RIGIDE18"] = 2;
    EXPECT_EQ(table.find("flexe18"sv)->second, 1);
    EXPECT_EQ(table.find("RigidE18"sv)->second, 2);
    EXPECT_EQ(table.find("E18"sv), table.end());
    table["flexE18"] = 3;
    EXPECT_EQ(table.size(), 2U);
}

TEST(TextTest, BlanksGoFromTheEndsAlone) {
    EXPECT_EQ(TrimBlanks(""), "");
    EXPECT_EQ(TrimBlanks("a"), "a");
    EXPECT_EQ(TrimBlanks("  a"), "a");
    EXPECT_EQ(TrimBlanks("a  "), "a");
    EXPECT_EQ(TrimBlanks(" \t\r\na b\n\r\t "), "a b");
    EXPECT_EQ(TrimBlanks(" \t\r\n"), "");
    EXPECT_EQ(TrimBlanks(" "), "");
    EXPECT_EQ(TrimBlanks("\xC2\xA0"
                         "a"),
              "\xC2\xA0"
              "a");
}

TEST(TextTest, CharactersOfSeveralBytesAreSteppedOverAsOne) {
    const std::string_view text = "aü€𝄞";  // of 1, 2, 3 and 4 bytes
    const std::size_t places[] = {0, 1, 3, 6, 10};
    for (std::size_t i = 0; i + 1 < std::size(places); ++i) {
        EXPECT_EQ(NextCharacter(text, places[i]), places[i + 1]);
        EXPECT_EQ(PreviousCharacter(text, places[i + 1]), places[i]);
    }
    EXPECT_EQ(NextCharacter(text, text.size()), text.size());
    EXPECT_EQ(PreviousCharacter(text, 0), 0U);
    EXPECT_EQ(PreviousCharacter("ab", 99), 1U) << "a place behind the end is the end";
    EXPECT_EQ(PreviousCharacter("", 5), 0U);
    EXPECT_EQ(NextCharacter("\xFF\xFFz", 0), 1U) << "bytes that begin no character";
}

}  // namespace
}  // namespace kelvor::test

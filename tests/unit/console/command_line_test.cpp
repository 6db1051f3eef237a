#include "console/script/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kelvor::test {
namespace {

using Words = std::vector<std::string>;

TEST(SplitWordsTest, BlanksSeparateWords) {
    struct Row {
        const char* line;
        Words words;
    };
    for (const Row& row : {
             Row{"", {}},
             Row{"  \t ", {}},
             Row{"get SN", {"get", "SN"}},
             Row{"\tget   SN 1\r", {"get", "SN", "1"}},
             Row{"# all of it", {}},
             Row{"get SN # the rest", {"get", "SN"}},
             Row{"set JobNumber A#1", {"set", "JobNumber", "A#1"}},
             Row{R"(set Agency "County # 5")", {"set", "Agency", "County # 5"}},
             Row{R"(set Agency "")", {"set", "Agency", ""}},
             Row{R"(x "a \"b\" \\ c\nd\te")", {"x", "a \"b\" \\ c\nd\te"}},
             Row{R"(x C:\dir)", {"x", "C:\\dir"}},
         }) {
        EXPECT_EQ(SplitWords(row.line), row.words) << row.line;
    }
}

TEST(SplitWordsTest, WhatIsNotWellFormedIsRefused) {
    for (const char* line :
         {R"(x "a)", R"(x "a\)", R"(x "a\")", R"(x "a"b)", R"(x a"b")", R"(x "\q")", R"(x ")"}) {
        EXPECT_THROW(SplitWords(line), ScriptError) << line;
    }
}

}  // namespace
}  // namespace kelvor::test

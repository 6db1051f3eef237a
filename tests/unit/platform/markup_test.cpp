#include "platform/markup.h"

#include <gtest/gtest.h>

namespace kelvor::test {
namespace {

TEST(MarkupTest, WhatMarkupMeansIsEscapedAndAllElseStays) {
    EXPECT_EQ(EscapedMarkup("k < 5 & \"E\" > 0"), "k &lt; 5 &amp; &quot;E&quot; &gt; 0");
    EXPECT_EQ(EscapedMarkup("a\nb\té漢'"), "a\nb\té漢'");
    EXPECT_EQ(EscapedMarkup(""), "");
    EXPECT_EQ(EscapedMarkup("&amp;"), "&amp;amp;");
}

}  // namespace
}  // namespace kelvor::test

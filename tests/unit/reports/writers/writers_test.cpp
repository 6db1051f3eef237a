#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/writers/base64.h"
#include "reports/writers/html_writer.h"
#include "reports/writers/rtf_writer.h"
#include "reports/writers/text_lines.h"
#include "reports/writers/text_writer.h"

namespace kelvor {
namespace {

using ::testing::HasSubstr;

Document SmallReport() {
    Document document;
    document.title = "A <b>";
    document.head = {"Agency", "", "Job 7"};
    document.foot = {"route.kvr", "2 May 2026", ""};
    document.blocks = {
        blocks::Heading{1, "Title"}, blocks::Heading{2, "Section"}, blocks::Paragraph{"one\ntwo"},
        blocks::ValueList{Alignment::Right, {{"Thickness", "9.5", "in"}, {"Load Transfer, J", "3.20", ""}}},
        blocks::Table{{{"Type"}, {"Number", Alignment::Right}}, {{"Single", "1,000.0"}, {"Tandem", "5.0"}}}};
    return document;
}

TEST(TextWriterTest, AReport) {
    EXPECT_EQ(WriteText(SmallReport()),
              "Agency   Job 7\n"
              "\nTitle\n=====\n"
              "\nSection\n-------\n"
              "\none\ntwo\n"
              "Thickness          9.5  in\n"
              "Load Transfer, J  3.20\n"
              "Type     Number\n"
              "------  -------\n"
              "Single  1,000.0\n"
              "Tandem      5.0\n"
              "\nroute.kvr   2 May 2026\n");
}

TEST(TextWriterTest, LongTextsAreBrokenBetweenWordsAndInTheirColumn) {
    const std::vector<std::string> lines = {"aaa bbb", "c"};
    EXPECT_EQ(WrapText("aaa bbb c", 7), lines);
    EXPECT_EQ(SetInColumns({"x", "aaa bbb c"}, {{3}, {7}}), "x    aaa bbb\n     c\n");
    EXPECT_EQ(WrapText(std::string(200, 'x'), 7).size(), 1U);
}

TEST(HtmlWriterTest, AReport) {
    const std::string page = WriteHtml(SmallReport());
    EXPECT_THAT(page, HasSubstr("<title>A &lt;b&gt;</title>"));
    EXPECT_THAT(page, HasSubstr("<h2>Section</h2>\n<p>one\ntwo</p>"));
    EXPECT_THAT(page, HasSubstr("<dt>Thickness</dt><dd>9.5</dd><dd>in</dd>"));
    EXPECT_THAT(page, HasSubstr("<tr><td>Single</td><td class=\"number\">1,000.0</td></tr>"));
    EXPECT_THAT(page,
                HasSubstr("<footer><span>route.kvr</span><span>2 May 2026</span><span></span></footer>"));
}

TEST(HtmlWriterTest, NothingOfATextIsTakenForMarkup) {
    Document document;
    document.blocks = {blocks::Paragraph{"&<>{}\\\"é漢字"}};
    EXPECT_THAT(WriteHtml(document), HasSubstr("<p>&amp;&lt;&gt;{}\\&quot;é漢字</p>"));
}

TEST(RtfWriterTest, NothingOfATextIsTakenForMarkup) {
    Document document;
    document.blocks = {blocks::Paragraph{"&<>{}\\\"é漢\n😀"}};
    // 6F22 is 28450; the picture is the pair D83D DE00, which are -10179 and -8704 as signed numbers.
    EXPECT_THAT(WriteRtf(document, {}),
                HasSubstr("&<>\\{\\}\\\\\"\\u233?\\u28450?\\line \\u-10179?\\u-8704?\\par"));
}

TEST(RtfWriterTest, TheSheetAndItsMargins) {
    const std::string letter = WriteRtf(SmallReport(), {Paper::Letter});
    EXPECT_THAT(letter, HasSubstr("\\paperw12240\\paperh15840\\margl1080"));  // 8.5 by 11 in, 0.75 in
    const std::string a4 = WriteRtf(SmallReport(), {Paper::A4});
    EXPECT_THAT(a4, HasSubstr("\\paperw11906\\paperh16838"));  // 210 by 297 mm
}

TEST(RtfWriterTest, ATableRepeatsItsHeadingsAndThePagesAreNumbered) {
    const std::string rtf = WriteRtf(SmallReport(), {});
    EXPECT_THAT(rtf, HasSubstr("\\trhdr"));
    EXPECT_THAT(rtf, HasSubstr("\\fldinst NUMPAGES"));
}

TEST(RtfWriterTest, BracesAreBalanced) {
    int open = 0;
    const std::string rtf = WriteRtf(SmallReport(), {});
    for (const char letter : rtf) {
        if (letter == '{') ++open;
        if (letter == '}') --open;
        ASSERT_GE(open, 0);
    }
    EXPECT_EQ(open, 0);
}

// The test vectors of RFC 4648, Section 10.
TEST(Base64Test, BytesAsLetters) {
    EXPECT_EQ(Base64(""), "");
    EXPECT_EQ(Base64("f"), "Zg==");
    EXPECT_EQ(Base64("fo"), "Zm8=");
    EXPECT_EQ(Base64("foo"), "Zm9v");
    EXPECT_EQ(Base64("foobar"), "Zm9vYmFy");
}

}  // namespace
}  // namespace kelvor

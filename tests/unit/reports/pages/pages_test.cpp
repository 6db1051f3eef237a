#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "extracted_text.h"
#include "reports/report_maker.h"
#include "sample_tables.h"
#include "support/temporary_folder.h"

namespace kelvor {
namespace {

using test::SampleReport;
using ::testing::HasSubstr;
using ::testing::SizeIs;

/// What programs of the distribution read from a PDF file.
class PagesTest : public ::testing::Test {
  protected:
    /// The words of all pages, or of one that counts from 1.
    [[nodiscard]] std::string TextOf(const std::string& pdf, int page = 0) const {
        const Path file = folder_ / "report.pdf";
        test::WriteFile(file, pdf);
        const std::string number = std::to_string(page);
        const std::string which = page == 0 ? "" : " -f " + number + " -l " + number;
        return test::OutputOf("pdftotext -layout" + which + " '" + file.string() + "' - 2>&1");
    }

    [[nodiscard]] std::unique_ptr<PagedReport> Break(const Document& document,
                                                     Paper paper = Paper::Letter) const {
        return LoadPageMaker().Break(document, {paper});
    }

    test::TemporaryFolder folder_;
};

class EveryPageTest : public PagesTest, public ::testing::WithParamInterface<SampleReport> {};

TEST_P(EveryPageTest, ThePagesShowEveryCell) {
    NativeFileSystem files;
    ReportMaker maker(files);
    StagedTables tables = test::SampleTables();
    const Report report = maker.Fill(test::RequestFor(GetParam().name, tables));
    for (const Paper paper : {Paper::A4, Paper::Letter}) {
        maker.SetPages({paper});
        const std::string pdf = maker.Content(report, ReportFormat::Pdf);
        EXPECT_LT(pdf.size(), 60U * 1024U);
        const std::string words = test::Squeezed(TextOf(pdf));
        for (const std::string& cell : test::ShownCells(tables, GetParam())) {
            EXPECT_THAT(words, HasSubstr(test::Squeezed(cell)));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Reports, EveryPageTest, ::testing::ValuesIn(test::SampleReports()),
                         [](const auto& report) { return report.param.name; });

blocks::Table LongTable(int rows) {
    blocks::Table table{{{"Axle Type"}, {"Axle Load", Alignment::Right}}, {}};
    for (int i = 1; i <= rows; ++i) table.rows.push_back({"axle" + std::to_string(i) + ".", "1.0"});
    return table;
}

TEST_F(PagesTest, TheHeadingsOfATableStandOnEachOfItsPages) {
    Document document;
    document.blocks = {LongTable(200)};
    const auto pages = Break(document);
    ASSERT_GT(pages->Count(), 3U);
    const std::string pdf = pages->Pdf();
    for (std::size_t i = 0; i < pages->Count(); ++i) {
        EXPECT_THAT(pages->Find(i, "Axle Type"), SizeIs(1)) << "page " << i;
        EXPECT_THAT(TextOf(pdf, static_cast<int>(i) + 1),
                    HasSubstr("Page " + std::to_string(i + 1) + " of " + std::to_string(pages->Count())));
    }
    const std::string words = TextOf(pdf);
    for (int i = 1; i <= 200; ++i) EXPECT_THAT(words, HasSubstr("axle" + std::to_string(i) + "."));
}

TEST_F(PagesTest, NoRowStandsAloneOnTheLastPage) {
    for (int rows = 30; rows < 100; ++rows) {
        Document document;
        document.blocks = {LongTable(rows)};
        const auto pages = Break(document);
        EXPECT_GE(pages->Find(pages->Count() - 1, "axle").size(), 2U) << rows << " rows";
    }
}

/// However much stands above it, a heading goes on with what follows it.
TEST_F(PagesTest, NoHeadingStandsAtTheFootOfAPage) {
    for (int paragraphs = 20; paragraphs < 60; ++paragraphs) {
        Document document;
        for (int i = 0; i < paragraphs; ++i) document.blocks.emplace_back(blocks::Paragraph{"above"});
        document.blocks.emplace_back(blocks::Heading{2, "The Axles"});
        document.blocks.emplace_back(LongTable(3));
        const auto pages = Break(document, Paper::A4);
        for (std::size_t i = 0; i < pages->Count(); ++i) {
            if (pages->Find(i, "The Axles").empty()) continue;
            EXPECT_THAT(pages->Find(i, "Axle Type"), SizeIs(1)) << paragraphs << " paragraphs";
            EXPECT_THAT(pages->Find(i, "axle2."), SizeIs(1)) << paragraphs << " paragraphs";
        }
    }
}

TEST_F(PagesTest, ATextOfManyPagesIsBrokenBetweenItsLines) {
    std::string text;
    for (int i = 0; i < 2000; ++i) text += "word" + std::to_string(i) + ". ";
    Document document;
    document.blocks = {blocks::ValueList{Alignment::Left, {{"Location", text, ""}}}};
    const auto pages = Break(document);
    EXPECT_GT(pages->Count(), 2U);
    const std::string words = TextOf(pages->Pdf());
    for (int i = 0; i < 2000; ++i) EXPECT_THAT(words, HasSubstr("word" + std::to_string(i) + "."));
}

TEST_F(PagesTest, AWordOfTenThousandLettersStaysOnItsPage) {
    Document document;
    document.blocks = {blocks::ValueList{Alignment::Left, {{"Location", std::string(10000, 'q'), ""}}}};
    const auto pages = Break(document);
    const std::string words = TextOf(pages->Pdf());
    EXPECT_EQ(std::count(words.begin(), words.end(), 'q'), 10000);
    std::size_t found = 0;
    for (std::size_t i = 0; i < pages->Count(); ++i) {
        for (const PageRectangle& letter : pages->Find(i, "q")) {
            ++found;
            EXPECT_LE(letter.left + letter.width, pages->Sheet().width - 54.0 + 0.1);
        }
    }
    EXPECT_EQ(found, 10000U);
}

TEST_F(PagesTest, LettersOfEveryKindCanBeSearchedInTheFile) {
    Document document;
    document.title = "é漢字";
    document.head = {"&<>{}\\\"é漢字", "", "Job {7}"};
    document.blocks = {blocks::Paragraph{"&<>{}\\\"é漢字\nefficient traffic office"}};
    const std::string words = TextOf(Break(document)->Pdf());
    EXPECT_THAT(words, HasSubstr("&<>{}\\\"é漢字\n"));
    EXPECT_THAT(words, HasSubstr("efficient traffic office"));
    EXPECT_THAT(words, HasSubstr("Job {7}"));
}

/// The darkest grey, 0 black, between two columns of the dots of the pages' head, above its rule.
unsigned int DarkestOf(const PageImage& image, int left, int right) {
    unsigned int darkest = 0xFF;
    for (int y = 54; y < 65; ++y) {
        for (int x = left; x < right; ++x) {
            darkest = std::min(darkest, image.dots[static_cast<std::size_t>(y * image.width + x)] & 0xFFU);
        }
    }
    return darkest;
}

TEST_F(PagesTest, ALongHeadIsCutAndTheOthersStay) {
    Document document;
    document.head = {std::string(500, 'A'), std::string(500, 'B'), "Job 7"};
    document.foot = {std::string(500, 'C'), "2 May 2026", ""};
    const auto pages = Break(document);
    const std::string words = TextOf(pages->Pdf());
    EXPECT_THAT(words, HasSubstr("Job 7"));
    EXPECT_THAT(words, HasSubstr("2 May 2026"));
    EXPECT_THAT(words, HasSubstr("Page 1 of 1"));
    // The margin is 54 points; the thirds of the text, 504 points wide, meet at 222.
    const PageImage image = pages->Paint(0, 1.0);
    EXPECT_LT(DarkestOf(image, 54, 210), 0x80U);
    EXPECT_EQ(DarkestOf(image, 220, 223), 0xFFU);
    EXPECT_LT(DarkestOf(image, 230, 380), 0x80U);
}

TEST_F(PagesTest, WordsAreFoundWithoutRegardToCase) {
    Document document;
    document.blocks = {blocks::Paragraph{"Slab ÉTAGE and slab"}, blocks::Heading{2, "SLAB"}};
    const auto pages = Break(document);
    EXPECT_THAT(pages->Find(0, "slab"), SizeIs(3));
    EXPECT_THAT(pages->Find(0, "étage"), SizeIs(1));
    EXPECT_THAT(pages->Find(0, ""), SizeIs(0));
    EXPECT_THAT(pages->Find(0, "\xFF"), SizeIs(0));
    const auto slabs = pages->Find(0, "slab");
    EXPECT_NEAR(slabs[0].left, 54.0, 0.5);  // the margin
    EXPECT_GT(slabs[1].left, slabs[0].left + slabs[0].width);
}

TEST_F(PagesTest, ThePictureOfAPageHasItsSizeAndIsWhiteOutsideOfTheText) {
    Document document;
    document.blocks = {blocks::Heading{1, "Title"}};
    const auto pages = Break(document, Paper::Letter);
    const PageImage image = pages->Paint(0, 2.0);
    ASSERT_EQ(image.width, 1224);   // 8.5 in of 72 points, twice
    ASSERT_EQ(image.height, 1584);  // 11 in
    EXPECT_EQ(image.dots.front(), 0xFFFFFFFFU);
    const PageRectangle title = pages->Find(0, "Title").at(0);
    bool isInked = false;
    for (int y = static_cast<int>(title.top * 2.0); y < static_cast<int>((title.top + title.height) * 2.0);
         ++y) {
        for (int x = static_cast<int>(title.left * 2.0);
             x < static_cast<int>((title.left + title.width) * 2.0); ++x) {
            isInked = isInked || image.dots[static_cast<std::size_t>(y * image.width + x)] == 0xFF000000U;
        }
    }
    EXPECT_TRUE(isInked);
}

TEST_F(PagesTest, APictureThatCannotBeReadShowsItsWords) {
    Document document;
    document.blocks = {blocks::Picture{"no picture", "Our office", 72.0, 36.0}};
    EXPECT_THAT(TextOf(Break(document)->Pdf()), HasSubstr("Our office"));
}

TEST_F(PagesTest, ADrawingIsPaintedAsShapesNotAsDots) {
    Document document;
    document.blocks = {test::SampleDrawing()};
    const auto pages = Break(document);
    const std::string pdf = pages->Pdf();
    EXPECT_THAT(TextOf(pdf), HasSubstr("PCC Thickness 9.5 in"));
    EXPECT_EQ(test::CountOf(pdf, "/Image"), 0);
    const PageImage image = pages->Paint(0, 1.0);
    const auto dots = std::count(image.dots.begin(), image.dots.end(), 0xFFC8CCD0U);
    EXPECT_NEAR(static_cast<double>(dots), 200.0 * 90.0, 600.0) << "the slab, less its edges";
}

TEST_F(PagesTest, TheWordsOfADrawingAreFound) {
    Document document;
    document.blocks = {blocks::Paragraph{"A line above."}, test::SampleDrawing()};
    const auto pages = Break(document);
    const auto found = pages->Find(0, "pcc thick");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_GT(found[0].top, pages->Find(0, "line above")[0].top);
    EXPECT_GT(found[0].width, found[0].height);
    EXPECT_THAT(pages->Find(0, "asphalt"), testing::IsEmpty());
}

TEST_F(PagesTest, AWideDrawingKeepsToThePage) {
    ReportDrawing drawing = test::SampleDrawing();
    drawing.scene.width *= 4.0;
    drawing.scene.shapes = {
        shape::Rectangle{{0.0, 0.0}, drawing.scene.width, drawing.scene.height, "#C8CCD0"}};
    Document document;
    document.blocks = {drawing};
    const PageImage image = Break(document)->Paint(0, 1.0);
    const auto paintedIn = [&](int column) {
        int count = 0;
        for (int y = 0; y < image.height; ++y) {
            if (image.dots[static_cast<std::size_t>(y * image.width + column)] == 0xFFC8CCD0U) ++count;
        }
        return count;
    };
    EXPECT_GT(paintedIn(image.width - 56), 0);
    EXPECT_EQ(paintedIn(image.width - 53), 0) << "a margin of 54 points";
}

/// The painted height of the sample's slab, in points; 0 if it is not on the page.
int HeightOfSlab(const PageImage& image) {
    const auto rowHas = [&](int y) {
        const auto row = image.dots.begin() + static_cast<std::ptrdiff_t>(y) * image.width;
        return std::count(row, row + image.width, 0xFFC8CCD0U) > 0;
    };
    int height = 0;
    for (int y = 0; y < image.height; ++y) height += rowHas(y) ? 1 : 0;
    return height;
}

TEST_F(PagesTest, ADrawingIsSmallerRatherThanAloneOnTheNextPage) {
    constexpr int kWhole = 90;
    constexpr int kLeast = 63;  // seven tenths
    Document document;
    document.blocks = {test::SampleDrawing()};
    int smaller = 0;
    for (auto pages = Break(document); pages->Count() == 1; pages = Break(document)) {
        const int height = HeightOfSlab(pages->Paint(0, 1.0));
        EXPECT_GE(height, kLeast - 1);
        EXPECT_LE(height, kWhole + 1);
        if (height < kWhole - 2) ++smaller;
        document.blocks.insert(document.blocks.begin(), blocks::Paragraph{"A line above."});
    }
    EXPECT_GT(smaller, 2);
    EXPECT_EQ(HeightOfSlab(Break(document)->Paint(0, 1.0)), 0);
    EXPECT_NEAR(HeightOfSlab(Break(document)->Paint(1, 1.0)), kWhole, 2);
}

TEST_F(PagesTest, AnEmptyReportIsOnePage) { EXPECT_EQ(Break(Document{})->Count(), 1U); }

TEST_F(PagesTest, ATableOfWideTextsKeepsToThePage) {
    blocks::Table table{{{"No."}, {"Item"}, {"Cost", Alignment::Right}}, {}};
    table.rows = {{"1", std::string(300, 'w'), "1,000.00"}, {"2", "Crack sealing of all lanes", "25.00"}};
    Document document;
    document.blocks = {table};
    const auto pages = Break(document);
    EXPECT_THAT(pages->Find(0, "1,000.00"), SizeIs(1));
    EXPECT_THAT(pages->Find(0, "w"), SizeIs(300));
    const PageRectangle cost = pages->Find(0, "1,000.00").at(0);
    EXPECT_LE(cost.left + cost.width, pages->Sheet().width - 54.0 + 0.1);
}

}  // namespace
}  // namespace kelvor

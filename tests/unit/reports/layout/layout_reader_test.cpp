#include "reports/layout/layout_reader.h"

#include <gtest/gtest.h>

#include "platform/file_system.h"

namespace kelvor {
namespace {

/// The head of a PNG file of 96 by 48 dots: its signature, and the width and the height of its header
/// (Portable Network Graphics, Section 11.2.2).
const std::string kPicture("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\0\0\x60\0\0\0\x30", 24);

class LayoutReaderTest : public ::testing::Test {
  protected:
    LayoutReaderTest() {
        StagedTable axles{"TrAx", {{"AxleType"}, {"AxleWeight", "#,##0.0", "kips"}}, {}};
        axles.rows = {{"Single", 18.0}, {"Tandem", 36.5}};
        tables_.tables = {axles};
    }

    [[nodiscard]] Document Page(const std::string& page) const {
        return FillLayout(page, "Rep_Test.vsr",
                          {tables_, texts_,
                           [](const std::string& name) {
                               if (name != "logo.png") throw FileError("No such file");
                               return kPicture;
                           },
                           &drawings_});
    }

    [[nodiscard]] Document Body(const std::string& body) const {
        return Page("<html>\n<head><title>Axles</title></head>\n<body>\n" + body + "\n</body></html>");
    }

    [[nodiscard]] std::string Error(const std::string& page) const {
        try {
            static_cast<void>(Page(page));
            return "none";
        } catch (const LayoutError& failure) {
            return failure.what();
        }
    }

    /// The error of a body that begins in line 4.
    [[nodiscard]] std::string BodyError(const std::string& body) const {
        return Error("<html>\n<head><title>Axles</title></head>\n<body>\n" + body + "\n</body></html>");
    }

    StagedTables tables_;
    LayoutTexts texts_ = {{"Check", "In balance."}};
    ReportDrawings drawings_ = {
        {"Section", {{.shapes = {shape::Line{{{0.0, 0.0}, {9.0, 9.0}}, {"#000000", 1.0}}}}, "A slab."}},
        {"Nothing", {}}};
};

TEST_F(LayoutReaderTest, HeadingsAndParagraphs) {
    const Document document = Body("<h1>A &amp; B</h1><!-- left out --><p>one<br/>two {Check}</p>");
    EXPECT_EQ(document.title, "Axles");
    ASSERT_EQ(document.blocks.size(), 2U);
    EXPECT_EQ(std::get<blocks::Heading>(document.blocks[0]).level, 1);
    EXPECT_EQ(std::get<blocks::Heading>(document.blocks[0]).text, "A & B");
    EXPECT_EQ(std::get<blocks::Paragraph>(document.blocks[1]).text, "one\ntwo In balance.");
}

TEST_F(LayoutReaderTest, AParagraphWithoutATextIsLeftOut) {
    texts_["Check"] = "";
    EXPECT_EQ(Body("<p> {Check} </p>").blocks.size(), 0U);
}

TEST_F(LayoutReaderTest, LabelsValuesAndUnits) {
    const Document document = Body(
        "<dl class=\"number\" data-table=\"TrAx\"><dt>Load</dt><dd>{AxleWeight}</dd>"
        "<dd class=\"unit\">{unit of AxleWeight}</dd><dt>Type</dt><dd>{AxleType}</dd></dl>");
    const auto& list = std::get<blocks::ValueList>(document.blocks.at(0));
    EXPECT_EQ(list.alignment, Alignment::Right);
    ASSERT_EQ(list.rows.size(), 2U);
    EXPECT_EQ(list.rows[0].label + "|" + list.rows[0].value + "|" + list.rows[0].unit, "Load|18.0|kips");
    EXPECT_EQ(list.rows[1].label + "|" + list.rows[1].value + "|" + list.rows[1].unit, "Type|Single|");
}

TEST_F(LayoutReaderTest, ARowIsRepeatedForEachRowOfItsTable) {
    const Document document = Body(
        "<table><thead><tr><th>Type</th><th class=\"number\">Load</th></tr></thead><tbody>"
        "<tr><td>first</td><td>0</td></tr>"
        "<tr data-rows=\"TrAx\"><td>{AxleType}</td><td>{AxleWeight}</td></tr></tbody></table>");
    const auto& table = std::get<blocks::Table>(document.blocks.at(0));
    ASSERT_EQ(table.columns.size(), 2U);
    EXPECT_EQ(table.columns[0].alignment, Alignment::Left);
    EXPECT_EQ(table.columns[1].alignment, Alignment::Right);
    const std::vector<std::vector<std::string>> rows = {
        {"first", "0"}, {"Single", "18.0"}, {"Tandem", "36.5"}};
    EXPECT_EQ(table.rows, rows);
}

TEST_F(LayoutReaderTest, HeadAndFootOfThePages) {
    const Document document =
        Body("<header><p>a</p><p>b</p><p>c</p></header><footer><p>d</p><p>e</p></footer>");
    EXPECT_EQ(document.head.left + document.head.middle + document.head.right, "abc");
    EXPECT_EQ(document.foot.left + "|" + document.foot.middle + "|" + document.foot.right, "d||e");
}

TEST_F(LayoutReaderTest, APictureBesideTheLayout) {
    const Document document = Body("<img src=\"logo.png\" alt=\"Our office\" width=\"192\"/>");
    const auto& picture = std::get<blocks::Picture>(document.blocks.at(0));
    EXPECT_EQ(picture.words, "Our office");
    EXPECT_EQ(picture.png, kPicture);
    EXPECT_DOUBLE_EQ(picture.widthPoints, 144.0);  // 192 of 96 an inch are 2 inches
    EXPECT_DOUBLE_EQ(picture.heightPoints, 72.0);
}

TEST_F(LayoutReaderTest, ADrawingStandsBelowItsHeading) {
    const Document document =
        Body("<figure data-drawing=\"Section\"><figcaption>Cross Section</figcaption></figure>");
    ASSERT_EQ(document.blocks.size(), 2U);
    EXPECT_EQ(std::get<blocks::Heading>(document.blocks[0]).level, 2);
    EXPECT_EQ(std::get<blocks::Heading>(document.blocks[0]).text, "Cross Section");
    EXPECT_EQ(std::get<blocks::Drawing>(document.blocks[1]).words, "A slab.");
    EXPECT_EQ(std::get<blocks::Drawing>(document.blocks[1]).scene, drawings_.at("Section").scene);
}

TEST_F(LayoutReaderTest, AnEmptyDrawingIsLeftOutWithItsHeading) {
    EXPECT_TRUE(Body("<figure data-drawing=\"Nothing\"><figcaption>Cross Section</figcaption></figure>")
                    .blocks.empty());
}

TEST_F(LayoutReaderTest, ADrawingThatIsNotThereIsTold) {
    EXPECT_EQ(BodyError("<figure data-drawing=\"Chart\"><figcaption>A</figcaption></figure>"),
              "Rep_Test.vsr, line 4: there is no drawing \"Chart\".");
    EXPECT_EQ(BodyError("<figure data-drawing=\"Section\"><p>A</p></figure>"),
              "Rep_Test.vsr, line 4: a \"figure\" holds one \"figcaption\" and nothing else.");
}

TEST_F(LayoutReaderTest, BrokenMarkupIsToldWithItsLine) {
    EXPECT_EQ(Error("<html>\n<body>\n<p>open\n</body></html>"),
              "Rep_Test.vsr, line 4: the markup is broken: Start-end tags mismatch.");
    EXPECT_EQ(Error("no page at all"),
              "Rep_Test.vsr, line 1: the markup is broken: No document element found.");
    EXPECT_EQ(Error(""), "Rep_Test.vsr, line 1: the markup is broken: No document element found.");
    EXPECT_EQ(Error("<report/>"),
              "Rep_Test.vsr, line 1: there is no page: an element \"html\" with an element \"body\".");
}

TEST_F(LayoutReaderTest, WhatMeansNothingIsToldWithItsLine) {
    EXPECT_EQ(BodyError("<p>\n one\n two {TrAx.Weight}</p>"),
              "Rep_Test.vsr, line 6: the table \"TrAx\" has no column \"Weight\".");
    EXPECT_EQ(BodyError("\n<p data-table=\"TrXx\">a</p>"),
              "Rep_Test.vsr, line 5: there is no table \"TrXx\".");
    EXPECT_EQ(BodyError("<blink>a</blink>"),
              "Rep_Test.vsr, line 4: the element \"blink\" cannot stand here.");
    EXPECT_EQ(BodyError("<p><a>b</a></p>"),
              "Rep_Test.vsr, line 4: the element \"a\" cannot stand in a text.");
    EXPECT_EQ(BodyError("\n\nstray"), "Rep_Test.vsr, line 6: a text stands outside of a paragraph.");
    EXPECT_EQ(BodyError("<dl><dt>a</dt></dl>"),
              "Rep_Test.vsr, line 4: in a list \"dl\" each \"dt\" is followed by its \"dd\".");
    EXPECT_EQ(BodyError("<table><tbody/></table>"),
              "Rep_Test.vsr, line 4: a table has its headings in a \"tr\" of its \"thead\".");
    EXPECT_EQ(BodyError("<img src=\"other.png\"/>"),
              "Rep_Test.vsr, line 4: the picture \"other.png\" cannot be read: No such file.");
    EXPECT_EQ(BodyError("<img src=\"../logo.png\"/>"),
              "Rep_Test.vsr, line 4: a picture is named by a file beside the layout, without a folder.");
}

TEST_F(LayoutReaderTest, ARowHasACellForEachColumn) {
    EXPECT_EQ(BodyError("<table><thead><tr><th>a</th><th>b</th></tr></thead>\n<tbody>\n<tr><td>1</td></tr></"
                        "tbody></table>"),
              "Rep_Test.vsr, line 6: the row has 1 cells, the table 2 columns.");
}

TEST_F(LayoutReaderTest, ARepeatedRowIsCheckedEvenIfItsTableHasNoRows) {
    tables_.tables[0].rows.clear();
    EXPECT_EQ(
        BodyError("<table><thead><tr><th>a</th></tr></thead><tbody>\n<tr data-rows=\"TrAx\"><td>{X}</td></tr>"
                  "</tbody></table>"),
        "Rep_Test.vsr, line 5: the table \"TrAx\" has no column \"X\".");
}

TEST_F(LayoutReaderTest, ATreeThatIsTooDeepIsRefused) {
    std::string deep;
    for (int i = 0; i < 100000; ++i) deep += "<div>";
    for (int i = 0; i < 100000; ++i) deep += "</div>";
    EXPECT_EQ(BodyError(deep), "Rep_Test.vsr, line 1: elements stand too deep in one another.");
}

}  // namespace
}  // namespace kelvor

#include "reports/report_maker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sample_tables.h"
#include "support/temporary_folder.h"

namespace kelvor {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class ReportMakerTest : public ::testing::Test {
  protected:
    [[nodiscard]] std::string Text(const ReportRequest& request) {
        const Report report = maker_.Fill(request);
        EXPECT_EQ(report.error, "");
        return report.IsFilled() ? maker_.Content(report, ReportFormat::Text) : "";
    }

    /// The delivered layout of a report with one text replaced by another.
    ReportRequest Changed(const std::string& name, const std::string& from, const std::string& to) {
        ReportRequest request = test::RequestFor(name, test::SampleTables());
        std::string layout = test::ReadFile(request.layout);
        const std::size_t place = layout.find(from);
        EXPECT_NE(place, std::string::npos);
        layout.replace(place, from.size(), to);
        request.layout = folder_ / request.layout.filename().string();
        test::WriteFile(request.layout, layout);
        return request;
    }

    NativeFileSystem files_;
    ReportMaker maker_{files_};
    test::TemporaryFolder folder_;
};

TEST_F(ReportMakerTest, ALayoutThatIsMissingIsTold) {
    ReportRequest request = test::RequestFor("DeF", {});
    request.layout = folder_ / "Rep_DeF.vsr";
    const Report report = maker_.Fill(request);
    EXPECT_FALSE(report.IsFilled());
    EXPECT_EQ(report.error,
              "The layout " + request.layout.string() + " cannot be read: No such file or directory.");
}

TEST_F(ReportMakerTest, ALayoutThatIsWrongIsToldWithFileAndLine) {
    const Report report = maker_.Fill(Changed("DeF", "{Company}", "{Compagny}"));
    EXPECT_FALSE(report.IsFilled());
    // The heads of the pages stand in line 7 of the layout.
    EXPECT_EQ(report.error, "Rep_DeF.vsr, line 7: the table \"GenInfo\" has no column \"Compagny\".");
}

TEST_F(ReportMakerTest, ALayoutChangedByOneColumnChangesTheReport) {
    const StagedTables tables = test::SampleTables();
    const std::string reliability = test::ShownCells(tables, {"", {{"FlexPavementDesign", {}}}}).at(2);
    EXPECT_THAT(Text(test::RequestFor("DeF", tables)), HasSubstr(reliability));
    EXPECT_THAT(Text(Changed("DeF", "{FLEXREL}", "{FLEXPO}")), Not(HasSubstr(reliability)));
}

TEST_F(ReportMakerTest, ARowThatWasChangedChangesTheReport) {
    ReportRequest request = test::RequestFor("DeF", test::SampleTables());
    auto table = std::find_if(request.tables.tables.begin(), request.tables.tables.end(),
                              [](const StagedTable& t) { return t.name == "FlexPavementDesign"; });
    table->rows[0][0] = 5.41;
    table->columns[0].picture = "#0.00";
    EXPECT_THAT(Text(request), HasSubstr("Structural Number, SN           5.41"));
}

TEST_F(ReportMakerTest, TheTitleOfTheRunCanBeShown) {
    EXPECT_THAT(Text(Changed("DeF", "<h1>Flexible Design Report</h1>", "<h1>{Title}</h1>")),
                HasSubstr("Report DeF\n=========="));
}

TEST_F(ReportMakerTest, LettersOfEveryKindStand) {
    ReportRequest request = test::RequestFor("DeF", test::SampleTables());
    StagedTable& general = request.tables.tables.front();
    for (StagedValue& value : general.rows[0]) value = "&<>{}\\\"é漢字\r\nsecond line";
    EXPECT_THAT(Text(request), HasSubstr("Agency      &<>{}\\\"é漢字\n            second line\n"));
}

TEST_F(ReportMakerTest, AFileIsReplacedWholeOrStays) {
    const Report report = maker_.Fill(test::RequestFor("DeF", test::SampleTables()));
    const Path file = folder_ / "report.txt";
    test::WriteFile(file, "earlier");
    maker_.Write(report, ReportFormat::Text, file);
    EXPECT_EQ(test::ReadFile(file), maker_.Content(report, ReportFormat::Text));
    EXPECT_THROW(maker_.Write(report, ReportFormat::Text, folder_ / "no folder/report.txt"), FileError);
}

}  // namespace
}  // namespace kelvor

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>

#include "extracted_text.h"
#include "reports/report_maker.h"
#include "sample_tables.h"
#include "support/temporary_folder.h"

namespace kelvor {
namespace {

using test::SampleReport;
using ::testing::HasSubstr;

class EveryReportTest : public ::testing::TestWithParam<SampleReport> {
  protected:
    [[nodiscard]] Report Filled() { return maker_.Fill(test::RequestFor(GetParam().name, tables_)); }

    /// Writes the report, and gives the file.
    Path Write(ReportFormat format) {
        const Report report = Filled();
        EXPECT_EQ(report.error, "");
        const Path file = folder_ / "report";
        maker_.Write(report, format, file);
        return file;
    }

    /// Every cell stands in the text, whose blanks do not matter.
    void ExpectCells(const std::string& text) {
        const std::string squeezed = test::Squeezed(text);
        for (const std::string& cell : test::ShownCells(tables_, GetParam())) {
            EXPECT_THAT(squeezed, HasSubstr(test::Squeezed(cell)));
        }
        EXPECT_EQ(squeezed.find("Inbalance:checked.") != std::string::npos, GetParam().hasCheck);
    }

    NativeFileSystem files_;
    ReportMaker maker_{files_};
    StagedTables tables_ = test::SampleTables();
    test::TemporaryFolder folder_;
};

TEST_P(EveryReportTest, TheTextShowsEveryCell) { ExpectCells(test::ReadFile(Write(ReportFormat::Text))); }

TEST_P(EveryReportTest, TheWebPageShowsEveryCell) {
    ExpectCells(test::TextOfHtml(test::ReadFile(Write(ReportFormat::Html))));
}

TEST_P(EveryReportTest, TheWordProcessorsFileShowsEveryCell) {
    ExpectCells(test::OutputOf("unrtf --nopict --text '" + Write(ReportFormat::Rtf).string() + "' 2>&1"));
}

/// The reports of a pavement, which are those with a check of its equation, show its section.
TEST_P(EveryReportTest, TheSectionStandsOnTheReportOfAPavement) {
    const int count = GetParam().hasCheck ? 1 : 0;
    const std::string text = test::Squeezed(test::ReadFile(Write(ReportFormat::Text)));
    EXPECT_EQ(test::CountOf(text, "CrossSection"), count);
    EXPECT_EQ(test::CountOf(text, "Aslab.Fromthetop:PCCThickness9.5in;Subgrade."), count);
    EXPECT_EQ(test::CountOf(test::ReadFile(Write(ReportFormat::Html)), "<svg "), count);
    EXPECT_EQ(test::CountOf(test::ReadFile(Write(ReportFormat::Rtf)), "\\pngblip"), count);
}

TEST_P(EveryReportTest, WhatBelongsToAnotherOverlayIsNotShown) {
    const std::string text = test::ReadFile(Write(ReportFormat::Text));
    for (const test::ShownTable& shown : GetParam().tables) {
        test::SampleReport hidden{"", {{shown.name, {}}}};
        const StagedTable& table = *tables_.Find(shown.name);
        for (const StagedColumn& column : table.columns) {
            if (std::find(shown.without.begin(), shown.without.end(), column.name) == shown.without.end()) {
                hidden.tables[0].without.push_back(column.name);
            }
        }
        for (const std::string& cell : test::ShownCells(tables_, hidden))
            EXPECT_THAT(text, Not(HasSubstr(cell)));
    }
}

std::string NameOf(const ::testing::TestParamInfo<SampleReport>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Reports, EveryReportTest, ::testing::ValuesIn(test::SampleReports()), NameOf);

}  // namespace
}  // namespace kelvor

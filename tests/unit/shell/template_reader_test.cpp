#include "shell/template_reader.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "support/test_home.h"

namespace kelvor::test {
namespace {

using Row = std::tuple<std::string, int, int, CellValue>;

/// The filled cells of a file, by the work copy.
std::vector<Row> FilledRows(WorkCopy& project) {
    std::vector<Row> rows;
    project.ReadFilledRows([&](const WorkCopy::Row& row) {
        rows.emplace_back(std::string(row.name), row.dim1, row.dim2, row.value);
    });
    return rows;
}

class TemplateReaderTest : public testing::Test {
  protected:
    TestHome home_;
    Path template_ = home_.home().Template();
};

TEST_F(TemplateReaderTest, GivesTheContentWithWhatAWorkCopyOfItWouldFindThere) {
    {
        WorkCopy project(template_, true);
        project.Update("PavDesc", 1, 2, {std::nullopt, "a road"});
        project.Update("LDLayerThick", 3, 1, {6.5, std::nullopt});
    }
    const auto read = TemplateReader(template_).Take();
    ASSERT_TRUE(read);
    EXPECT_EQ(read->content, ReadFile(template_));
    WorkCopy project(template_, true);
    EXPECT_EQ(read->cells.rows, project.CountRows());
    std::vector<Row> cells;
    for (const auto& [key, value] : read->cells.cells)
        cells.emplace_back(key.name, key.dim1, key.dim2, value);
    EXPECT_EQ(cells, FilledRows(project));
    EXPECT_GE(cells.size(), 2U);
}

TEST_F(TemplateReaderTest, GivesNothingASecondTime) {
    TemplateReader reader(template_);
    EXPECT_TRUE(reader.Take());
    EXPECT_FALSE(reader.Take());
}

TEST_F(TemplateReaderTest, GivesNothingOfWhatIsNoProject) {
    const std::string whole = ReadFile(template_);
    const std::string contents[] = {"", "x", std::string(20000, 'x'), whole.substr(0, 8192)};
    for (const std::string& content : contents) {
        WriteFile(template_, content);
        EXPECT_FALSE(TemplateReader(template_).Take()) << content.size() << " bytes";
    }
    std::filesystem::remove(template_);
    EXPECT_FALSE(TemplateReader(template_).Take());
}

TEST_F(TemplateReaderTest, EndsWithoutHavingBeenAsked) { const TemplateReader reader(template_); }

}  // namespace
}  // namespace kelvor::test

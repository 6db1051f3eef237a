#include "reports/layout/placeholders.h"

#include <gtest/gtest.h>

namespace kelvor {
namespace {

class PlaceholdersTest : public ::testing::Test {
  protected:
    PlaceholdersTest() {
        StagedTable layers{"Layers", {{"Thick", "#,##0.0", "in"}, {"Material"}}, {}};
        layers.rows = {{4.25, "Asphalt\r\nconcrete"}, {1234.0, "Base {1}"}};
        tables_.tables = {layers, {"Axles", {{"Weight", "#,##0.0", "kips"}}, {}}};
        texts_ = {{"Check", "In balance."}, {"Material", "a text"}};
    }

    [[nodiscard]] std::string Fill(std::string_view text, const std::string& table = "",
                                   std::size_t row = 0) const {
        return FillPlaceholders(text, {tables_, texts_, tables_.Find(table), row});
    }

    /// What is wrong with a text, and in which of its lines.
    [[nodiscard]] std::string Error(std::string_view text, const std::string& table = "") const {
        try {
            return Fill(text, table);
        } catch (const PlaceholderError& failure) {
            return std::to_string(failure.line()) + ": " + failure.what();
        }
    }

    StagedTables tables_;
    LayoutTexts texts_;
};

TEST_F(PlaceholdersTest, ANumberStandsInThePictureOfItsVariable) {
    EXPECT_EQ(Fill("{Layers.Thick} {unit of Layers.Thick}"), "4.3 in");
}

TEST_F(PlaceholdersTest, TheLayoutMayBringAPictureOfItsOwn) {
    EXPECT_EQ(Fill("{Layers.Thick as 0.000}"), "4.250");
}

TEST_F(PlaceholdersTest, TheTableOfTheScopeNeedsNoName) {
    EXPECT_EQ(Fill("{thick}, {Layers.Thick}", "Layers", 1), "1,234.0, 1,234.0");
}

TEST_F(PlaceholdersTest, AColumnGoesBeforeATextOfItsName) {
    EXPECT_EQ(Fill("{Material}", "Layers", 1), "Base {1}");
    EXPECT_EQ(Fill("{Material}"), "a text");
}

TEST_F(PlaceholdersTest, TextsCanBeNamedEverywhere) { EXPECT_EQ(Fill("{ Check }", "Layers"), "In balance."); }

TEST_F(PlaceholdersTest, LineBreaksOfAValueStayAndThoseOfTheLayoutDoNot) {
    EXPECT_EQ(Fill("of\n   {Layers.Material}"), "of Asphalt\nconcrete");
}

TEST_F(PlaceholdersTest, ATableWithoutRowsGivesAnEmptyText) { EXPECT_EQ(Fill("[{Axles.Weight}]"), "[]"); }

TEST_F(PlaceholdersTest, DoubleBracesAreBraces) { EXPECT_EQ(Fill("{{{Check}}}"), "{In balance.}"); }

TEST_F(PlaceholdersTest, WhatMeansNothingIsTold) {
    EXPECT_EQ(Error("a\n{Layers.Depth}"), "1: the table \"Layers\" has no column \"Depth\"");
    EXPECT_EQ(Error("{Depth}", "Layers"), "0: the table \"Layers\" has no column \"Depth\"");
    EXPECT_EQ(Error("{Slabs.Depth}"), "0: there is no table \"Slabs\"");
    EXPECT_EQ(Error("{Depth}"), "0: there is no text \"Depth\"");
    EXPECT_EQ(Error("{Layers.Thick as many}"), "0: \"many\" is no number picture");
    EXPECT_EQ(Error("{Check"), "0: a brace is not closed; a brace itself is written {{ or }}");
    EXPECT_EQ(Error("a } b"), "0: a brace is closed that was not opened; a brace itself is written {{ or }}");
}

}  // namespace
}  // namespace kelvor

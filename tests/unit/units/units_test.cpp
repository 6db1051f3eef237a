#include "units/units.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <map>
#include <random>
#include <string>
#include <utility>

#include "support/test_host.h"

namespace kelvor::test {
namespace {

class UnitsTest : public testing::Test {
  protected:
    [[nodiscard]] CellValue Cell(const std::string& name) { return *program_.store().FindCell(name, 1, 1); }

    TestProgram program_;
    ProjectStore& store_ = program_.store();
    Units& units_ = program_.units();
};

TEST_F(UnitsTest, InEnglishEveryFactorIsOne) {
    for (const UnitPair& pair : program_.program.state().dbCatalogue->unitPairs()) {
        EXPECT_EQ(units_.UnitFactor(pair.english), 1.0);
    }
    EXPECT_EQ(units_.UnitFactor("furlong"), 1.0);
}

TEST_F(UnitsTest, InEnglishACatalogueWithoutUnitPairsChangesNothing) {
    const TestHome bareHome;
    SQLite::Database((bareHome / "DataBase/Kelvor.mdb").string(), SQLite::OPEN_READWRITE)
        .exec("DELETE FROM \"Convert\"");
    TestHost bareHost;
    Program bare(bareHost.host(), bareHome.home());
    ASSERT_EQ(bare.Start(""), StartResult::Running);
    ASSERT_TRUE(bare.state().dbCatalogue->unitPairs().empty());
    Units& bareUnits = *bare.state().units;

    for (const UnitPair& pair : program_.program.state().dbCatalogue->unitPairs()) {
        EXPECT_EQ(bareUnits.UnitFactor(pair.english), 1.0) << pair.english;
        EXPECT_EQ(bareUnits.UnitFactor(pair.metric), 1.0) << pair.metric;
    }
    EXPECT_EQ(bareUnits.UnitFactor("furlong"), 1.0);
    EXPECT_EQ(bareUnits.UnitFactor(""), 1.0);
    for (const Variable& variable : program_.program.state().dbCatalogue->variables()) {
        SCOPED_TRACE(variable.name);
        units_.SetDisplayValue(variable.name, 1, 1, "12.7");
        bareUnits.SetDisplayValue(variable.name, 1, 1, "12.7");
        EXPECT_EQ(*bare.state().dbWork.FindCell(variable.name, 1, 1), Cell(variable.name));
        EXPECT_EQ(bareUnits.GetDisplayValue(variable.name), units_.GetDisplayValue(variable.name));
        EXPECT_EQ(bareUnits.UnitLabel(variable.name), units_.UnitLabel(variable.name));
    }
}

TEST_F(UnitsTest, InMetricTheFactorIsThatOfThePair) {
    units_.SetMetric(true);
    EXPECT_EQ(units_.UnitFactor("in"), 25.4);
    EXPECT_EQ(units_.UnitFactor("PSI"), 0.006894757);
    EXPECT_EQ(units_.UnitFactor("psi/in"), 0.27144712);
    EXPECT_EQ(units_.UnitFactor("ESN"), 25.4);
    EXPECT_EQ(units_.UnitFactor("18 kip ESAL's"), 1.0);
    EXPECT_EQ(units_.UnitFactor("sq yd"), 0.83612736);
    EXPECT_EQ(units_.UnitFactor("ton (e)"), 0.90718474);
    EXPECT_EQ(units_.UnitFactor("In feet"), 30.48);
    EXPECT_EQ(units_.UnitFactor("furlong"), 1.0);
    EXPECT_EQ(units_.UnitFactor("mm"), 1.0) << "a metric name is no English one";
}

TEST_F(UnitsTest, TheLabelFollowsTheSystem) {
    EXPECT_EQ(units_.UnitLabel("RM"), "psi");
    EXPECT_EQ(units_.UnitLabel("depth"), "in");
    EXPECT_EQ(units_.UnitLabel("NOSUCH"), "");
    units_.SetMetric(true);
    EXPECT_EQ(units_.UnitLabel("RM"), "MPa");
    EXPECT_EQ(units_.UnitLabel("DEPTH"), "mm");
    EXPECT_EQ(units_.UnitLabel("FLEXDEV"), "No Units");
}

TEST_F(UnitsTest, TheRangeIsThatOfTheSystemNeverConverted) {
    const Range english = units_.VariableRange("DEPTH");
    EXPECT_EQ(english.low, 0.0);
    EXPECT_EQ(english.high, 20.0);
    units_.SetMetric(true);
    const Variable* depth = program_.program.state().dbCatalogue->FindVariable("DEPTH");
    EXPECT_EQ(units_.VariableRange("DEPTH").high, depth->highMetric);
    EXPECT_NE(units_.VariableRange("DEPTH").high, english.high);
    EXPECT_EQ(units_.VariableRange("NOSUCH").high, std::nullopt);
    EXPECT_EQ(units_.VariableRange("Agency").low, std::nullopt);
}

TEST_F(UnitsTest, ANumberTypedInEnglishIsStoredAsItStandsWithItsText) {
    units_.SetDisplayValue("FLEXE18", 1, 1, "5,250");
    EXPECT_EQ(Cell("FLEXE18"), (CellValue{5250.0, "5,250"}));
    EXPECT_EQ(units_.GetDisplayValue("FLEXE18"), "5,250");
}

TEST_F(UnitsTest, TwelvePointSevenMillimetresAreHalfAnInch) {
    units_.SetMetric(true);
    units_.SetDisplayValue("DEPTH", 1, 1, "12.7");
    EXPECT_EQ(Cell("DEPTH"), (CellValue{0.5, "12.7"}));
    EXPECT_EQ(units_.GetDisplayValue("DEPTH"), "12.7");
    units_.SetMetric(false);
    EXPECT_EQ(units_.GetDisplayValue("DEPTH"), "0.5") << "the typed text plays no part";
}

TEST_F(UnitsTest, OneFormatServesBothSystems) {
    store_.SetVar("DEPTH", 9.0);
    EXPECT_EQ(units_.GetDisplayValue("DEPTH"), "9.0");
    units_.SetMetric(true);
    EXPECT_EQ(units_.GetDisplayValue("DEPTH"), "228.6");
}

TEST_F(UnitsTest, AnEmptyTextEmptiesTheCell) {
    units_.SetDisplayValue("DEPTH", 1, 1, "9");
    units_.SetDisplayValue("DEPTH", 1, 1, "");
    EXPECT_FALSE(Cell("DEPTH").IsFilled());
    EXPECT_EQ(units_.GetDisplayValue("DEPTH"), "");
}

TEST_F(UnitsTest, ATextLeavesTheNumberNull) {
    units_.SetDisplayValue("LDLayerMat", 2, 1, "Crushed Stone Base");
    EXPECT_EQ(*store_.FindCell("LDLayerMat", 2, 1), (CellValue{std::nullopt, "Crushed Stone Base"}));
    EXPECT_EQ(units_.GetDisplayValue("LDLayerMat", 2, 1), "Crushed Stone Base");
    units_.SetDisplayValue("RehabYear", 1, 1, "N/A");
    EXPECT_EQ(Cell("RehabYear"), (CellValue{std::nullopt, "N/A"}));
    EXPECT_EQ(units_.GetDisplayValue("RehabYear"), "N/A");
}

TEST_F(UnitsTest, ATextVariableKeepsDigitsAsText) {
    units_.SetDisplayValue("JobNumber", 1, 1, "007");
    EXPECT_EQ(Cell("JobNumber"), (CellValue{std::nullopt, "007"}));
    EXPECT_EQ(units_.GetDisplayValue("JobNumber"), "007");
}

TEST_F(UnitsTest, ATextThatIsNumericIsShownInItsVariablesFormat) {
    store_.SetCell("DEPTH", 1, 1, {std::nullopt, "9"});
    EXPECT_EQ(units_.GetDisplayValue("DEPTH"), "9.0");
}

TEST_F(UnitsTest, ANumberBeyondADoubleStaysAText) {
    units_.SetDisplayValue("FLEXE18", 1, 1, "1e999");
    EXPECT_EQ(Cell("FLEXE18"), (CellValue{std::nullopt, "1e999"}));
    units_.SetMetric(true);
    units_.SetDisplayValue("EC", 1, 1, "1e308");  // in psi it would be beyond a double
    EXPECT_EQ(Cell("EC"), (CellValue{std::nullopt, "1e308"}));
}

TEST_F(UnitsTest, AMissingCellReadsEmptyAndTakesNothing) {
    units_.SetDisplayValue("NOSUCH", 1, 1, "5");
    units_.SetDisplayValue("SN", 2, 1, "5");
    EXPECT_EQ(units_.GetDisplayValue("NOSUCH"), "");
    EXPECT_EQ(units_.GetDisplayValue("SN", 2, 1), "");
    EXPECT_TRUE(store_.CompareWithWorkCopy().empty());
}

TEST_F(UnitsTest, ANumberIsStoredWithItsShortestText) {
    units_.SetDisplayNumber("DEPTH", 1, 1, 0.1 + 0.2);
    EXPECT_EQ(Cell("DEPTH"), (CellValue{0.1 + 0.2, "0.3"}));
    units_.SetMetric(true);
    units_.SetDisplayNumber("DEPTH", 1, 1, 254.0);
    EXPECT_EQ(Cell("DEPTH"), (CellValue{10.0, "254"}));
}

TEST_F(UnitsTest, BlankConversions) {
    EXPECT_EQ(BlankToNull(""), std::nullopt);
    EXPECT_EQ(BlankToNull("0"), "0");
    EXPECT_EQ(BlankToZero(""), "0");
    EXPECT_EQ(BlankToZero("5"), "5");
}

/// Every cell's two values, bit for bit.
std::map<std::string, std::pair<std::uint64_t, std::string>> Snapshot(const ProjectStore& store) {
    std::map<std::string, std::pair<std::uint64_t, std::string>> cells;
    store.ForEachFilled([&](const CellKey& key, const CellValue& value) {
        std::uint64_t bits = 0;
        if (value.number) std::memcpy(&bits, &*value.number, sizeof bits);
        cells[CellText(key.name, key.dim1, key.dim2)] = {bits, value.text.value_or("(null)")};
    });
    return cells;
}

TEST_F(UnitsTest, SwitchingToAndFroLeavesEveryCellBitEqual) {
    std::mt19937_64 random(20260101);
    std::uniform_real_distribution<double> exponent(-8.0, 12.0);
    for (const Variable& variable : program_.program.state().dbCatalogue->variables()) {
        if (!variable.IsText()) store_.SetVar(variable.name, std::pow(10.0, exponent(random)));
    }
    const auto before = Snapshot(store_);
    for (int i = 0; i < 20; ++i) {
        program_.program.ChooseUnits(i % 2 == 0);
        for (const Variable& variable : program_.program.state().dbCatalogue->variables()) {
            (void)units_.GetDisplayValue(variable.name);
        }
    }
    EXPECT_EQ(Snapshot(store_), before);
    EXPECT_FALSE(program_.program.state().bProjectChanged);
}

TEST_F(UnitsTest, WhatIsShownAndTypedAgainComesBackWithinItsLastDigit) {
    std::mt19937_64 random(20260102);
    std::uniform_real_distribution<double> value(0.01, 10000.0);
    for (const bool metric : {false, true}) {
        units_.SetMetric(metric);
        for (int i = 0; i < 500; ++i) {
            store_.SetVar("DEPTH", value(random));
            const std::string shown = units_.GetDisplayValue("DEPTH");
            units_.SetDisplayValue("DEPTH", 1, 1, shown);
            EXPECT_EQ(units_.GetDisplayValue("DEPTH"), shown);
        }
    }
}

}  // namespace
}  // namespace kelvor::test

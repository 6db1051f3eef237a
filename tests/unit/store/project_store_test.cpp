#include "store/project_store.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "platform/sqlite.h"
#include "store/work_copy.h"
#include "support/test_home.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

class ProjectStoreTest : public testing::Test {
  protected:
    TestProgram program_;
    ProjectStore& store_ = program_.store();
};

TEST_F(ProjectStoreTest, AnEmptyNumberReadsAsZero) {
    ASSERT_NE(store_.FindCell("SN", 1, 1), nullptr);
    EXPECT_FALSE(store_.FindCell("SN", 1, 1)->IsFilled());
    EXPECT_EQ(store_.GetVar("SN"), 0.0);
}

TEST_F(ProjectStoreTest, AReadOfACellWithoutARowStopsTheProgram) {
    EXPECT_THROW((void)store_.GetVar("NOSUCH"), ProgramStop);
    EXPECT_THROW((void)store_.GetVarDim("LDLayerCoef", 7, 1), ProgramStop);
    EXPECT_THROW((void)store_.GetVarDim("LDLayerCoef", 1, 2), ProgramStop);
    EXPECT_THROW((void)store_.GetVarDim("LDLayerCoef", 0, 1), ProgramStop);
    EXPECT_THROW(store_.SetVarDim("SN", 2, 1, 5.0), ProgramStop);
}

TEST_F(ProjectStoreTest, OtherWritesPassOverAMissingCell) {
    store_.SetVar("NOSUCH", 1.0);
    store_.SetVarText("NOSUCH", "text");
    store_.SetCell("SN", 2, 1, {1.0, std::nullopt});
    EXPECT_TRUE(store_.CompareWithWorkCopy().empty());
}

TEST_F(ProjectStoreTest, NamesCompareWithoutRegardToCase) {
    store_.SetVar("flexe18", 5e6);
    EXPECT_EQ(store_.GetVar("FlexE18"), 5e6);
    EXPECT_EQ(store_.CanonicalName("flexe18"), "FLEXE18");
}

TEST_F(ProjectStoreTest, TheNumericSettersLeaveTheText) {
    store_.SetCell("SN", 1, 1, {5.0, "5.0"});
    store_.SetVar("SN", 6.0);
    EXPECT_EQ(*store_.FindCell("SN", 1, 1), (CellValue{6.0, "5.0"}));
    store_.SetVarDim("SN", 1, 1, 7.0);
    EXPECT_EQ(*store_.FindCell("SN", 1, 1), (CellValue{7.0, "5.0"}));
}

TEST_F(ProjectStoreTest, ANumberThatIsNotFiniteIsRefusedAndTheCellStays) {
    store_.SetCell("SN", 1, 1, {5.0, "5.0"});
    for (const double number :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW(store_.SetVar("SN", number), ArithmeticFault);
        EXPECT_THROW(store_.SetVarDim("SN", 1, 1, number), ArithmeticFault);
        EXPECT_THROW(store_.SetCell("SN", 1, 1, {number, "?"}), ArithmeticFault);
    }
    EXPECT_EQ(*store_.FindCell("SN", 1, 1), (CellValue{5.0, "5.0"}));
}

TEST_F(ProjectStoreTest, WhatIsWorkedOutWithItsNumbersIsChecked) {
    static_assert(!std::is_convertible_v<Real, double>, "an unchecked quotient must not compile");
    EXPECT_THROW(store_.SetVar("SN", store_.GetVar("RM") / store_.GetVar("SN")), ArithmeticFault);
    EXPECT_FALSE(store_.FindCell("SN", 1, 1)->IsFilled());
}

TEST_F(ProjectStoreTest, ATextIsNoNumberAndAnEmptyTextEmptiesBoth) {
    store_.SetVar("Agency", 3.0);
    store_.SetVarText("Agency", "County");
    EXPECT_EQ(*store_.FindCell("Agency", 1, 1), (CellValue{std::nullopt, "County"}));
    EXPECT_EQ(store_.GetVar("Agency"), 0.0);
    store_.SetVarText("Agency", "");
    EXPECT_FALSE(store_.FindCell("Agency", 1, 1)->IsFilled());
}

TEST_F(ProjectStoreTest, SumsAndCountsSeeOnlyNumbers) {
    EXPECT_EQ(store_.SQLSum("NDTRM"), std::nullopt);
    EXPECT_EQ(store_.SQLCount("NDTRM"), 0);
    EXPECT_EQ(store_.SQLSum("NOSUCH"), std::nullopt);
    EXPECT_EQ(store_.SQLCount("NOSUCH"), 0);
    store_.SetVarDim("NDTRM", 1, 1, 0.1);
    store_.SetVarDim("NDTRM", 2, 1, 0.2);
    store_.SetVarDim("NDTRM", 300, 1, 0.3);
    store_.SetCell("NDTRM", 4, 1, {std::nullopt, "none"});
    EXPECT_EQ(store_.SQLSum("NDTRM"), 0.1 + 0.2 + 0.3);  // in key order
    EXPECT_EQ(store_.SQLCount("NDTRM"), 3);
}

TEST_F(ProjectStoreTest, AggregatesCanKeepToOneSecondSubscript) {
    store_.SetVarDim("InitialItemCost", 1, 1, 10.0);
    store_.SetVarDim("InitialItemCost", 1, 2, 20.0);
    store_.SetVarDim("InitialItemCost", 35, 2, 30.0);
    EXPECT_EQ(store_.SQLSum("InitialItemCost", 1), 10.0);
    EXPECT_EQ(store_.SQLSum("InitialItemCost", 2), 50.0);
    EXPECT_EQ(store_.SQLCount("InitialItemCost", 2), 2);
    EXPECT_EQ(store_.SQLCount("InitialItemCost"), 3);
}

TEST_F(ProjectStoreTest, EveryCellIsReadAndWrittenAtItsOwnPlace) {
    store_.BeginEvent();
    for (int row = 1; row <= 35; ++row) {
        for (int block = 1; block <= 2; ++block)
            store_.SetVarDim("InitialQuantity", row, block, 100 * row + block);
    }
    store_.EndEvent();
    for (int row = 1; row <= 35; ++row) {
        for (int block = 1; block <= 2; ++block) {
            EXPECT_EQ(store_.GetVarDim("InitialQuantity", row, block), 100 * row + block);
        }
    }
    EXPECT_TRUE(store_.CompareWithWorkCopy().empty());
}

TEST_F(ProjectStoreTest, TheComparisonSeesADifference) {
    // The comparison is what other tests lean on: it must see a row changed behind the store's back.
    TestHome other;
    ProjectStore store;
    std::filesystem::copy_file(other / "kvrwork.tpl", other / "kvrwork.tmp");
    store.Open(other / "kvrwork.tmp", {}, false);
    EXPECT_TRUE(store.CompareWithWorkCopy().empty());
    store.BeginEvent();
    store.SetVar("SN", 5.0);
    EXPECT_TRUE(store.CompareWithWorkCopy().empty());
    store.Abandon();
    store.Open(other / "kvrwork.tmp", {}, false);
    EXPECT_EQ(store.GetVar("SN"), 0.0) << "an event that was not ended leaves nothing behind";
}

TEST_F(ProjectStoreTest, WhatAnEventWroteIsThereAfterReopening) {
    TestHome other;
    std::filesystem::copy_file(other / "kvrwork.tpl", other / "kvrwork.tmp");
    {
        ProjectStore store;
        store.Open(other / "kvrwork.tmp", {}, false);
        store.BeginEvent();
        store.SetVar("SN", 0.1 + 0.2);
        store.SetCell("Agency", 1, 1, {std::nullopt, "O'Brien \"& Sons\" \xC3\xA4"});
        store.EndEvent();
        store.Close();
        EXPECT_FALSE(store.IsOpen());
    }
    ProjectStore store;
    store.Open(other / "kvrwork.tmp", {}, true);
    EXPECT_EQ(store.GetVar("SN"), 0.1 + 0.2);
    EXPECT_EQ(store.FindCell("Agency", 1, 1)->text, "O'Brien \"& Sons\" \xC3\xA4");
}

TEST_F(ProjectStoreTest, WhatAnUndoneEventWroteIsGoneFromMemoryAndWorkCopy) {
    store_.SetCell("SN", 1, 1, {5.0, "5.0"});
    store_.BeginEvent();
    store_.SetVar("SN", 6.0);
    store_.SetCell("SN", 1, 1, {7.0, "7"});
    store_.SetVarText("Agency", "County");
    store_.UndoEvent();
    EXPECT_EQ(*store_.FindCell("SN", 1, 1), (CellValue{5.0, "5.0"}));
    EXPECT_FALSE(store_.FindCell("Agency", 1, 1)->IsFilled());
    EXPECT_TRUE(store_.CompareWithWorkCopy().empty());
    store_.UndoEvent();  // no event is open
    store_.SetVar("SN", 8.0);
    store_.UndoEvent();
    EXPECT_EQ(store_.GetVar("SN"), 8.0) << "a write outside an event stays";
    EXPECT_TRUE(store_.CompareWithWorkCopy().empty());
}

TEST_F(ProjectStoreTest, AnEndedEventIsNotUndoneByTheNextOne) {
    store_.BeginEvent();
    store_.SetVar("SN", 6.0);
    store_.EndEvent();
    store_.BeginEvent();
    store_.UndoEvent();
    EXPECT_EQ(store_.GetVar("SN"), 6.0);
}

TEST_F(ProjectStoreTest, ClosingLeavesNoFileBesideTheWorkCopy) {
    TestHome other;
    std::filesystem::copy_file(other / "kvrwork.tpl", other / "kvrwork.tmp");
    ProjectStore store;
    store.Open(other / "kvrwork.tmp", {}, false);
    store.BeginEvent();
    store.SetVar("SN", 5.0);
    store.EndEvent();
    store.Close();
    for (const auto& entry : std::filesystem::directory_iterator(other.path())) {
        EXPECT_FALSE(entry.path().filename().string().starts_with("kvrwork.tmp-")) << entry.path();
    }
}

TEST_F(ProjectStoreTest, ItLoadsTheSameByItsBoundsAndByItsRows) {
    TestHome other;
    std::filesystem::copy_file(other / "kvrwork.tpl", other / "kvrwork.tmp");
    const std::vector<CellBounds>& bounds = program_.program.state().projectBounds;
    const auto filled = [](const ProjectStore& store) {
        std::vector<std::pair<std::string, CellValue>> cells;
        store.ForEachFilled([&](const CellKey& key, const CellValue& value) {
            cells.emplace_back(CellText(key.name, key.dim1, key.dim2), value);
        });
        return cells;
    };
    ProjectStore store;
    store.Open(other / "kvrwork.tmp", bounds, false);
    store.SetVarDim("NDTRM", 300, 1, 5000.0);
    store.SetVarDim("InitialQuantity", 35, 2, 7.0);
    store.SetVarText("Agency", "County");
    EXPECT_TRUE(store.CompareWithWorkCopy().empty());
    const auto before = filled(store);
    store.Close();
    for (const bool checkPages : {false, true}) {
        store.Open(other / "kvrwork.tmp", bounds, checkPages);
        EXPECT_EQ(filled(store), before) << checkPages;
        EXPECT_TRUE(store.CompareWithWorkCopy().empty());
        EXPECT_EQ(store.FindCell("NDTRM", 301, 1), nullptr);
        EXPECT_EQ(store.FindCell("InitialQuantity", 1, 3), nullptr);
        store.Close();
    }
}

TEST_F(ProjectStoreTest, AValueThatStandsOutsideTheBoundsIsLoadedAllTheSame) {
    TestHome other;
    std::filesystem::copy_file(other / "kvrwork.tpl", other / "kvrwork.tmp");
    {
        SQLite::Database database = OpenDatabase(other / "kvrwork.tmp", DatabaseAccess::ReadWrite);
        database.exec("UPDATE Project SET Name = 'Surplus', RValue = 4 WHERE Name = 'NDTRM' AND Dim1 = 300");
    }
    std::vector<CellBounds> bounds = program_.program.state().projectBounds;
    for (CellBounds& variable : bounds) {
        if (variable.name == "SN") variable.dim1 = 2;  // as many cells as rows, but others
        if (variable.name == "NDTRM") variable.dim1 = 299;
    }
    ProjectStore store;
    EXPECT_THROW(store.Open(other / "kvrwork.tmp", bounds, false), DatabaseError);
    for (CellBounds& variable : bounds) {
        if (variable.name == "SN") variable.dim1 = 1;
    }
    store.Open(other / "kvrwork.tmp", bounds, false);
    EXPECT_EQ(store.GetVarDim("Surplus", 300, 1), 4.0);
    EXPECT_TRUE(store.CompareWithWorkCopy().empty());
}

TEST_F(ProjectStoreTest, ACellThatTheBoundsNameMustBeThere) {
    TestHome other;
    std::filesystem::copy_file(other / "kvrwork.tpl", other / "kvrwork.tmp");
    ProjectStore store;
    EXPECT_NO_THROW(store.Open(other / "kvrwork.tmp", {{"SN", 1, 1}, {"NDTRM", 300, 1}}, false));
    EXPECT_THROW(store.Open(other / "kvrwork.tmp", {{"SN", 2, 1}}, false), DatabaseError);
    EXPECT_FALSE(store.IsOpen());
    EXPECT_THROW(store.Open(other / "kvrwork.tmp", {{"SN", 1, 2}}, false), DatabaseError);
    EXPECT_THROW(store.Open(other / "kvrwork.tmp", {{"NOSUCH", 1, 1}}, false), DatabaseError);
}

// --- Cells that were read before ------------------------------------------------------------------------

/// A store of a copy of the template, opened with what is said to be in it.
class KnownCellsTest : public testing::Test {
  protected:
    KnownCellsTest() { std::filesystem::copy_file(home_.home().Template(), file_); }

    ProjectCells Read() { return ReadProjectCells(ReadFile(file_)); }

    TestHome home_;
    Path file_ = home_ / "kvrwork.tmp";
    TestProgram program_;
    const std::vector<CellBounds>& bounds_ = program_.program.state().projectBounds;
    ProjectStore store_;
};

TEST_F(KnownCellsTest, OpenAProjectWithoutAnotherLookAtIt) {
    { WorkCopy(file_, true).Update("SN", 1, 1, {4.5, "4.5"}); }
    const ProjectCells known = Read();
    store_.Open(file_, bounds_, false, &known);
    EXPECT_EQ(*store_.FindCell("SN", 1, 1), (CellValue{4.5, "4.5"}));
    EXPECT_TRUE(store_.CompareWithWorkCopy().empty());
    store_.SetVar("SN", 5.5);
    EXPECT_TRUE(store_.CompareWithWorkCopy().empty());
}

TEST_F(KnownCellsTest, ThatDoNotFitTheCellsOfAProjectAreOfNoUse) {
    ProjectCells fewer = Read();
    --fewer.rows;
    ProjectCells strange = Read();
    strange.cells.push_back({{"SN", 2, 1}, {1.0, std::nullopt}});
    for (const ProjectCells& known : {fewer, strange}) {
        store_.Open(file_, bounds_, false, &known);
        EXPECT_TRUE(store_.CompareWithWorkCopy().empty());
        EXPECT_EQ(store_.FindCell("SN", 2, 1), nullptr);
    }
}

/// The order of names is SQLite's own, without which a project is read row by row.
TEST(SortByNameTest, IsTheOrderOfTheDatabase) {
    std::vector<CellBounds> bounds = {{"b1"}, {"A_2"}, {"a"}, {"Az"}, {"AB"}, {"a1"}, {"B"}, {"b_"}, {"A10"}};
    SQLite::Database database(":memory:", SQLite::OPEN_READWRITE);
    database.exec("CREATE TABLE Name (Name TEXT COLLATE NOCASE)");
    for (const CellBounds& variable : bounds)
        database.exec("INSERT INTO Name VALUES ('" + variable.name + "')");
    SQLite::Statement sorted(database, "SELECT Name FROM Name ORDER BY Name");
    SortByName(bounds);
    for (const CellBounds& variable : bounds) {
        ASSERT_TRUE(sorted.executeStep());
        EXPECT_EQ(variable.name, sorted.getColumn(0).getString());
    }
}

}  // namespace
}  // namespace kelvor::test

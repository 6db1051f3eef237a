#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/cell_block.h"
#include "forms/form.h"
#include "forms/grid_rows.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using Kind = UserEvent::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

class GridTest : public testing::Test {
  protected:
    GridTest() {
        Raise(Kind::OpenForm, "LayDet");
        form_ = program_.program.state().formRegistry.Find("LayDet");
    }

    bool Raise(Kind kind, const std::string& name = {}, const std::string& text = {}, int number = 0) {
        return program_.program.Raise({kind, name, text, number});
    }

    void Edit(int row, const std::string& column, const std::string& text) {
        EXPECT_TRUE(Raise(Kind::EditCell, column, text, row));
    }

    void AddLayer(int row, const std::string& coefficient, const std::string& drainage,
                  const std::string& thickness) {
        Edit(row, "LDLayerCoef", coefficient);
        Edit(row, "LDDrainCoef", drainage);
        Edit(row, "LDLayerThick", thickness);
    }

    std::optional<double> Number(const std::string& name, int row) {
        return program_.store().FindCell(name, row, 1)->number;
    }

    GridData& Grid() { return *form_->FindGrid()->grid; }
    std::string Verdict() { return form_->Find("Res")->text; }
    std::vector<std::string> Messages() { return program_.host.record.TakeTexts(); }

    TestProgram program_;
    Form* form_ = nullptr;
};

TEST_F(GridTest, HasAsManyRowsAsItsVariablesHaveCells) {
    EXPECT_EQ(Grid().rows, 6);
    EXPECT_TRUE(Raise(Kind::MoveToCell, {}, {}, 6));
    EXPECT_FALSE(Raise(Kind::MoveToCell, {}, {}, 7));
    EXPECT_FALSE(Raise(Kind::MoveToCell, {}, {}, 0));
    EXPECT_FALSE(Raise(Kind::EditCell, "LDLayerThick", "4", 7));
    EXPECT_FALSE(Raise(Kind::EditCell, "NOSUCH", "4", 1));
    EXPECT_EQ(Grid().row, 6);
}

TEST_F(GridTest, ALayerIsItsThreeInputsMultiplied) {
    AddLayer(1, "0.44", "1", "4");
    EXPECT_EQ(Number("LDLayerStructNo", 1), 0.44 * 1.0 * 4.0);
    EXPECT_EQ(program_.Get("SSN"), 0.44 * 1.0 * 4.0);
}

TEST_F(GridTest, TheMissingThicknessIsMultipliedByTheDrainage) {
    program_.Set("SN", 5.0);
    AddLayer(1, "0.44", "1", "4");
    AddLayer(2, "0.14", "0.8", "10");
    const double sum = 0.44 * 4.0 + 0.14 * 0.8 * 10.0;
    EXPECT_NEAR(*Number("LDAdditThick", 2), (5.0 - sum) / 0.14 * 0.8, 1e-12);
    EXPECT_EQ(Number("LDAdditThick", 1), std::nullopt) << "only the current row shows one";
    Raise(Kind::MoveToCell, {}, {}, 1);
    EXPECT_NEAR(*Number("LDAdditThick", 1), (5.0 - sum) / 0.44, 1e-12);
    EXPECT_EQ(Number("LDAdditThick", 2), std::nullopt);
}

TEST_F(GridTest, ALayerWithoutACoefficientGetsNoAdditionalThickness) {
    program_.Set("SN", 5.0);
    AddLayer(1, "0", "1", "4");
    EXPECT_EQ(Number("LDAdditThick", 1), std::nullopt);
    EXPECT_EQ(Number("LDLayerStructNo", 1), 0.0);
}

TEST_F(GridTest, EqualNumbersAsShownAreEnough) {
    program_.Set("SN", 1.764);  // reads 1.76, as 0.44 x 4 does
    AddLayer(1, "0.44", "1", "4");
    EXPECT_EQ(Verdict(), "OK");
    EXPECT_EQ(form_->Find("Res")->foreColor, colours::kBlue);
    program_.Set("SN", 1.77);
    Edit(1, "LDLayerThick", "4");
    EXPECT_EQ(Verdict(), "Selected Structure is Less Than Required.");
    EXPECT_EQ(form_->Find("Res")->foreColor, colours::kRed);
}

TEST_F(GridTest, DeletingTheOnlyLayerLeavesNothing) {
    program_.Set("SN", 3.0);
    AddLayer(1, "0.44", "1", "7");
    EXPECT_EQ(Verdict(), "OK");
    Raise(Kind::DeleteRow, {}, {}, 1);
    EXPECT_EQ(program_.Get("SSN"), 0.0);
    EXPECT_EQ(Verdict(), "Selected Structure is Less Than Required.");
    EXPECT_THAT(Messages(), ElementsAre("Do you want to delete this row?"));
}

TEST_F(GridTest, ADeletedRowIsClosedUpAndTextsMoveWithIt) {
    const char* const materials[] = {"Asphalt Surface Course", "Gravel Base", "Sand Subbase"};
    for (int row = 1; row <= 3; ++row) {
        Edit(row, "LDLayerMat", materials[row - 1]);
        AddLayer(row, "0.1", "1", std::to_string(row));
    }
    Raise(Kind::DeleteRow, {}, {}, 2);
    EXPECT_EQ(Number("LDLayerThick", 1), 1.0);
    EXPECT_EQ(Number("LDLayerThick", 2), 3.0);
    EXPECT_EQ(Number("LDLayerThick", 3), std::nullopt);
    EXPECT_EQ(*program_.store().FindCell("LDLayerMat", 2, 1), (CellValue{std::nullopt, "Sand Subbase"}));
    EXPECT_EQ(*program_.store().FindCell("LDLayerMat", 3, 1), CellValue{});
    EXPECT_NEAR(*Number("LDLayerStructNo", 2), 0.3, 1e-15) << "the row that has moved is recalculated";
    EXPECT_EQ(Number("LDLayerStructNo", 3), std::nullopt);
    Raise(Kind::DeleteRow, {}, {}, 2);  // the last one: nothing moves
    EXPECT_EQ(Number("LDLayerThick", 1), 1.0);
    EXPECT_EQ(Number("LDLayerThick", 2), std::nullopt);
}

TEST_F(GridTest, NoToTheQuestionDeletesNothing) {
    AddLayer(1, "0.1", "1", "5");
    program_.program.state().bProjectChanged = false;
    program_.host.dialogs.QueueAnswer("no");
    Raise(Kind::DeleteRow, {}, {}, 1);
    EXPECT_EQ(Number("LDLayerThick", 1), 5.0);
    EXPECT_FALSE(program_.program.state().bProjectChanged);
}

TEST_F(GridTest, AColumnWithGapsIsClosedUp) {
    ProjectStore& store = program_.store();
    for (const int row : {2, 4, 5}) store.SetCell("LDLayerThick", row, 1, {1.0 * row, std::to_string(row)});
    store.SetCell("LDLayerThick", 6, 1, {std::nullopt, "text"});
    CompactRows(store, {{"LDLayerThick", 1}}, 6);
    const std::optional<double> expected[] = {2.0, 4.0, 5.0, std::nullopt, std::nullopt, std::nullopt};
    for (int row = 1; row <= 6; ++row) EXPECT_EQ(Number("LDLayerThick", row), expected[row - 1]) << row;
    EXPECT_EQ(store.FindCell("LDLayerThick", 4, 1)->text, "text");
    CompactRows(store, {{"", 1}}, 6);
}

TEST_F(GridTest, RefusedCellsKeepWhatTheyHeld) {
    AddLayer(1, "0.44", "1", "4");
    Edit(1, "LDLayerThick", "four");
    Edit(1, "LDLayerThick", "101");
    Edit(1, "LDLayerMat", "Chocolate");
    EXPECT_THAT(Messages(), ElementsAre("Please enter valid numeric value.",
                                        "Warning: Input out of range. Enter value between 0 and 100",
                                        "Please select item from the list"));
    EXPECT_EQ(Number("LDLayerThick", 1), 4.0);
    EXPECT_EQ(*program_.store().FindCell("LDLayerMat", 1, 1), CellValue{});
    Edit(1, "LDLayerThick", "100");  // at the limit
    EXPECT_EQ(Number("LDLayerThick", 1), 100.0);
    Edit(1, "LDLayerThick", "");
    EXPECT_EQ(*program_.store().FindCell("LDLayerThick", 1, 1), CellValue{});
    Edit(1, "LDLayerStructNo", "7");  // computed: takes nothing
    EXPECT_EQ(Number("LDLayerStructNo", 1), 0.0);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(GridTest, AMaterialSetsTheCoefficientOfTheExistingLayer) {
    const std::pair<const char*, double> table[] = {{"Cement Fly Ash", 0.2},
                                                    {"Graded Stone Base", 0.14},
                                                    {"Crushed Stone Base", 0.12},
                                                    {"Granular Subbase", 0.1},
                                                    {"Gravel Base", 0.0}};
    for (const auto& [material, coefficient] : table) {
        Edit(3, "LDLayerMat", material);
        EXPECT_EQ(Number("ACSURFLC", 3), coefficient) << material;
        EXPECT_EQ(Number("LDLayerCoef", 3), std::nullopt) << "that is for the engineer to enter";
    }
    Edit(3, "LDLayerMat", "gravel base");
    EXPECT_EQ(program_.store().FindCell("LDLayerMat", 3, 1)->text, "Gravel Base")
        << "spelt as the list has it";
}

TEST_F(GridTest, TheTotalIsCarriedBackOnlyToTheScreenThatAsked) {
    AddLayer(1, "0.44", "1", "4");
    Raise(Kind::CloseForm, "LayDet");
    EXPECT_THAT(Messages(), IsEmpty()) << "opened by itself it asks nothing";
    program_.Set("SN", 3.0);
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Press, "Command2");
    program_.host.dialogs.QueueAnswer("no");
    Raise(Kind::Press, "cmdAction");
    EXPECT_EQ(program_.Get("SN"), 3.0);
    const Form& design = *program_.program.state().formRegistry.Find("DeF");
    EXPECT_EQ(design.solveState(0), SolveState::Resting);
    Raise(Kind::Press, "Command2");
    program_.host.dialogs.QueueAnswer("yes");
    Raise(Kind::Press, "cmdAction");
    EXPECT_EQ(program_.Get("SN"), 1.76);
    EXPECT_EQ(design.solveState(0), SolveState::Warning);
    EXPECT_EQ(design.focus->name, "SN");
    EXPECT_THAT(Messages(), ElementsAre("Do you want to use this Structural Number on the previous form?",
                                        "Do you want to use this Structural Number on the previous form?"));
}

TEST_F(GridTest, WithoutATotalNothingIsAsked) {
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::ActivateForm, "LayDet");
    Raise(Kind::CloseForm, "LayDet");
    Raise(Kind::Press, "Command2");
    Raise(Kind::CloseForm, "LayDet");
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(GridTest, TypingIsStoredWhenTheCellIsLeftAndEscDropsIt) {
    Raise(Kind::MoveToCell, "LDLayerCoef", {}, 1);
    Raise(Kind::Type, {}, "0.3");
    EXPECT_EQ(Number("LDLayerCoef", 1), std::nullopt);
    Raise(Kind::Key, "Enter");
    EXPECT_EQ(Number("LDLayerCoef", 1), 0.3);
    EXPECT_EQ(Grid().current().variable, "LDDrainCoef");
    Raise(Kind::Type, {}, "9");
    Raise(Kind::Key, "Esc");
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(Number("LDDrainCoef", 1), std::nullopt);
    Raise(Kind::MoveToCell, "LDDrainCoef", {}, 1);
    Raise(Kind::Type, {}, "many");
    Raise(Kind::Press, "cmdAction");
    EXPECT_THAT(Messages(), ElementsAre("Please enter valid numeric value."));
    EXPECT_NE(program_.program.state().formRegistry.Find("LayDet"), nullptr)
        << "a refused value stops the close";
}

TEST_F(GridTest, TabLeavesTheGridAtItsEnds) {
    Raise(Kind::MoveToCell, "LDAdditThick", {}, 1);
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(Grid().row, 2);
    EXPECT_EQ(Grid().column, 0U);
    Raise(Kind::MoveToCell, "LDAdditThick", {}, 6);
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(form_->focus->name, "cmdAction");
    Raise(Kind::MoveToCell, "LDLayerMat", {}, 1);
    Raise(Kind::Key, "BackTab");
    EXPECT_EQ(form_->focus->name, "SSHelp");
}

TEST_F(GridTest, TabAndEnterPassOverComputedCellsAndTheArrowsDoNot) {
    for (const char* key : {"Tab", "Enter"}) {
        Raise(Kind::MoveToCell, "LDLayerThick", {}, 1);
        Raise(Kind::Key, key);
        EXPECT_EQ(Grid().row, 2) << key;
        EXPECT_EQ(Grid().current().variable, "LDLayerMat") << key;
    }
    Raise(Kind::Key, "BackTab");
    EXPECT_EQ(Grid().row, 1);
    EXPECT_EQ(Grid().current().variable, "LDLayerThick");
    Raise(Kind::Key, "Right");
    EXPECT_EQ(Grid().current().variable, "LDLayerStructNo");
    Raise(Kind::MoveToCell, "LDLayerThick", {}, 6);
    Raise(Kind::Key, "Enter");
    EXPECT_EQ(form_->focus->name, "cmdAction") << "there is nothing more to fill";
}

TEST_F(GridTest, WhatIsBeingTypedGoesWithItsRow) {
    AddLayer(1, "0.4", "1", "4");
    AddLayer(2, "0.1", "1", "8");
    Raise(Kind::MoveToCell, "LDLayerThick", {}, 1);
    Raise(Kind::Type, {}, "12");
    program_.host.dialogs.QueueAnswer("yes");
    Raise(Kind::DeleteRow, {}, {}, 1);
    Raise(Kind::Key, "Enter");
    EXPECT_EQ(Number("LDLayerThick", 1), 8.0);
    EXPECT_NEAR(program_.Get("SSN"), 0.8, 1e-12);
}

TEST_F(GridTest, TheVerdictFollowsTheUnits) {
    program_.Set("SN", 5.004);
    AddLayer(1, "0.4996", "1", "10");
    Raise(Kind::ActivateForm, "TabForm");
    Raise(Kind::ActivateForm, "LayDet");
    EXPECT_EQ(Verdict(), "OK") << "5.00 beside 5.00";
    program_.program.ChooseUnits(true);
    EXPECT_EQ(Verdict(), "Selected Structure is Less Than Required.") << "126.90 beside 127.10";
}

TEST_F(GridTest, OpenedAgainItShowsTheMissingThicknessOfItsRowAlone) {
    program_.Set("SN", 5.0);
    AddLayer(1, "0.4", "1", "4");
    AddLayer(2, "0.1", "1", "4");
    EXPECT_TRUE(Number("LDAdditThick", 2));
    Raise(Kind::CloseForm, "LayDet");
    Raise(Kind::OpenForm, "LayDet");
    EXPECT_TRUE(Number("LDAdditThick", 1));
    EXPECT_FALSE(Number("LDAdditThick", 2));
}

// --- Blocks of cells --------------------------------------------------------------------------------------

TEST_F(GridTest, ABlockIsPastedCellByCell) {
    Raise(Kind::MoveToCell, "LDLayerCoef", {}, 2);
    Raise(Kind::PasteCells, {}, "0.44\t1\t4\r\n0.14\t1.1\n\"0.11\"\t1\t1,2\t99\t99\t99\n");
    EXPECT_EQ(Number("LDLayerThick", 2), 4.0);
    EXPECT_EQ(Number("LDDrainCoef", 3), 1.1);
    EXPECT_EQ(Number("LDLayerThick", 3), std::nullopt) << "a ragged row";
    EXPECT_EQ(Number("LDLayerThick", 4), 12.0) << "a comma groups digits, wherever it stands";
    EXPECT_NEAR(*Number("LDLayerStructNo", 4), 0.11 * 12.0, 1e-12) << "computed cells take nothing";
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_EQ(Grid().row, 2);
    EXPECT_EQ(Grid().current().variable, "LDLayerCoef");
}

TEST_F(GridTest, ARefusedCellLeavesItsRowOut) {
    Raise(Kind::MoveToCell, "LDLayerThick", {}, 1);
    Raise(Kind::PasteCells, {}, "1\n2\nthree\n4\n");
    EXPECT_THAT(Messages(), ElementsAre("1 row was left out: row 3, Layer Thickness: Please enter valid "
                                        "numeric value."));
    EXPECT_EQ(Number("LDLayerThick", 2), 2.0);
    EXPECT_EQ(Number("LDLayerThick", 3), std::nullopt);
    EXPECT_EQ(Number("LDLayerThick", 4), 4.0);
    EXPECT_EQ(Grid().row, 1) << "the cursor stands where it stood";
}

TEST_F(GridTest, ABlockLargerThanTheGridIsCutAtItsEdges) {
    std::string block;
    for (int row = 0; row < 50; ++row) block += "0.1\t1\t2\t3\t4\n";
    Raise(Kind::MoveToCell, "LDLayerCoef", {}, 1);
    Raise(Kind::PasteCells, {}, block);
    EXPECT_THAT(Messages(),
                ElementsAre("44 rows were left out. The first is row 7, Layer Coefficient, a: The "
                            "table has no such row."));
    EXPECT_EQ(Number("LDLayerThick", 6), 2.0);
    EXPECT_NEAR(program_.Get("SSN"), 6 * 0.2, 1e-12);
}

TEST(CellBlockTest, IsReadAsSpreadsheetsWriteIt) {
    using Rows = std::vector<std::vector<std::string>>;
    EXPECT_EQ(SplitCells(""), Rows{});
    EXPECT_EQ(SplitCells("a"), (Rows{{"a"}}));
    EXPECT_EQ(SplitCells("a\tb\r\nc\n"), (Rows{{"a", "b"}, {"c"}}));
    EXPECT_EQ(SplitCells("\t\n\n"), (Rows{{"", ""}, {""}}));
    EXPECT_EQ(SplitCells("\"a\tb\n\"\"c\"\"\"\td"), (Rows{{"a\tb\n\"c\"", "d"}}));
    EXPECT_EQ(SplitCells("\"open"), (Rows{{"open"}}));
    EXPECT_EQ(SplitCells(" 1 \t2"), (Rows{{"1", "2"}}));
    EXPECT_EQ(SplitCells("a\t"), (Rows{{"a", ""}}));
}

TEST(CellBlockTest, IsWrittenWithPlainNumbers) {
    EXPECT_EQ(JoinCells({{"1,234.5", "Gravel Base"}, {"", "a\"b"}}), "1234.5\tGravel Base\n\t\"a\"\"b\"\n");
}

}  // namespace
}  // namespace kelvor::test

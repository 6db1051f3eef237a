// Several cells of a grid at once, and grids that decide for each of their rows and cells.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "console/model_driver.h"
#include "forms/form.h"
#include "forms/grid_rows.h"
#include "platform/number_text.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using Kind = UserEvent::Kind;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

/// What the screen of these tests has heard.
struct Heard {
    std::vector<std::pair<int, std::string>> cells;
    std::vector<std::vector<int>> rows;
};

Heard heard;

void CellChanged(ScreenEvent& event) {
    heard.cells.emplace_back(event.control->grid->row, event.control->grid->current().variable);
}

void RowsWritten(ScreenEvent& event) { heard.rows.push_back(event.control->grid->writtenRows); }

std::vector<Handler> Listening() {
    return {{FormEvent::CellChanged, "", HandlerOrder::After, CellChanged},
            {FormEvent::RowsWritten, "", HandlerOrder::After, RowsWritten}};
}

/// The layers with what it heard.
FormType LayersForm() {
    FormType type;
    type.name = "Layers";
    type.tag = "LayDet";
    type.layout = Grid("Grid", {{.variable = "LDLayerMat", .list = true},
                                {.variable = "LDLayerCoef"},
                                {.variable = "LDDrainCoef"},
                                {.variable = "LDLayerThick"},
                                {.variable = "LDLayerStructNo"}});
    type.handlers = Listening();
    return type;
}

class GridBlockTest : public testing::Test {
  protected:
    explicit GridBlockTest(FormType type = LayersForm()) : name_(type.name) {
        heard = {};
        state().formRegistry.Declare({std::move(type)});
        program_.program.Raise({Kind::OpenForm, name_});
        form_ = state().formRegistry.Find(name_);
    }

    ProcessState& state() { return program_.program.state(); }

    void PasteAt(int row, const std::string& column, const std::string& block) {
        program_.program.Raise({Kind::MoveToCell, column, {}, row});
        program_.program.Raise({Kind::PasteCells, {}, block});
    }

    bool Empty(const CellRange& cells) {
        return program_.program.Raise({.kind = Kind::EmptyCells, .cells = cells});
    }

    void Delete(int row) { program_.program.Raise({Kind::DeleteRow, {}, {}, row}); }

    std::optional<double> Number(const std::string& name, int row) {
        return program_.store().FindCell(name, row, 1)->number;
    }

    std::vector<std::string> Messages() { return program_.host.record.TakeTexts(); }
    GridData& TheGrid() { return *form_->FindGrid()->grid; }

    TestProgram program_;
    std::string name_;
    Form* form_ = nullptr;
};

// --- Pasting
// ------------------------------------------------------------------------------------------------

TEST_F(GridBlockTest, ARowWithARefusedCellIsLeftOutWholeAndTheOthersStand) {
    PasteAt(1, "LDLayerCoef", "0.4\t1\t4\n0.2\t1\tfour\n0.1\t9\t12\n0.1\t1\t8\n");
    EXPECT_THAT(Messages(),
                ElementsAre("2 rows were left out. The first is row 2, Layer Thickness: Please enter "
                            "valid numeric value."));
    EXPECT_EQ(Number("LDLayerCoef", 1), 0.4);
    EXPECT_EQ(Number("LDLayerCoef", 2), std::nullopt) << "a good cell of a row that is left out";
    EXPECT_EQ(Number("LDLayerThick", 3), std::nullopt);
    EXPECT_EQ(Number("LDLayerThick", 4), 8.0);
    EXPECT_NEAR(program_.Get("SSN"), 0.4 * 4.0 + 0.1 * 8.0, 1e-12);
}

TEST_F(GridBlockTest, OneRowThatIsLeftOutIsToldOfWithItsReason) {
    PasteAt(5, "LDLayerThick", "5\n6\n7\n8\n");
    EXPECT_THAT(Messages(),
                ElementsAre("2 rows were left out. The first is row 7, Layer Thickness: The table has no "
                            "such row."));
    PasteAt(1, "LDLayerMat", "Chocolate\t0.4\nGravel Base\t0.1\n");
    EXPECT_THAT(Messages(),
                ElementsAre("1 row was left out: row 1, Layer Material: Please select item from the "
                            "list"));
    EXPECT_EQ(Number("LDLayerCoef", 2), 0.1);
    EXPECT_EQ(Number("LDLayerThick", 6), 6.0);
}

TEST_F(GridBlockTest, ASingleCellIsRefusedWithTheMessageOfATypedOne) {
    state().bProjectChanged = false;
    PasteAt(1, "LDLayerThick", "four");
    PasteAt(1, "LDLayerThick", "101\n");
    EXPECT_THAT(Messages(), ElementsAre("Please enter valid numeric value.",
                                        "Warning: Input out of range. Enter value between 0 and 100"));
    EXPECT_FALSE(state().bProjectChanged) << "nothing was stored";
    EXPECT_THAT(heard.rows, IsEmpty());
    PasteAt(1, "LDLayerThick", "60");
    EXPECT_TRUE(state().bProjectChanged);
    EXPECT_EQ(Number("LDLayerThick", 1), 60.0);
}

TEST_F(GridBlockTest, TheScreenHearsOfEachCellAndOnceOfTheRows) {
    PasteAt(2, "LDDrainCoef", "1\t4\t99\n\n1\tx\n1\t5\n");
    EXPECT_THAT(heard.cells, ElementsAre(Pair(2, "LDDrainCoef"), Pair(2, "LDLayerThick"),
                                         Pair(5, "LDDrainCoef"), Pair(5, "LDLayerThick")));
    EXPECT_THAT(heard.rows, ElementsAre(ElementsAre(2, 5)));
    EXPECT_EQ(TheGrid().row, 2) << "the cursor stands where it stood";
    EXPECT_EQ(TheGrid().current().variable, "LDDrainCoef");
    EXPECT_EQ(state().formValues.gridRow, 2);
}

TEST_F(GridBlockTest, ATypedCellIsARowThatWasWritten) {
    program_.program.Raise({Kind::EditCell, "LDLayerThick", "4", 3});
    EXPECT_THAT(heard.cells, ElementsAre(Pair(3, "LDLayerThick")));
    EXPECT_THAT(heard.rows, ElementsAre(ElementsAre(3)));
}

TEST_F(GridBlockTest, WhatIsBeingTypedIsStoredBeforeABlockComes) {
    program_.program.Raise({Kind::MoveToCell, "LDLayerThick", {}, 1});
    program_.program.Raise({Kind::Type, {}, "many"});
    program_.program.Raise({Kind::PasteCells, {}, "1\n2\n"});
    EXPECT_THAT(Messages(), ElementsAre("Please enter valid numeric value."));
    EXPECT_EQ(Number("LDLayerThick", 2), std::nullopt);
}

// --- Emptying
// ------------------------------------------------------------------------------------------------

TEST_F(GridBlockTest, ABlockIsEmptiedAtOnceAndItsRowsAreRecalculated) {
    PasteAt(1, "LDLayerCoef", "0.4\t1\t4\n0.2\t1\t5\n0.1\t1\t6\n");
    heard = {};
    program_.program.Raise({Kind::MoveToCell, "LDLayerMat", {}, 6});
    EXPECT_TRUE(Empty({.firstRow = 1, .lastRow = 2, .firstColumn = 3, .lastColumn = 4}));
    EXPECT_EQ(*program_.store().FindCell("LDLayerThick", 1, 1), CellValue{});
    EXPECT_EQ(*program_.store().FindCell("LDLayerThick", 2, 1), CellValue{});
    EXPECT_EQ(Number("LDLayerStructNo", 1), 0.0) << "computed cells are passed over, and recalculated";
    EXPECT_NEAR(program_.Get("SSN"), 0.6, 1e-12);
    EXPECT_THAT(heard.rows, ElementsAre(ElementsAre(1, 2)));
    EXPECT_EQ(TheGrid().row, 6);
    EXPECT_EQ(TheGrid().column, 0U);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(GridBlockTest, AnEmptyBlockIsNoChange) {
    state().bProjectChanged = false;
    EXPECT_TRUE(Empty({.firstRow = 1, .lastRow = 6, .firstColumn = 0, .lastColumn = 4}));
    EXPECT_FALSE(state().bProjectChanged);
    EXPECT_THAT(heard.rows, IsEmpty());
}

TEST_F(GridBlockTest, ABlockThatTheGridDoesNotHaveMakesNoSense) {
    for (const CellRange& cells :
         {CellRange{0, 1, 0, 0}, CellRange{1, 7, 0, 0}, CellRange{1, 1, 0, 5}, CellRange{2, 1, 0, 0}}) {
        EXPECT_FALSE(Empty(cells));
    }
}

TEST_F(GridBlockTest, WhatIsBeingTypedGoesWithItsCell) {
    program_.program.Raise({Kind::MoveToCell, "LDLayerThick", {}, 2});
    program_.program.Raise({Kind::Type, {}, "many"});
    EXPECT_TRUE(Empty({.firstRow = 1, .lastRow = 2, .firstColumn = 3, .lastColumn = 3}));
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_FALSE(TheGrid().typed);
}

// --- Closing up
// ---------------------------------------------------------------------------------------------

TEST_F(GridBlockTest, ADeletionMovesWholeRowsAndTearsNoLayerApart) {
    PasteAt(1, "LDLayerCoef", "0.1\t1\t1\n0.2\t\t2\n");
    PasteAt(4, "LDDrainCoef", "0.4\t4\n");
    PasteAt(6, "LDLayerMat", "Sand Subbase\n");
    Delete(1);
    EXPECT_EQ(Number("LDLayerCoef", 1), 0.2);
    EXPECT_EQ(Number("LDDrainCoef", 1), std::nullopt) << "the gap stays in its row";
    EXPECT_EQ(Number("LDLayerThick", 1), 2.0);
    EXPECT_EQ(Number("LDLayerCoef", 2), std::nullopt);
    EXPECT_EQ(Number("LDDrainCoef", 2), 0.4);
    EXPECT_EQ(Number("LDLayerThick", 2), 4.0);
    EXPECT_EQ(program_.store().FindCell("LDLayerMat", 3, 1)->text, "Sand Subbase")
        << "row 3 was wholly empty";
    for (int row = 3; row <= 6; ++row) EXPECT_EQ(Number("LDLayerThick", row), std::nullopt) << row;
    EXPECT_EQ(*program_.store().FindCell("LDLayerMat", 6, 1), CellValue{});
}

TEST(CompactRowsTest, ARowBeyondThoseThatAColumnHasIsDrawnUp) {
    TestProgram program;
    ProjectStore& store = program.store();
    store.SetCell("EXISTLT", 9, 1, {7.0, "7"});
    store.SetCell("LDLayerThick", 2, 1, {3.0, "3"});
    CompactRows(store, {{"EXISTLT", 1}, {"LDLayerThick", 1}}, 10);
    EXPECT_EQ(store.FindCell("LDLayerThick", 1, 1)->number, 3.0);
    EXPECT_EQ(store.FindCell("EXISTLT", 1, 1)->number, std::nullopt);
    EXPECT_EQ(*store.FindCell("EXISTLT", 2, 1), (CellValue{7.0, "7"}));
    EXPECT_EQ(*store.FindCell("EXISTLT", 9, 1), CellValue{});
}

// --- Columns and grids with rules of their own
// ----------------------------------------------------------------

constexpr const char* kReserved = "the first row stays";

/// A thickness that the grid shows in tenths of the stored number.
std::string ReadTenths(const ScreenContext& context, const Form& /*form*/, int row) {
    const CellValue* cell = context.calc.store.FindCell("LDLayerThick", row, 1);
    return cell->number ? NumberToText(*cell->number * 10.0) + " t" : "";
}

void WriteTenths(ScreenContext& context, Form& /*form*/, int row, const std::string& text) {
    if (text.empty()) return context.calc.store.SetCell("LDLayerThick", row, 1, {});
    context.calc.store.SetCell("LDLayerThick", row, 1, {ParseNumber(text) / 10.0, text});
}

bool MayDelete(ScreenContext& context, Form& /*form*/, int row) {
    if (row == 1) context.calc.dialogs.ShowMessage({.text = kReserved});
    return row > 2;  // the second row stays silently
}

bool MayEdit(const ScreenContext& /*context*/, const Form& /*form*/, int row, const GridColumn& column) {
    return row != 1 || column.variable != "LDLayerCoef";
}

std::string NoteOf(const ScreenContext& /*context*/, const Form& /*form*/, int row,
                   const GridColumn& column) {
    return row == 2 && column.variable == "LDLayerThick" ? "thicker than usual" : "";
}

FormType RuledForm() {
    FormType type;
    type.name = "Ruled";
    type.tag = "LayDet";
    const FieldItem tenths = {.variable = "LDLayerThick",
                              .routines = {.read = ReadTenths, .write = WriteTenths}};
    type.layout = Rows({Grid("Grid", {{.variable = "LDLayerCoef"}, tenths}, 0,
                             {.mayDelete = MayDelete, .mayEdit = MayEdit, .note = NoteOf})});
    type.handlers = Listening();
    return type;
}

class RuledGridTest : public GridBlockTest {
  protected:
    RuledGridTest() : GridBlockTest(RuledForm()) {}

    std::string Shown(int row, std::size_t column) {
        return program_.program.CellText(*form_, row, TheGrid().columns[column]);
    }
};

TEST_F(RuledGridTest, AColumnReadsAndWritesByItsOwnRoutines) {
    program_.program.Raise({Kind::EditCell, "LDLayerThick", "55", 3});
    EXPECT_EQ(Number("LDLayerThick", 3), 5.5);
    EXPECT_EQ(Shown(3, 1), "55 t");
    PasteAt(4, "LDLayerThick", "10\n20\n");
    EXPECT_EQ(Number("LDLayerThick", 5), 2.0);
    Empty({.firstRow = 4, .lastRow = 5, .firstColumn = 1, .lastColumn = 1});
    EXPECT_EQ(*program_.store().FindCell("LDLayerThick", 4, 1), CellValue{});
    program_.program.Raise({Kind::EditCell, "LDLayerThick", "many", 3});
    EXPECT_THAT(Messages(), ElementsAre("Please enter valid numeric value.")) << "it is tested like any";
    EXPECT_EQ(Number("LDLayerThick", 3), 5.5);
}

TEST_F(RuledGridTest, ACellThatIsReadOnlyInItsRowTakesNothing) {
    program_.program.Raise({Kind::EditCell, "LDLayerCoef", "0.4", 1});
    program_.program.Raise({Kind::MoveToCell, "LDLayerCoef", {}, 1});
    program_.program.Raise({Kind::Type, {}, "0.4"});
    program_.program.Raise({Kind::Key, "Delete"});
    EXPECT_EQ(Number("LDLayerCoef", 1), std::nullopt);
    PasteAt(1, "LDLayerCoef", "0.4\t10\n0.3\t20\n");
    EXPECT_EQ(Number("LDLayerCoef", 1), std::nullopt) << "a block passes it over";
    EXPECT_EQ(Number("LDLayerThick", 1), 1.0);
    EXPECT_EQ(Number("LDLayerCoef", 2), 0.3);
    EXPECT_THAT(Messages(), IsEmpty());
    program_.Set("LDLayerCoef", 0.2);
    Empty({.firstRow = 1, .lastRow = 2, .firstColumn = 0, .lastColumn = 1});
    EXPECT_EQ(Number("LDLayerCoef", 1), 0.2);
    EXPECT_EQ(Number("LDLayerCoef", 2), std::nullopt);
    program_.program.Raise({Kind::MoveToCell, "LDLayerThick", {}, 1});
    program_.program.Raise({Kind::Key, "BackTab"});
    EXPECT_EQ(form_->focus->name, "SSHelp") << "Tab goes from one cell that takes a value to the next";
}

TEST_F(RuledGridTest, ARowThatMayNotGoStaysAndIsNotAskedFor) {
    for (int row = 1; row <= 3; ++row) program_.program.Raise({Kind::EditCell, "LDLayerThick", "10", row});
    Delete(1);
    EXPECT_THAT(Messages(), ElementsAre(kReserved));
    Delete(2);
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_EQ(Number("LDLayerThick", 2), 1.0);
    Delete(3);
    EXPECT_THAT(Messages(), ElementsAre("Do you want to delete this row?"));
    EXPECT_EQ(Number("LDLayerThick", 3), std::nullopt);
}

TEST_F(RuledGridTest, ACellMayHaveANoteBesideItsText) {
    for (int row = 1; row <= 2; ++row) program_.program.Raise({Kind::EditCell, "LDLayerThick", "10", row});
    ModelDriver driver(program_.program, [](const std::string&) {});
    const std::vector<GridCellReport> cells = driver.GridCells();
    ASSERT_EQ(cells.size(), 2U);
    EXPECT_EQ(cells[0].note, "");
    EXPECT_EQ(cells[1].text, "10 t");
    EXPECT_EQ(cells[1].note, "thicker than usual");
}

}  // namespace
}  // namespace kelvor::test

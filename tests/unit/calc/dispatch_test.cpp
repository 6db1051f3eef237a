#include "calc/dispatch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <stdexcept>

#include "calc/clamp.h"
#include "shell/calculations.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

TEST(ClampValueTest, HoldsAValueWithinItsBoundsAndLeavesZero) {
    struct Row {
        double value, clamped;
    };
    for (const Row& row : {Row{0.0, 0.0}, Row{-0.0, 0.0}, Row{3.9, 4.0}, Row{4.0, 4.0}, Row{12.5, 12.5},
                           Row{20.0, 20.0}, Row{20.1, 20.0}, Row{-3.0, 4.0}}) {
        EXPECT_EQ(ClampValue(row.value, 4.0, 20.0).value(), row.clamped) << row.value;
    }
}

// The keys that the catalogue may name for a single value and for a cell of a column.
constexpr std::array<std::string_view, 41> kFieldKeys = {
    "TrRE18T",     "TrFE18T",       "TrRE18Tv",      "TrFE18Tv",     "TrRE18tt",     "TrFE18tt",
    "BOLEFFDEPTH", "BOLDEPTH",      "BOLFUTDEPTH",   "UBOLEFFDEPTH", "UBOLDEPTH",    "UBOLFUTDEPTH",
    "ACACEFFSN",   "ACACTHICK",     "ACACFUTSN",     "ACCSEFFSN",    "ACCSTHICK",    "ACCSFUTSN",
    "ACACPCEFFD",  "ACACPCOLT",     "ACPCEFFD",      "ACPCOLT",      "EXISTEFSNSUM", "SNEFFTOT",
    "SSN",         "AVGNDTRM",      "AVGNDTEFFEP",   "AVGBACKL",     "AVGSTATK",     "AVGBACKLC",
    "AVGSTATKC",   "AVGNDTEC",      "AVGNDTE",       "DISCOUNTRATE", "ItemTotal2",   "ItemTotal3",
    "ItemTotal4",  "PrWorthTotal3", "PrWorthTotal4", "PWCostM",      "MaintItemCost"};
constexpr std::array<std::string_view, 21> kCellKeys = {
    "TrRE18",      "TrFE18",    "InitialItemCost", "InitialItem", "RehabItemCost",
    "PWCostR",     "EXISTEFSN", "NDTRM",           "NDTEFFEP",    "AREA",
    "BACKL",       "DYNK",      "STATK",           "NDTE",        "AREAC",
    "BACKLC",      "DYNKC",     "STATKC",          "NDTEC",       "LDLayerStructNo",
    "LDAdditThick"};

TEST(CalculationsTest, EveryKeyIsServedAndNoOther) {
    const Dispatch dispatch = JoinCalculations();
    EXPECT_THAT(dispatch.FieldKeys(), UnorderedElementsAreArray(kFieldKeys));
    EXPECT_THAT(dispatch.CellKeys(), UnorderedElementsAreArray(kCellKeys));
}

void WriteSeven(CalcContext& context, std::string_view target) { context.Put(target, 7.0); }
void WriteEight(CalcContext& context, std::string_view target) { context.Put(target, 8.0); }
void Fault(CalcContext& context, std::string_view target) { context.Put(target, 1.0 / context.Get("SN")); }
void WriteSubscripts(CalcContext& context, std::string_view target, int dim1, int dim2) {
    context.Put(target, dim1, dim2, 10.0 * dim1 + dim2);
}

constexpr std::array kFields = {FieldKey{"TrRE18T", WriteSeven}, FieldKey{"TrRE18tt", WriteEight},
                                FieldKey{"Fault", Fault}};
constexpr std::array kCells = {CellKeyRoutine{"Cell", WriteSubscripts}};

class DispatchTest : public testing::Test {
  protected:
    void Field(std::string_view target, std::string_view key) {
        CalcContext context = program_.program.state().MakeCalcContext();
        dispatch_.CalcField(context, target, key);
    }

    TestProgram program_;
    Dispatch dispatch_{{kFields, kCells}};
};

TEST_F(DispatchTest, TheResultGoesToTheTargetNamed) {
    Field("RIGE18", "TrRE18T");
    EXPECT_EQ(program_.Get("RIGE18"), 7.0);
}

TEST_F(DispatchTest, KeysDifferByLetterCase) {
    Field("RIGE18", "TrRE18tt");
    EXPECT_EQ(program_.Get("RIGE18"), 8.0);
    Field("FLEXE18", "TRRE18T");
    EXPECT_EQ(program_.Get("FLEXE18"), 0.0);
}

TEST_F(DispatchTest, AnUnknownOrEmptyKeyLeavesTheTarget) {
    program_.Set("SN", 3.0);
    Field("SN", "");
    Field("SN", "NoSuchKey");
    EXPECT_EQ(program_.Get("SN"), 3.0);
    EXPECT_THAT(program_.host.record.TakeTexts(), IsEmpty());
}

TEST_F(DispatchTest, AFaultLeavesTheTargetWithoutAWord) {
    program_.Set("FLEXE18", 3.0);
    Field("FLEXE18", "Fault");
    EXPECT_EQ(program_.Get("FLEXE18"), 3.0);
    EXPECT_THAT(program_.host.record.TakeTexts(), IsEmpty());
    program_.Set("SN", 4.0);
    Field("FLEXE18", "Fault");
    EXPECT_EQ(program_.Get("FLEXE18"), 0.25);
}

TEST_F(DispatchTest, ACellRoutineIsTheOneCellsBusiness) {
    CalcContext context = program_.program.state().MakeCalcContext();
    dispatch_.CalcCell(context, "InitialQuantity", 3, 2, "Cell");
    EXPECT_EQ(program_.store().GetVarDim("InitialQuantity", 3, 2), 32.0);
    EXPECT_EQ(program_.store().SQLCount("InitialQuantity"), 1);
    dispatch_.CalcCell(context, "InitialQuantity", 4, 2, "NoSuchKey");
    EXPECT_EQ(program_.store().SQLCount("InitialQuantity"), 1);
}

TEST_F(DispatchTest, AStopIsNotSwallowed) {
    CalcContext context = program_.program.state().MakeCalcContext();
    EXPECT_THROW(dispatch_.CalcCell(context, "InitialQuantity", 99, 1, "Cell"), ProgramStop);
}

TEST(DispatchTableTest, AKeyThatStandsTwiceIsAFaultOfTheProgram) {
    EXPECT_THROW(Dispatch({{kFields, {}}, {kFields, {}}}), std::logic_error);
    EXPECT_THROW(Dispatch({{{}, kCells}, {{}, kCells}}), std::logic_error);
}

}  // namespace
}  // namespace kelvor::test

// The grid of axles: whole spectra from a spreadsheet, words by their letters, and the lists that store
// codes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <utility>

#include "forms/coded_list.h"
#include "forms/form.h"
#include "reference_factors.h"
#include "support/test_host.h"
#include "traffic/screens/traffic_words.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Kind = UserEvent::Kind;

constexpr int kRows = 50;

class AxleGridTest : public testing::Test {
  protected:
    AxleGridTest() {
        for (const auto& [name, value] : {std::pair{"TrafficDEPTH", 9.0},
                                          {"TrafficSN", 5.0},
                                          {"PT", 2.5},
                                          {"Life", 20.0},
                                          {"GrowthRate", 0.0},
                                          {"TrPer", 1.0},
                                          {"TRFACTYPE", 1.0}}) {
            program_.Set(name, value);
        }
        Raise(Kind::OpenForm, "TrAx");
    }

    void Raise(Kind kind, const std::string& name = {}, const std::string& text = {}, int number = 0) {
        program_.program.Raise({kind, name, text, number});
    }

    void PasteAt(int row, const std::string& variable, const std::string& block) {
        Raise(Kind::MoveToCell, variable, {}, row);
        Raise(Kind::PasteCells, {}, block);
    }

    std::string Word(int row) { return program_.store().FindCell("AxleType", row, 1)->text.value_or(""); }
    std::optional<double> Number(const char* name, int row) {
        return program_.store().FindCell(name, row, 1)->number;
    }
    std::vector<std::string> Messages() { return program_.host.record.TakeTexts(); }

    TestProgram program_;
};

TEST_F(AxleGridTest, ASpectrumOfFiftyRowsIsPastedAtOnce) {
    constexpr std::array kWords = {"Single", "Tandem", "Tridem"};
    std::string block;
    double rigid = 0.0;
    double flexible = 0.0;
    for (int row = 0; row < kRows; ++row) {
        const double load = 4.0 + row;
        const double count = 10.0 * (kRows - row);
        const int axles = 1 + row % 3;
        block += std::string(kWords[static_cast<std::size_t>(row % 3)]) + "\t" + std::to_string(load) + "\t" +
                 std::to_string(count) + "\r\n";
        rigid += ReferenceRigidFactor(axles, load, 9.0, 2.5, 0.333) * count * 20.0 * 365.25;
        flexible += ReferenceFlexibleFactor(axles, load, 5.0, 2.5) * count * 20.0 * 365.25;
    }
    PasteAt(1, "AxleType", block);
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_EQ(Word(50), "Tandem");
    EXPECT_EQ(Number("AxleWeight", 50), 53.0);
    EXPECT_NEAR(program_.Get("FLEXE18"), flexible, flexible * 1e-9);
    EXPECT_NEAR(program_.Get("RIGE18"), rigid, rigid * 1e-9);
    const Control& grid = *program_.program.state().formRegistry.Find("TrAx")->FindGrid();
    EXPECT_EQ(grid.grid->row, 1);
    EXPECT_EQ(grid.grid->rows, kRows);
}

TEST_F(AxleGridTest, WhatReachesBeyondTheGridIsLeftOut) {
    std::string block;
    for (int row = 0; row < kRows; ++row) block += "S\t18\t1\t99\t99\t99\n";
    PasteAt(2, "AxleType", block);
    EXPECT_THAT(Messages(), ElementsAre("1 row was left out: row 51, Axle Type: The table has no such row."));
    EXPECT_EQ(Word(1), "");
    EXPECT_EQ(Word(50), "Single");
    EXPECT_NEAR(program_.Get("FLEXE18"), 49 * 20 * 365.25, 1e-6) << "each an 18-kip single axle a day";
    EXPECT_NEAR(*Number("RE18", 2), 20 * 365.25, 1e-6) << "computed cells take nothing";
}

TEST_F(AxleGridTest, LinesMayDifferInLengthAndWordsInCase) {
    PasteAt(1, "AxleType", "single\t18\t2\nTANDEM\t34\nt\n\tr\n\"Tridem\"\t\"48\"\t\"1,000\"\n");
    EXPECT_THAT(Messages(),
                ElementsAre("1 row was left out: row 4, Axle Load: Please enter valid numeric value."));
    EXPECT_EQ(Word(1), "Single");
    EXPECT_EQ(Word(2), "Tandem");
    EXPECT_EQ(Number("NumOfAxles", 2), std::nullopt);
    EXPECT_EQ(Word(3), "Tandem");
    EXPECT_EQ(Word(4), "");
    EXPECT_EQ(Word(5), "Tridem");
    EXPECT_EQ(Number("NumOfAxles", 5), 1000.0);
}

TEST_F(AxleGridTest, ARowWithABadCellIsLeftOut) {
    PasteAt(1, "AxleType", "Single\t18\t1\nQuad\t50\t1\nSingle\t18\t1\n");
    EXPECT_THAT(Messages(),
                ElementsAre("1 row was left out: row 2, Axle Type: Please select item from the list"));
    EXPECT_EQ(Word(1), "Single");
    EXPECT_EQ(Number("AxleWeight", 2), std::nullopt);
    EXPECT_EQ(Word(3), "Single");
    PasteAt(2, "AxleWeight", "201\t1\n18\t1\n");
    EXPECT_THAT(Messages(), ElementsAre("1 row was left out: row 2, Axle Load: Warning: Input out of range. "
                                        "Enter value between 0 and 200"));
    EXPECT_EQ(Number("NumOfAxles", 2), std::nullopt);
    EXPECT_EQ(Number("AxleWeight", 3), 18.0);
    EXPECT_NEAR(program_.Get("FLEXE18"), 2 * 20 * 365.25, 1e-6) << "rows 1 and 3 stand";
}

TEST_F(AxleGridTest, ACommaGroupsDigitsWhereverItStands) {
    PasteAt(1, "AxleType", "Single\t12,5\t1\n");
    EXPECT_EQ(Number("AxleWeight", 1), 125.0);
    PasteAt(1, "AxleWeight", "22,25\n");
    EXPECT_THAT(Messages(), ElementsAre("Warning: Input out of range. Enter value between 0 and 200"));
    EXPECT_EQ(Number("AxleWeight", 1), 125.0);
}

TEST_F(AxleGridTest, ABlockOfLoadsInMetricModeIsKilonewtons) {
    program_.program.ChooseUnits(true);
    PasteAt(1, "AxleWeight", "44.4822161526\n889\n891\n");
    EXPECT_THAT(Messages(), ElementsAre("1 row was left out: row 3, Axle Load: Warning: Input out of range. "
                                        "Enter value between 0 and 890"));
    EXPECT_NEAR(*Number("AxleWeight", 1), 10.0, 1e-6) << "1 kip is 4.44822161526 kN";
}

// --- Words by their letters -------------------------------------------------------------------------------

/// What a list shows after each letter, typed one by one behind what it shows.
std::string Spelt(const std::vector<LetterWord>& words, const std::string& letters) {
    std::string shown;
    std::string spelt;
    for (const char letter : letters) {
        std::string typed = shown;
        typed += letter;
        shown = CompleteWord(words, shown, typed, spelt).value_or(typed);
    }
    return shown;
}

TEST(CompleteWordTest, ALetterGivesItsWordAndAWordMayBeSpeltOut) {
    for (const auto& [letters, word] : {std::pair{"s", "Single"},
                                        {"S", "Single"},
                                        {"t", "Tandem"},
                                        {"T", "Tandem"},
                                        {"r", "Tridem"},
                                        {"R", "Tridem"},
                                        {"Single", "Single"},
                                        {"tandem", "Tandem"},
                                        {"TRIDEM", "Tridem"},
                                        {"st", "Tandem"},
                                        {"tr", "Tridem"},
                                        {"rs", "Single"},
                                        {"tridemt", "Tandem"}}) {
        EXPECT_EQ(Spelt(AxleTypes(), letters), word) << letters;
    }
    for (const auto& [letters, word] : {std::pair{"d", "Day"},
                                        {"Day", "Day"},
                                        {"month", "Month"},
                                        {"Y", "Year"},
                                        {"dy", "Year"},
                                        {"dm", "Month"},
                                        {"year", "Year"}}) {
        EXPECT_EQ(Spelt(CountPeriods(), letters), word) << letters;
    }
}

TEST(CompleteWordTest, OtherTextsStandAsTheyAre) {
    EXPECT_EQ(Spelt(AxleTypes(), "x"), "x");
    EXPECT_EQ(Spelt(AxleTypes(), "Quad"), "Quad");
    EXPECT_EQ(Spelt(AxleTypes(), "s3"), "Single3");
    std::string spelt;
    EXPECT_EQ(CompleteWord(AxleTypes(), "", "x", spelt), std::nullopt);
    EXPECT_EQ(CompleteWord(AxleTypes(), "Single", "Singe", spelt), "Singe");
    EXPECT_EQ(CompleteWord(AxleTypes(), "Single", "", spelt), "");
    EXPECT_EQ(CompleteWord(AxleTypes(), "", "tandem", spelt), "Tandem") << "pasted";
}

TEST(CodedListTest, AWordHasTheCodeOfItsPlace) {
    EXPECT_EQ(WordOf(AxleTypes(), 1.0), "Single");
    EXPECT_EQ(WordOf(AxleTypes(), 3.0), "Tridem");
    for (const double code : {0.0, 4.0, -1.0, 1.5}) EXPECT_EQ(WordOf(AxleTypes(), code), "") << code;
    EXPECT_EQ(WordOf(AxleTypes(), std::nullopt), "");
    EXPECT_EQ(CodeOf(AxleTypes(), "Tandem"), 2);
    EXPECT_EQ(CodeOf(AxleTypes(), "tandem"), std::nullopt);
    EXPECT_EQ(CodeOf(CountPeriods(), "Year"), 3);
}

}  // namespace
}  // namespace kelvor::test

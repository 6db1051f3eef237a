#include "units/number_entry.h"

#include <gtest/gtest.h>

#include "support/test_host.h"

namespace kelvor::test {
namespace {

using testing::Test;

class NumberEntryTest : public Test {
  protected:
    std::string Read(std::string_view variable, std::string_view text) {
        return ReadNumberEntry(*program_.program.state().units, variable, text).value_or("refused");
    }
    double Number(std::string_view variable, std::string_view text) {
        return std::stod(Read(variable, text));
    }
    void Metric() { program_.program.ChooseUnits(true); }

    TestProgram program_;
};

TEST_F(NumberEntryTest, Multiples) {
    EXPECT_EQ(Read("FLEXE18", "5M"), "5000000");
    EXPECT_EQ(Read("FLEXE18", "2.5 M"), "refused") << "the letter stands at its number";
    EXPECT_EQ(Read("FLEXE18", "250k"), "250000");
    EXPECT_EQ(Read("FLEXE18", "1,250K"), "1250000");
    EXPECT_EQ(Read("FLEXE18", "5m"), "refused") << "a thousandth, or metres";
}

TEST_F(NumberEntryTest, FractionsAndSums) {
    EXPECT_EQ(Read("DEPTH", "1/2"), "0.5");
    EXPECT_EQ(Read("DEPTH", "6 1/2"), "6.5");
    EXPECT_EQ(Read("DEPTH", "6+1.5"), "7.5");
    EXPECT_EQ(Read("DEPTH", "6 + 1 1/2 + 1/4"), "7.75");
    EXPECT_EQ(Read("DEPTH", "1e1+2"), "12");
    EXPECT_EQ(Read("DEPTH", "-1/2"), "-0.5");
    for (const char* text :
         {"6-1/2", "6+", "+", "1/0", "1/", "/2", "1//2", "6 7", "1/2/3", "1e308+1e308+1e308"})
        EXPECT_EQ(Read("DEPTH", text), "refused") << text;
}

TEST_F(NumberEntryTest, UnitsOfEitherSystem) {
    EXPECT_EQ(Read("DEPTH", "10 in"), "10");
    EXPECT_EQ(Read("DEPTH", "1/2 inch"), "0.5");
    EXPECT_EQ(Read("DEPTH", "1 ft"), "12");
    EXPECT_EQ(Read("DEPTH", "254mm"), "10");
    EXPECT_EQ(Read("DEPTH", "25.4 cm"), "10");
    EXPECT_NEAR(Number("RM", "50 MPa"), 50.0 / 0.006894757, 1e-6);
    EXPECT_NEAR(Number("RM", "50 mpa"), 50.0 / 0.006894757, 1e-6);
    EXPECT_EQ(Read("RM", "5 ksi"), "5000");
    EXPECT_NEAR(Number("K", "27 MPa/m"), 27.0 / 0.27144712, 1e-9);
    EXPECT_EQ(Read("FLEXREL", "95 %"), "95");
    Metric();
    EXPECT_EQ(Read("DEPTH", "10 in"), "254");
    EXPECT_EQ(Read("DEPTH", "150 mm"), "150");
    EXPECT_EQ(Read("DEPTH", "0.15 m"), "150");
    EXPECT_NEAR(Number("RM", "5,000 psi"), 5000.0 * 0.006894757, 1e-9);
    EXPECT_NEAR(Number("RM", "34500 kPa"), 34.5, 1e-9);
}

TEST_F(NumberEntryTest, AUnitThatMeasuresSomethingElseIsRefused) {
    for (const char* text : {"10 psi", "10 kg", "10 in mm", "mm", "10 %", "10 M", "ten in"})
        EXPECT_EQ(Read("DEPTH", text), "refused") << text;
    EXPECT_EQ(Read("NOSUCH", "10 in"), "refused");
}

TEST_F(NumberEntryTest, ACommaIsNeverADecimalMark) {
    EXPECT_EQ(Read("DEPTH", "1,5 in"), "refused");
    EXPECT_EQ(Read("RM", "5,00 psi"), "refused");
    EXPECT_EQ(Read("RM", "1,234,567 psi"), "1234567");
    EXPECT_EQ(Read("RM", ",500 psi"), "refused");
}

}  // namespace
}  // namespace kelvor::test

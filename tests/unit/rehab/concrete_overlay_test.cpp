#include <cmath>

#include "rehab_fixture.h"

namespace kelvor::test {
namespace {

using ConcreteOverlayTest = RehabTest;

struct Row {
    double first, second, result;
};

TEST_F(ConcreteOverlayTest, TheSlabBelowABondedOverlayIsTheSlabTimesItsThreeFactors) {
    Set({{"EXISTDEPTH", 9.0}, {"BOLFJC", 0.8}, {"BOLFDUR", 0.9}, {"BOLFFAT", 0.95}});
    EXPECT_NEAR(Calc("BOLEFFDEPTH"), 6.156, 1e-14);
    EXPECT_EQ(Calc("BOLEFFDEPTH", {{"BOLFDUR", 0.0}}), 0.0);
    EXPECT_EQ(Calc("BOLEFFDEPTH", {{"BOLFDUR", 9.0}}), 20.0);
    EXPECT_EQ(Calc("BOLEFFDEPTH", {{"BOLFDUR", -9.0}}), 0.0);
}

TEST_F(ConcreteOverlayTest, ABondedOverlayIsTheDifferenceOfBothThicknesses) {
    for (const Row& row :
         {Row{10.0, 6.5, 3.5}, Row{9.0, 8.0, 2.0}, Row{8.0, 8.0, 0.0}, Row{7.0, 8.0, 2.0},
          Row{10.0, 8.0, 2.0}, Row{25.0, 4.0, 20.0}, Row{25.0, 5.0, 20.0}, Row{12.0, 0.0, 12.0}}) {
        Set({{"BOLDEPTH", 99.0}});
        EXPECT_EQ(Calc("BOLDEPTH", {{"BOLFUTDEPTH", row.first}, {"BOLEFFDEPTH", row.second}}), row.result)
            << row.first << " less " << row.second;
    }
}

TEST_F(ConcreteOverlayTest, TheFutureThicknessOfABondedOverlayIsTheSum) {
    for (const Row& row : {Row{3.5, 6.5, 10.0}, Row{2.0, 1.0, 4.0}, Row{2.0, 2.0, 4.0}, Row{0.0, 0.0, 0.0},
                           Row{-1.0, -1.0, 4.0}, Row{10.0, 10.0, 20.0}, Row{10.0, 10.5, 20.0}}) {
        Set({{"BOLFUTDEPTH", 99.0}});
        EXPECT_EQ(Calc("BOLFUTDEPTH", {{"BOLDEPTH", row.first}, {"BOLEFFDEPTH", row.second}}), row.result)
            << row.first << " and " << row.second;
    }
}

TEST_F(ConcreteOverlayTest, TheSlabBelowAnUnbondedOverlayIsTheSlabTimesItsFactor) {
    EXPECT_NEAR(Calc("UBOLEFFDEPTH", {{"EXISTDEPTH", 9.0}, {"UBOLFJCU", 0.93}}), 8.37, 1e-14);
    EXPECT_EQ(Calc("UBOLEFFDEPTH", {{"UBOLFJCU", 0.0}}), 0.0);
    EXPECT_EQ(Calc("UBOLEFFDEPTH", {{"UBOLFJCU", 2.5}}), 20.0);
    EXPECT_EQ(Calc("UBOLEFFDEPTH", {{"UBOLFJCU", -0.1}}), 0.0);
}

TEST_F(ConcreteOverlayTest, AnUnbondedOverlayIsTheRootOfTheDifferenceOfTheSquares) {
    for (const Row& row :
         {Row{10.0, 8.0, 6.0}, Row{8.0, 9.0, 4.0}, Row{8.0, 8.0, 4.0}, Row{0.0, 0.0, 4.0}, Row{5.0, 4.0, 4.0},
          Row{8.5, 7.5, 4.0}, Row{12.0, 0.0, 12.0}, Row{25.0, 15.0, 20.0}, Row{26.0, 10.0, 20.0}}) {
        Set({{"UBOLDEPTH", 99.0}});
        EXPECT_DOUBLE_EQ(Calc("UBOLDEPTH", {{"UBOLFUTDEPTH", row.first}, {"UBOLEFFDEPTH", row.second}}),
                         row.result)
            << row.first << " over " << row.second;
    }
    EXPECT_DOUBLE_EQ(Calc("UBOLDEPTH", {{"UBOLFUTDEPTH", 11.3}, {"UBOLEFFDEPTH", 7.9}}),
                     std::sqrt((11.3 - 7.9) * (11.3 + 7.9)));
}

TEST_F(ConcreteOverlayTest, TheFutureThicknessOfAnUnbondedOverlayIsTheRootOfTheSumOfTheSquares) {
    for (const Row& row : {Row{6.0, 8.0, 10.0}, Row{3.0, 0.0, 4.0}, Row{0.0, 0.0, 4.0}, Row{0.0, 9.0, 9.0},
                           Row{12.0, 16.0, 20.0}, Row{15.0, 16.0, 20.0}}) {
        Set({{"UBOLFUTDEPTH", 99.0}});
        EXPECT_DOUBLE_EQ(Calc("UBOLFUTDEPTH", {{"UBOLDEPTH", row.first}, {"UBOLEFFDEPTH", row.second}}),
                         row.result)
            << row.first << " and " << row.second;
    }
}

TEST_F(ConcreteOverlayTest, ASquareBeyondADoubleLeavesTheThickness) {
    Set({{"UBOLDEPTH", 7.0}, {"UBOLFUTDEPTH", 1e200}});
    EXPECT_EQ(Calc("UBOLDEPTH"), 7.0);
}

}  // namespace
}  // namespace kelvor::test

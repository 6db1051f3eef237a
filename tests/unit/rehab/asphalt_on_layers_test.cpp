#include "rehab_fixture.h"

namespace kelvor::test {
namespace {

using AsphaltOnLayersTest = RehabTest;

/// The names of the two overlays that are worked out alike.
struct Overlay {
    const char *thickness, *futureSN, *effectiveSN, *coefficient;
};

constexpr Overlay kOverlays[] = {{"ACACTHICK", "ACACFUTSN", "ACACEFFSN", "ACACOLLC"},
                                 {"ACCSTHICK", "ACCSFUTSN", "ACCSEFFSN", "ACCSOLLC"}};

TEST_F(AsphaltOnLayersTest, TheThicknessIsTheLackOverTheCoefficientHeldToItsBounds) {
    struct Row {
        double futureSN, effectiveSN, coefficient, thickness;
    };
    for (const Row& row : {Row{5.0, 2.8, 0.44, 5.0},    // 2.2 / 0.44
                           Row{4.5, 1.5, 0.4, 7.5},     // 3 / 0.4
                           Row{3.0, 4.0, 0.44, 0.0},    // nothing is lacking
                           Row{3.0, 3.0, 0.44, 0.0},    //
                           Row{5.0, 2.0, 0.0, 0.0},     // no coefficient
                           Row{16.0, 1.0, 0.5, 30.0},   // exactly at the bound
                           Row{16.1, 1.0, 0.5, 30.0},   // 30.2
                           Row{5.0, 0.0, 0.5, 10.0},    // no effective structural number
                           Row{1.0, 0.5, 10.0, 0.05}})  // no least thickness
    {
        for (const Overlay& overlay : kOverlays) {
            Set({{overlay.thickness, 99.0}});
            EXPECT_DOUBLE_EQ(Calc(overlay.thickness, {{overlay.futureSN, row.futureSN},
                                                      {overlay.effectiveSN, row.effectiveSN},
                                                      {overlay.coefficient, row.coefficient}}),
                             row.thickness)
                << overlay.thickness << " for " << row.futureSN << " over " << row.effectiveSN;
        }
    }
}

TEST_F(AsphaltOnLayersTest, TheFutureStructuralNumberIsTheOverlayOnTopOfTheEffectiveOne) {
    struct Row {
        double thickness, coefficient, effectiveSN, futureSN;
    };
    for (const Row& row : {Row{5.0, 0.44, 2.8, 5.0}, Row{0.0, 0.44, 2.8, 2.8}, Row{5.0, 0.0, 2.8, 2.8},
                           Row{0.0, 0.0, 0.0, 0.0}, Row{4.0, 0.5, -3.0, 0.0}, Row{50.0, 0.6, 0.0, 30.0},
                           Row{50.0, 0.6, 0.5, 30.0}}) {
        for (const Overlay& overlay : kOverlays) {
            Set({{overlay.futureSN, 99.0}});
            EXPECT_DOUBLE_EQ(Calc(overlay.futureSN, {{overlay.thickness, row.thickness},
                                                     {overlay.coefficient, row.coefficient},
                                                     {overlay.effectiveSN, row.effectiveSN}}),
                             row.futureSN)
                << overlay.futureSN << " for " << row.thickness << " on " << row.effectiveSN;
        }
    }
}

TEST_F(AsphaltOnLayersTest, AThicknessAndItsFutureStructuralNumberAreInverse) {
    for (const Overlay& overlay : kOverlays) {
        Set({{overlay.futureSN, 5.37}, {overlay.effectiveSN, 2.19}, {overlay.coefficient, 0.42}});
        Calc(overlay.thickness);
        EXPECT_NEAR(Calc(overlay.futureSN), 5.37, 1e-14);
    }
}

TEST_F(AsphaltOnLayersTest, AFracturedSlabAndItsSubbaseCarryTogether) {
    Set({{"CSPCLT", 9.0}, {"CSPCLC", 0.25}, {"CSPCDC", 0.9}});
    EXPECT_DOUBLE_EQ(Calc("ACCSEFFSN"), 2.025);
    Set({{"SUBLT", 6.0}, {"SUBLC", 0.11}, {"SUBDC", 0.8}});
    EXPECT_DOUBLE_EQ(Calc("ACCSEFFSN"), 2.025 + 0.528);
    EXPECT_DOUBLE_EQ(Calc("ACCSEFFSN", {{"CSPCLT", 0.0}}), 0.528);
}

TEST_F(AsphaltOnLayersTest, AFracturedSlabIsHeldToItsBoundsButZeroStays) {
    struct Row {
        double sum, held;
    };
    for (const Row& row : {Row{0.0, 0.0}, Row{0.1, 0.25}, Row{-2.0, 0.25}, Row{0.25, 0.25}, Row{0.26, 0.26},
                           Row{14.9, 14.9}, Row{15.0, 15.0}, Row{20.0, 15.0}}) {
        Set({{"ACCSEFFSN", 99.0}});
        EXPECT_EQ(Calc("ACCSEFFSN", {{"CSPCLT", row.sum}, {"CSPCLC", 1.0}, {"CSPCDC", 1.0}}), row.held)
            << row.sum;
    }
}

TEST_F(AsphaltOnLayersTest, AQuotientBeyondADoubleLeavesTheThickness) {
    Set({{"ACACTHICK", 4.0}, {"ACACFUTSN", 1e300}, {"ACACOLLC", 1e-300}});
    EXPECT_EQ(Calc("ACACTHICK"), 4.0);
}

}  // namespace
}  // namespace kelvor::test

#include "lcc/calc/quantity_table.h"

#include <string>

#include "cost_fixture.h"

namespace kelvor::test {
namespace {

class QuantityTableTest : public CostTest {
  protected:
    /// A value as it is typed, in the active system.
    void Type(const char* variable, int dim1, int pavement, double value) {
        program_.units().SetDisplayNumber(variable, dim1, pavement, value);
    }

    /// Two pavements in which no two layers are alike.
    void EnterGeometry(double lengthA, double lengthB) {
        Type("ProjectLength", 1, 1, lengthA);
        Type("ProjectLength", 1, 2, lengthB);
        for (int layer = 1; layer <= 8; ++layer) {
            for (const int pavement : {1, 2}) {
                Type("LayerWidth", layer, pavement, Width(layer, pavement));
                Type("LayerThickness", layer, pavement, Thickness(layer, pavement));
                Type("UnitWeight", layer, pavement, Weight(layer, pavement));
            }
        }
    }

    static double Width(int layer, int pavement) { return 10.0 + layer + 20.0 * (pavement - 1); }
    static double Thickness(int layer, int pavement) { return 2.0 * layer + 0.5 * (pavement - 1); }
    static double Weight(int layer, int pavement) { return 1900.0 + 30.0 * layer + 7.0 * pavement; }

    void ExpectItem(int pavement, int item, double quantity, const std::string& unit) {
        const QuantityTable table = BuildQuantityTable(program_.units(), pavement);
        const ItemQuantity& entry = table[static_cast<std::size_t>(item - 1)];
        EXPECT_NEAR(entry.quantity.value(), quantity, 1e-12 * quantity) << item << " of " << pavement;
        EXPECT_EQ(entry.unit, unit) << item << " of " << pavement;
    }
};

TEST_F(QuantityTableTest, InEnglishAreasAreSquareYards) {
    EnterGeometry(5280.0, 2640.0);
    for (const auto& [pavement, length] : {std::pair(1, 5280.0), {2, 2640.0}}) {
        double together = 0.0;
        for (int layer = 1; layer <= 8; ++layer) {
            const double squareFeet = Width(layer, pavement) * length;
            ExpectItem(pavement, layer, squareFeet / 9.0, "sq yd");
            if (layer == 1 || layer >= 7) together += squareFeet / 9.0;
        }
        ExpectItem(pavement, 9, together, "sq yd");
    }
}

TEST_F(QuantityTableTest, InEnglishWeightsAreShortTons) {
    EnterGeometry(5280.0, 2640.0);
    for (const auto& [pavement, length] : {std::pair(1, 5280.0), {2, 2640.0}}) {
        double together = 0.0;
        for (int layer = 1; layer <= 8; ++layer) {
            const double cubicFeet = Width(layer, pavement) * length * Thickness(layer, pavement) / 12.0;
            const double tons = cubicFeet * Weight(layer, pavement) / 2000.0;
            ExpectItem(pavement, 9 + layer, tons, "ton (e)");
            if (layer == 1 || layer >= 7) together += tons;
        }
        ExpectItem(pavement, 18, together, "ton (e)");
    }
}

TEST_F(QuantityTableTest, InEnglishLengthsAreFeet) {
    EnterGeometry(5280.0, 2640.0);
    Type("JointSpacing", 1, 1, 15.0);
    Type("JointSpacing", 1, 2, 20.0);
    ExpectItem(1, 19, 5280.0, "In feet");
    ExpectItem(1, 20, 10'560.0, "In feet");
    ExpectItem(1, 21, 352.0 * Width(1, 1), "In feet");  // 5280 / 15 joints across
    ExpectItem(2, 19, 2640.0, "In feet");
    ExpectItem(2, 20, 5280.0, "In feet");
    ExpectItem(2, 21, 132.0 * Width(2, 1), "In feet");  // across the second layer of A
}

TEST_F(QuantityTableTest, InEnglishOverlaysAreInchesThick) {
    EnterGeometry(5280.0, 2640.0);
    for (int inches = 1; inches <= 3; ++inches) {
        ExpectItem(1, 21 + inches, 5280.0 * Width(1, 1) * inches / 12.0 * Weight(1, 1) / 2000.0, "ton (e)");
        ExpectItem(2, 21 + inches, 2640.0 * Width(2, 1) * inches / 12.0 * Weight(2, 1) / 2000.0, "ton (e)");
    }
}

TEST_F(QuantityTableTest, InMetricAreasAreSquareMetresAndWeightsTons) {
    program_.units().SetMetric(true);
    EnterGeometry(1600.0, 800.0);
    for (const auto& [pavement, length] : {std::pair(1, 1600.0), {2, 800.0}}) {
        double areas = 0.0;
        double weights = 0.0;
        for (int layer = 1; layer <= 8; ++layer) {
            const double area = Width(layer, pavement) * length;
            const double tons =
                area * (Thickness(layer, pavement) / 1000.0) * Weight(layer, pavement) / 1000.0;
            ExpectItem(pavement, layer, area, "sq m");
            ExpectItem(pavement, 9 + layer, tons, "ton (m)");
            if (layer == 1 || layer >= 7) areas += area;
            if (layer == 1 || layer >= 7) weights += tons;
        }
        ExpectItem(pavement, 9, areas, "sq m");
        ExpectItem(pavement, 18, weights, "ton (m)");
    }
}

TEST_F(QuantityTableTest, InMetricLengthsAreCentimetresAndTheJointsOfPavementBAreDivided) {
    program_.units().SetMetric(true);
    EnterGeometry(1600.0, 800.0);
    Type("JointSpacing", 1, 1, 5.0);
    Type("JointSpacing", 1, 2, 4.0);
    ExpectItem(1, 19, 160'000.0, "In cm");
    ExpectItem(1, 20, 320'000.0, "In cm");
    ExpectItem(1, 21, 320.0 * Width(1, 1) * 100.0, "In cm");
    ExpectItem(2, 19, 80'000.0, "In cm");
    ExpectItem(2, 20, 160'000.0, "In cm");
    ExpectItem(2, 21, 200.0 * Width(2, 1) / 100.0, "In cm");
}

TEST_F(QuantityTableTest, InMetricOverlaysAreMetresThick) {
    program_.units().SetMetric(true);
    EnterGeometry(1600.0, 800.0);
    for (int metres = 1; metres <= 3; ++metres) {
        ExpectItem(1, 21 + metres, 1600.0 * Width(1, 1) * metres * Weight(1, 1) / 1000.0, "ton (m)");
        ExpectItem(2, 21 + metres, 800.0 * Width(2, 1) * metres * Weight(2, 1) / 1000.0, "ton (m)");
    }
}

TEST_F(QuantityTableTest, WithoutAJointSpacingTheJointsAreAnAreaOfNothing) {
    EnterGeometry(5280.0, 2640.0);
    for (const double spacing : {0.0, -15.0}) {
        for (const int pavement : {1, 2}) {
            Type("JointSpacing", 1, pavement, spacing);
            program_.units().SetMetric(false);
            ExpectItem(pavement, 21, 0.0, "sq yd");
            program_.units().SetMetric(true);
            ExpectItem(pavement, 21, 0.0, "sq m");
            program_.units().SetMetric(false);
        }
    }
}

TEST_F(QuantityTableTest, JointsAndOverlaysOfPavementBFollowTheSecondLayerOfPavementA) {
    EnterGeometry(5280.0, 2640.0);
    Type("JointSpacing", 1, 2, 20.0);
    const QuantityTable before = BuildQuantityTable(program_.units(), 2);
    for (const int layer : {1, 2}) {  // those of pavement B change nothing
        Type("LayerWidth", layer, 2, 99.0);
        Type("UnitWeight", layer, 2, 99.0);
    }
    QuantityTable after = BuildQuantityTable(program_.units(), 2);
    for (std::size_t i = 20; i < 24; ++i) EXPECT_EQ(after[i].quantity, before[i].quantity) << i + 1;
    Type("LayerWidth", 2, 1, 2.0 * Width(2, 1));
    after = BuildQuantityTable(program_.units(), 2);
    for (std::size_t i = 20; i < 24; ++i) {
        EXPECT_DOUBLE_EQ(after[i].quantity.value(), 2.0 * before[i].quantity.value()) << i + 1;
    }
}

TEST_F(QuantityTableTest, InputsCountAsTheyAreShown) {
    SetRow(1, 1, {{"ProjectLength", 900.04}, {"LayerWidth", 12.04}});
    ExpectItem(1, 1, 900.0 * 12.0 / 9.0, "sq yd");
    SetRow(1, 1, {{"LayerWidth", 12.05}});
    ExpectItem(1, 1, 900.0 * 12.1 / 9.0, "sq yd");
}

TEST_F(QuantityTableTest, WithoutGeometryEverythingIsZero) {
    for (const int pavement : {1, 2}) {
        for (const ItemQuantity& entry : BuildQuantityTable(program_.units(), pavement)) {
            EXPECT_EQ(entry.quantity.value(), 0.0);
            EXPECT_FALSE(entry.unit.empty());
        }
    }
}

TEST_F(QuantityTableTest, ANumberThatNoDoubleHoldsIsPassedOver) {
    SetRow(1, 1, {{"ProjectLength", 1e200}, {"LayerWidth", 1e200}});
    SetRow(2, 1, {{"LayerWidth", 9.0}});
    ExpectItem(1, 1, 0.0, "sq yd");
    ExpectItem(1, 2, 1e200, "sq yd");
    ExpectItem(1, 10, 0.0, "ton (e)");
    ExpectItem(1, 19, 1e200, "In feet");
}

}  // namespace
}  // namespace kelvor::test

#include "lcc/calc/item_quantity.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <string>

#include "cost_fixture.h"

namespace kelvor::test {
namespace {

class ItemQuantityTest : public CostTest {
  protected:
    ItemQuantityTest() {
        SetRow(1, 1, {{"ProjectLength", 900.0}, {"LayerWidth", 20.0}});
        SetRow(1, 2, {{"ProjectLength", 900.0}, {"LayerWidth", 40.0}});
    }

    /// Lists of few items, whose places are their numbers.
    static Path MakeLists(const TestHome& home) {
        Path lists = home / "DataBase/custom.tpl";
        SQLite::Database(lists.string(), SQLite::OPEN_READWRITE)
            .exec(
                "DELETE FROM \"Value\"; INSERT INTO \"Value\" (Name, Sort, \"Value\", UnitSystem) VALUES "
                "('LayerType', 1, 'Surface area', 'E'), ('LayerType', 1, 'Surface area', 'M'),"
                "('LayerType', 19, 'Edge line', 'E'), ('LayerType', 20, 'Edge line', 'M'),"
                "('LayerType', 19, 'Own item', NULL), ('LayerType', 25, 'Mobilization', 'E'),"
                "('LayerType', NULL, 'Without place', 'E'), ('LayerType', 0, 'Before all', 'E'),"
                "('RehabItem', 20, 'Both edges', 'E')");
        return lists;
    }

    void Fill(const CostGrid& grid, int row, int pavement, std::string_view item) {
        CalcContext context = Context();
        FillItem(context, lists_, grid, row, pavement, item);
    }

    const TestHome listHome_;
    ListDatabase lists_{MakeLists(listHome_)};
};

TEST_F(ItemQuantityTest, AnItemBringsItsQuantityAndItsUnit) {
    Fill(kInitialGrid, 3, 1, "Surface area");
    EXPECT_EQ(Cell("InitialQuantity", 3, 1), 2000.0);
    EXPECT_EQ(Text("InitialQuantity", 3, 1), "2000");
    EXPECT_EQ(Text("InitialUnit", 3, 1), "sq yd");
    Fill(kInitialGrid, 3, 2, "Surface area");
    EXPECT_EQ(Cell("InitialQuantity", 3, 2), 4000.0);
    Fill(kRehabGrid, 4, 1, "Both edges");
    EXPECT_EQ(Cell("RehabQuantity", 4, 1), 1800.0);
    EXPECT_EQ(Text("RehabUnit", 4, 1), "In feet");
    EXPECT_EQ(Cell("InitialQuantity", 4, 1), std::nullopt);
}

TEST_F(ItemQuantityTest, InMetricTheTextHoldsTheEnglishQuantity) {
    program_.units().SetMetric(true);
    program_.units().SetDisplayValue("ProjectLength", 1, 1, "250");
    program_.units().SetDisplayValue("LayerWidth", 1, 1, "8");
    Fill(kInitialGrid, 3, 1, "Surface area");
    EXPECT_EQ(Cell("InitialQuantity", 3, 1), 2000.0);
    EXPECT_EQ(Text("InitialUnit", 3, 1), "sq m");
    EXPECT_NEAR(std::stod(Text("InitialQuantity", 3, 1).value()), 2000.0 / 0.83612736, 1e-9);
    Fill(kInitialGrid, 3, 1, "Edge line");
    EXPECT_EQ(Cell("InitialQuantity", 3, 1), 50'000.0) << "another item of the same name";
    EXPECT_EQ(Text("InitialUnit", 3, 1), "In cm");
}

TEST_F(ItemQuantityTest, TheTextMayHaveWildCardsAndAnyLetterCase) {
    Fill(kInitialGrid, 1, 1, "surface AREA");
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 2000.0);
    Fill(kInitialGrid, 2, 1, "Edge*");
    EXPECT_EQ(Cell("InitialQuantity", 2, 1), 900.0);
}

TEST_F(ItemQuantityTest, AnItemOfBothSystemsIsFound) {
    Fill(kInitialGrid, 1, 1, "Own item");
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 900.0);
}

TEST_F(ItemQuantityTest, AnyOtherItemLeavesTheRow) {
    SetRow(1, 1, {{"InitialQuantity", 7.0}});
    SetText("InitialUnit", 1, 1, "each");
    for (const char* item : {"Mobilization", "Without place", "Before all", "Unknown", "", "Both edges"}) {
        Fill(kInitialGrid, 1, 1, item);
        EXPECT_EQ(Cell("InitialQuantity", 1, 1), 7.0) << item;
        EXPECT_EQ(Text("InitialUnit", 1, 1), "each") << item;
    }
}

/// The items that ship, of whose places the quantity table makes numbers.
class ShippedItemsTest : public CostTest {
  protected:
    void ExpectPlaces(const char* list, bool metric) {
        ListDatabase& lists = *program_.program.state().dbCustom;
        const std::string thick = metric ? " m" : " in";
        const auto place = [&](const std::string& item) { return lists.FindPlace(list, item, metric); };
        for (int layer = 1; layer <= 8; ++layer) {
            EXPECT_EQ(place("Layer " + std::to_string(layer) + ", area"), layer) << list;
            EXPECT_EQ(place("Layer " + std::to_string(layer) + ", weight"), 9 + layer) << list;
        }
        EXPECT_EQ(place("Layers 1, 7 and 8, area"), 9) << list;
        EXPECT_EQ(place("Layers 1, 7 and 8, weight"), 18) << list;
        EXPECT_EQ(place("Length of the project"), 19) << list;
        EXPECT_EQ(place("Twice the length of the project"), 20) << list;
        EXPECT_EQ(place("Transverse joints"), 21) << list;
        for (int thickness = 1; thickness <= 3; ++thickness) {
            EXPECT_EQ(place("Overlay of layer 1, " + std::to_string(thickness) + thick), 21 + thickness);
        }
        EXPECT_GT(place("Mobilization"), 24) << list;
        EXPECT_GT(place("Other"), 24) << list;
    }
};

TEST_F(ShippedItemsTest, StandInTheirListsByTheirNumbers) {
    for (const char* list : {kInitialGrid.items, kRehabGrid.items, "InitialItem"}) {
        ExpectPlaces(list, false);
        ExpectPlaces(list, true);
    }
}

TEST_F(ShippedItemsTest, BringTheirQuantities) {
    SetRow(1, 1, {{"ProjectLength", 900.0}, {"LayerWidth", 20.0}});
    CalcContext context = Context();
    FillItem(context, *program_.program.state().dbCustom, kInitialGrid, 1, 1, "Layer 1, area");
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 2000.0);
    FillItem(context, *program_.program.state().dbCustom, kRehabGrid, 2, 1, "Length of the project");
    EXPECT_EQ(Cell("RehabQuantity", 2, 1), 900.0);
    EXPECT_EQ(Text("RehabUnit", 2, 1), "In feet");
}

}  // namespace
}  // namespace kelvor::test

// The places of the entries that a list offers.

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "catalogue/list_database.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

class ListPlacesTest : public testing::Test {
  protected:
    static Path MakeLists(const TestHome& home) {
        Path lists = home / "DataBase/custom.tpl";
        SQLite::Database(lists.string(), SQLite::OPEN_READWRITE)
            .exec(
                "INSERT INTO \"Value\" (Name, Sort, \"Value\", UnitSystem) VALUES "
                "('Items', 3, 'Base', 'E'), ('Items', 4, 'Base', 'M'), ('Items', 2, 'Own', NULL),"
                "('Items', 1, 'Blank', ''), ('Items', 9, 'Base course', 'E'),"
                "('Items', NULL, 'Nowhere', 'E'), ('Others', 7, 'Base', 'E')");
        return lists;
    }

    const TestHome home_;
    ListDatabase lists_{MakeLists(home_)};
};

TEST_F(ListPlacesTest, AnEntryHasItsPlaceInTheUnitSystem) {
    EXPECT_EQ(lists_.FindPlace("Items", "Base", false), 3.0);
    EXPECT_EQ(lists_.FindPlace("Items", "Base", true), 4.0);
    EXPECT_EQ(lists_.FindPlace("Others", "Base", false), 7.0);
    EXPECT_EQ(lists_.FindPlace("Items", "Base course", true), std::nullopt);
}

TEST_F(ListPlacesTest, AnEntryOfNoUnitSystemIsOfferedInBoth) {
    for (const bool metric : {false, true}) {
        EXPECT_EQ(lists_.FindPlace("Items", "Own", metric), 2.0);
        EXPECT_EQ(lists_.FindPlace("Items", "Blank", metric), 1.0);
    }
}

TEST_F(ListPlacesTest, ATextMayMeanSeveralAndTheFirstCounts) {
    EXPECT_EQ(lists_.FindPlace("Items", "base*", false), 3.0);
    EXPECT_EQ(lists_.FindPlace("Items", "Base ?ourse", false), 9.0);
}

TEST_F(ListPlacesTest, WithoutAnEntryOrAPlaceThereIsNone) {
    EXPECT_EQ(lists_.FindPlace("Items", "Subbase", false), std::nullopt);
    EXPECT_EQ(lists_.FindPlace("Items", "Nowhere", false), std::nullopt);
    EXPECT_EQ(lists_.FindPlace("Nothing", "*", false), std::nullopt);
}

}  // namespace
}  // namespace kelvor::test

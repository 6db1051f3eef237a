// The drop-down lists, and what maintains them.

#include "catalogue/list_database.h"
#include "platform/database_error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <SQLiteCpp/SQLiteCpp.h>
#include <set>

#include "platform/database_error.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char* const kAxles = "Axle Types";

class ListMaintenanceTest : public testing::Test {
  protected:
    void RunSql(const std::string& statements) {
        SQLite::Database(file_.string(), SQLite::OPEN_READWRITE).exec(statements);
    }

    std::vector<std::string> Values(const std::string& description) {
        std::vector<std::string> values;
        for (const ListRow& row : lists_.Rows(description)) values.push_back(row.value);
        return values;
    }

    ListRow RowOf(const std::string& value) {
        for (const ListRow& row : lists_.Rows(kAxles)) {
            if (row.value == value) return row;
        }
        ADD_FAILURE() << "no row " << value;
        return {};
    }

    TestHome home_;
    Path file_ = home_ / "DataBase/custom.tpl";
    ListDatabase lists_{file_};
};

TEST_F(ListMaintenanceTest, EveryListStandsOnceInTheChoice) {
    const auto descriptions = lists_.Descriptions();
    EXPECT_THAT(descriptions, testing::IsSupersetOf({"Axle Types", "Layer Materials"}));
    EXPECT_EQ(std::set<std::string>(descriptions.begin(), descriptions.end()).size(), descriptions.size());
}

TEST_F(ListMaintenanceTest, ADescriptionIsFoundInAnyCaseAndWithWildCards) {
    EXPECT_THAT(Values("axle types"), ElementsAre("Single", "Tandem", "Tridem"));
    EXPECT_EQ(Values("Axle*"), Values(kAxles));
    EXPECT_THAT(Values("Axle_Types"), IsEmpty());
    EXPECT_THAT(Values(""), IsEmpty());
}

TEST_F(ListMaintenanceTest, AnAddedRowInheritsTheNameAndIsTheNextNumber) {
    lists_.AddRow(kAxles);
    const ListRow row = lists_.Rows(kAxles).back();
    EXPECT_EQ(row.name, "AxleType");
    EXPECT_EQ(row.sort, 4.0);
    EXPECT_EQ(row.value, "");
    lists_.Write({row.id, row.name, row.sort, "Quad"});
    EXPECT_THAT(lists_.Values("AxleType", true), ElementsAre("Single", "Tandem", "Tridem", "Quad"))
        << "a row without a unit system is offered in both";
}

TEST(UnreadableListsTest, NoneIsOfferedAndEveryChangeIsRefused) {
    ListDatabase lists;
    EXPECT_THAT(lists.Descriptions(), IsEmpty());
    EXPECT_THAT(lists.Values("AxleType", false), IsEmpty());
    EXPECT_THROW(lists.AddRow(kAxles), DatabaseError);
    EXPECT_THROW(lists.Restore(kAxles), DatabaseError);
    EXPECT_THAT(lists.Rows(kAxles), IsEmpty());
}

TEST_F(ListMaintenanceTest, TheFirstRowOfAnEmptyListIsNumberOneAndHasNoName) {
    lists_.AddRow("New List");
    const auto rows = lists_.Rows("New List");
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].name, "");
    EXPECT_EQ(rows[0].sort, 1.0);
}

TEST_F(ListMaintenanceTest, ALastRowWithoutANumberCountsAsZero) {
    RunSql(
        "DELETE FROM Value WHERE Description = 'Axle Types'; "
        "INSERT INTO Value (Name, Value, Description) VALUES ('AxleType', 'Odd', 'Axle Types')");
    lists_.AddRow(kAxles);
    EXPECT_EQ(lists_.Rows(kAxles).back().sort, 1.0);
}

TEST_F(ListMaintenanceTest, DeletingTakesEveryRowWithTheSameTextOrPlace) {
    for (const char* value : {"tandem", "Quad"}) {
        lists_.AddRow(kAxles);
        ListRow row = lists_.Rows(kAxles).back();
        row.value = value;
        lists_.Write(row);
    }
    lists_.DeleteRows(kAxles, RowOf("Tandem"));
    EXPECT_THAT(Values(kAxles), ElementsAre("Single", "Tridem", "Quad"));
    ListRow quad = RowOf("Quad");
    quad.sort = 3.0;
    lists_.Write(quad);
    lists_.DeleteRows(kAxles, RowOf("Tridem"));
    EXPECT_THAT(Values(kAxles), ElementsAre("Single")) << "both stood at place 3";
    EXPECT_FALSE(Values("Layer Materials").empty());
}

TEST_F(ListMaintenanceTest, ARowWithAnApostropheOrWithoutAPlaceIsNotDeleted) {
    ListRow row = RowOf("Tandem");
    row.value = "Driver's";
    lists_.Write(row);
    lists_.DeleteRows(kAxles, row);
    EXPECT_THAT(Values(kAxles), ElementsAre("Single", "Driver's", "Tridem"));
    row.value = "Tandem";
    row.sort.reset();
    lists_.Write(row);
    lists_.DeleteRows(kAxles, row);
    EXPECT_EQ(Values(kAxles).size(), 3U);
}

TEST_F(ListMaintenanceTest, ARowWithoutAValueTakesNoOtherWithIt) {
    lists_.AddRow(kAxles);
    lists_.AddRow(kAxles);
    lists_.DeleteRows(kAxles, lists_.Rows(kAxles).back());
    EXPECT_THAT(Values(kAxles), ElementsAre("Single", "Tandem", "Tridem", ""));
}

TEST_F(ListMaintenanceTest, RestoringBringsBackWhatWasDeliveredAndNothingElse) {
    lists_.DeleteRows(kAxles, RowOf("Single"));
    lists_.DeleteRows(kAxles, RowOf("Tridem"));
    ListRow row = RowOf("Tandem");
    row.value = "Changed";
    lists_.Write(row);
    lists_.AddRow(kAxles);
    const auto others = Values("Layer Materials");
    lists_.Restore(kAxles);
    EXPECT_THAT(Values(kAxles), ElementsAre("Single", "Tandem", "Tridem"));
    EXPECT_EQ(Values("Layer Materials"), others);
    lists_.AddRow("New List");
    lists_.Restore("New List");
    EXPECT_THAT(Values("New List"), IsEmpty());
}

TEST_F(ListMaintenanceTest, TextsAreStoredAsTheyStand) {
    const std::string text = "'); DROP TABLE Value; -- \"x\" 50%";
    ListRow row = RowOf("Tandem");
    row.value = text;
    lists_.Write(row);
    EXPECT_THAT(Values(kAxles), ElementsAre("Single", text, "Tridem"));
}

TEST_F(ListMaintenanceTest, AStatementThatFailsLeavesTheListAsItWas) {
    RunSql("DROP TABLE ValueDefault");
    EXPECT_THROW(lists_.Restore(kAxles), DatabaseError);
    EXPECT_THAT(Values(kAxles), ElementsAre("Single", "Tandem", "Tridem"));
    const ListRow row = RowOf("Tandem");
    RunSql("DROP TABLE Value");
    EXPECT_THROW(lists_.DeleteRows(kAxles, row), DatabaseError);
    EXPECT_THROW(lists_.AddRow(kAxles), DatabaseError);
}

}  // namespace
}  // namespace kelvor::test

#include <SQLiteCpp/SQLiteCpp.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "catalogue/catalogue.h"
#include "catalogue/list_database.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::StartsWith;

/// What a list of the delivered lists may have wrong: the name of the rule, and a query for the lists that
/// break it.
struct ListRule {
    const char* name;
    const char* query;
};

constexpr ListRule kListRules[] = {
    {"entry", "SELECT Name FROM \"Value\" WHERE Value IS NULL OR trim(Value) = ''"},
    {"entry twice", "SELECT Name FROM \"Value\" GROUP BY Name, Value, UnitSystem HAVING count(*) > 1"},
    {"position",
     "SELECT Name FROM \"Value\" GROUP BY Name, UnitSystem HAVING count(DISTINCT Sort) < count(*)"},
    {"unit system", "SELECT Name FROM \"Value\" WHERE UnitSystem NOT IN ('E', 'M')"},
    {"description",
     "SELECT Name FROM \"Value\" GROUP BY Name "
     "HAVING count(DISTINCT Description) <> 1 OR count(Description) < count(*)"},
    {"delivered state",
     "SELECT Name FROM (SELECT * FROM \"Value\" EXCEPT SELECT * FROM ValueDefault) UNION "
     "SELECT Name FROM (SELECT * FROM ValueDefault EXCEPT SELECT * FROM \"Value\")"},
};

/// The lists that are not named like their variable.
const std::set<std::string> kListsOfOtherName = {"LayerMat"};

/// Everything that is wrong with the lists, one line a fault.
std::vector<std::string> CheckLists(const Path& home) {
    const Catalogue catalogue(home / "DataBase/Kelvor.mdb");
    SQLite::Database lists((home / "DataBase/custom.tpl").string());
    std::vector<std::string> faults;
    const auto collect = [&](const char* rule, const char* query, auto isFault) {
        SQLite::Statement names(lists, query);
        while (names.executeStep()) {
            const std::string name = names.getColumn(0).getString();
            if (isFault(name)) faults.push_back(std::string(rule) + ": " + name);
        }
    };
    for (const ListRule& rule : kListRules) {
        collect(rule.name, rule.query, [](const std::string& /*name*/) { return true; });
    }
    collect("variable", "SELECT DISTINCT Name FROM \"Value\"", [&](const std::string& name) {
        if (kListsOfOtherName.contains(name)) return false;
        const Variable* variable = catalogue.FindVariable(name);
        return variable == nullptr || !variable->IsText();
    });
    return faults;
}

TEST(ListsTest, TheListsThatShipAreWhole) {
    const TestHome home;
    EXPECT_THAT(CheckLists(home.path()), IsEmpty());
}

TEST(ListsTest, AnExistingLayerHasTheMaterialsWhoseCoefficientsAreKnown) {
    const TestHome home;
    ListDatabase lists(home / "DataBase/custom.tpl");
    for (const bool metric : {false, true}) {
        EXPECT_THAT(lists.Values("LayerMat", metric),
                    testing::ElementsAre("Flexible Surface", "Cement Fly Ash", "Graded Stone Base",
                                         "Crushed Stone Base", "Granular Subbase"));
    }
}

/// The number of an item is its place in the list; quantities are computed by it.
TEST(ListsTest, CostItemsStandAtTheNumbersOfTheirQuantities) {
    const TestHome home;
    ListDatabase lists(home / "DataBase/custom.tpl");
    for (const char* list : {"LayerType", "InitialItem", "RehabItem"}) {
        for (const bool metric : {false, true}) {
            const std::vector<std::string> items = lists.Values(list, metric);
            ASSERT_GE(items.size(), 24U);
            const auto item = [&](std::size_t number) { return items[number - 1]; };
            for (std::size_t layer = 1; layer <= 8; ++layer) {
                EXPECT_EQ(item(layer), "Layer " + std::to_string(layer) + ", area");
                EXPECT_EQ(item(layer + 9), "Layer " + std::to_string(layer) + ", weight");
            }
            EXPECT_EQ(item(9), "Layers 1, 7 and 8, area");
            EXPECT_EQ(item(18), "Layers 1, 7 and 8, weight");
            EXPECT_EQ(item(19), "Length of the project");
            EXPECT_EQ(item(20), "Twice the length of the project");
            EXPECT_EQ(item(21), "Transverse joints");
            for (std::size_t thickness = 1; thickness <= 3; ++thickness) {
                EXPECT_EQ(item(21 + thickness),
                          "Overlay of layer 1, " + std::to_string(thickness) + (metric ? " m" : " in"));
            }
        }
    }
}

TEST(ListsTest, EveryUnitOfACostHasItsPairAtTheSamePlace) {
    const TestHome home;
    const Catalogue catalogue(home / "DataBase/Kelvor.mdb");
    ListDatabase lists(home / "DataBase/custom.tpl");
    for (const char* list : {"InitialUnit", "RehabUnit", "MaintUnit"}) {
        const std::vector<std::string> english = lists.Values(list, false);
        const std::vector<std::string> metric = lists.Values(list, true);
        ASSERT_EQ(english.size(), metric.size());
        for (std::size_t i = 0; i < english.size(); ++i) {
            const UnitPair* pair = catalogue.FindPairByEnglish(english[i]);
            ASSERT_NE(pair, nullptr) << english[i];
            EXPECT_EQ(pair->metric, metric[i]);
        }
        EXPECT_THAT(english, testing::IsSupersetOf({"sq yd", "ton (e)", "In feet"}));
    }
}

struct Damage {
    const char* rule;
    const char* statement;
};

class BrokenLists : public testing::TestWithParam<Damage> {};

TEST_P(BrokenLists, AreFoundByTheirCheck) {
    const TestHome home;
    SQLite::Database((home / "DataBase/custom.tpl").string(), SQLite::OPEN_READWRITE)
        .exec(GetParam().statement);
    EXPECT_THAT(CheckLists(home.path()), Contains(StartsWith(std::string(GetParam().rule) + ": AxleType")));
}

INSTANTIATE_TEST_SUITE_P(
    EachRule, BrokenLists,
    testing::Values(Damage{"entry", "UPDATE \"Value\" SET Value = ' ' WHERE Value = 'Tridem'"},
                    Damage{"entry twice", "UPDATE \"Value\" SET Value = 'Tandem' WHERE Value = 'Tridem'"},
                    Damage{"position", "UPDATE \"Value\" SET Sort = 2 WHERE Value = 'Tridem'"},
                    Damage{"unit system", "UPDATE \"Value\" SET UnitSystem = 'X' WHERE Value = 'Tridem'"},
                    Damage{"description", "UPDATE \"Value\" SET Description = NULL WHERE Value = 'Tridem'"},
                    Damage{"description",
                           "UPDATE \"Value\" SET Description = 'Other' WHERE Value = 'Tridem'"},
                    Damage{"delivered state", "DELETE FROM ValueDefault WHERE Value = 'Tridem'"},
                    Damage{"variable", "UPDATE \"Value\" SET Name = 'AxleTypes' WHERE Name = 'AxleType'"},
                    Damage{"variable", "UPDATE \"Value\" SET Name = 'AxleTypes' WHERE Value = 'Tridem'"}));

}  // namespace
}  // namespace kelvor::test

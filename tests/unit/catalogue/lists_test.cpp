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

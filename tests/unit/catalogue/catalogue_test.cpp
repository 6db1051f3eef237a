#include "catalogue/catalogue.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "catalogue/list_database.h"
#include "catalogue_checks.h"
#include "platform/database_error.h"
#include "shell/calculations.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::StartsWith;

class CatalogueTest : public testing::Test {
  protected:
    [[nodiscard]] Path file() const { return home_ / "DataBase/Kelvor.mdb"; }

    TestHome home_;
};

TEST_F(CatalogueTest, TheCatalogueThatShipsIsWhole) {
    Catalogue catalogue(file());
    EXPECT_THAT(CheckCatalogue(catalogue, JoinCalculations()), IsEmpty());
}

// --- Each check fails on a catalogue broken in that one way -----------------------------------------

struct Damage {
    const char* rule;
    const char* statement;
};

class BrokenCatalogue : public CatalogueTest, public testing::WithParamInterface<Damage> {};

TEST_P(BrokenCatalogue, IsFoundByItsCheck) {
    SQLite::Database(file().string(), SQLite::OPEN_READWRITE).exec(GetParam().statement);
    Catalogue catalogue(file());
    const auto faults = CheckCatalogue(catalogue, JoinCalculations());
    EXPECT_THAT(faults, Contains(StartsWith(std::string(GetParam().rule) + ": ")));
    for (const std::string& fault : faults) EXPECT_THAT(fault, StartsWith(GetParam().rule));
}

INSTANTIATE_TEST_SUITE_P(
    EachRule, BrokenCatalogue,
    testing::Values(
        Damage{"picture", "UPDATE Variable SET Format = '0.0x' WHERE Name = 'SN'"},
        Damage{"description", "UPDATE Variable SET \"Desc\" = NULL WHERE Name = 'AREA'"},
        Damage{"unit", "UPDATE Variable SET Units = 'furlong' WHERE Name = 'AREA'"},
        Damage{"bounds", "UPDATE Variable SET Dim2 = 0 WHERE Name = 'AREA'"},
        Damage{"limits", "UPDATE Variable SET Low = 200, High = 100 WHERE Name = 'AREA'"},
        Damage{"limits", "UPDATE Variable SET LowMetric = 200, HighMetric = 100 WHERE Name = 'AREA'"},
        Damage{"concrete", "UPDATE Variable SET High = 19 WHERE Name = 'DEPTH'"},
        Damage{"concrete", "UPDATE Variable SET Low = 0, High = 20 WHERE Name = 'AREA'"},
        Damage{"count", "UPDATE Variable SET Low = 0 WHERE Name = 'APDETJTS'"},
        Damage{"screen", "INSERT INTO Field (Screen, Name, Seq) VALUES ('NoSuch', 'SN', 19)"},
        Damage{"variable", "INSERT INTO Field (Screen, Name, Seq) VALUES ('DeF', 'NOSUCH', 19)"},
        Damage{"field twice", "INSERT INTO Field (Screen, Name, Seq) VALUES ('exr', 'ExistC', 30)"},
        Damage{"grid", "DELETE FROM Field WHERE Screen = 'ExF' AND Name = 'Grid'"},
        Damage{"grid", "INSERT INTO Field (Screen, Name, Seq, Class) VALUES ('ExR', 'Grid', 30, 'G')"},
        Damage{"help", "UPDATE Variable SET HelpText = NULL WHERE Name = 'SN'"},
        Damage{"help", "UPDATE Variable SET HelpHead = NULL WHERE Name = 'SN'"},
        Damage{"range", "UPDATE Variable SET LowMetric = NULL WHERE Name = 'SN'"},
        Damage{"metric limits", "UPDATE Variable SET HighMetric = 100 WHERE Name = 'RM'"},
        Damage{"metric limits", "UPDATE Variable SET LowMetric = 100 WHERE Name = 'RM'"},
        Damage{"term", "UPDATE Field SET Seq = 9 WHERE Screen = 'DeF' AND Name = 'SN'"},
        Damage{"term", "UPDATE Field SET SolveFor = 2 WHERE Screen = 'DeR' AND Name = 'RIGPT'"},
        Damage{"term", "INSERT INTO Field (Screen, Name, Seq) VALUES ('DeF', 'DEPTH', 8)"},
        Damage{"term", "INSERT INTO Field (Screen, Name, Seq, SolveFor) VALUES ('DeF', 'DEPTH', 20, 1)"},
        Damage{"equation",
               "INSERT INTO Field (Screen, Name, Seq, Type, Equation) "
               "VALUES ('DeF', 'DEPTH', 20, 'O', 'NoSuchKey')"},
        Damage{"key without output", "UPDATE Field SET Equation = 'SSN' WHERE Name = 'EXISTEFSNSUM'"},
        Damage{"order",
               "UPDATE Variable SET HelpHead = 'x', HelpText = 'x' WHERE Name IN ('SSN', 'LDLayerStructNo');"
               "INSERT INTO Screen (Name) VALUES ('NotYet');"
               "INSERT INTO Field (Screen, Name, Seq, Class, Type, Equation) VALUES "
               "('NotYet', 'Grid', 19, 'G', NULL, NULL),"
               "('NotYet', 'SSN', 20, NULL, 'O', 'SSN'),"
               "('NotYet', 'LDLayerStructNo', 21, 'C', 'O', 'LDLayerStructNo')"},
        Damage{"missing term", "DELETE FROM Field WHERE Screen = 'OvWT' AND Name = 'OLJ'"},
        Damage{"first pair", "UPDATE \"Convert\" SET rowid = 1000 WHERE English = 'in'"},
        Damage{"pair twice", "INSERT INTO \"Convert\" VALUES ('psi', 'kPa', 6.9)"},
        Damage{"repeated help",
               "UPDATE Variable SET HelpText = HelpText || ' See the Guide.'"
               " WHERE Name IN ('SN', 'RM', 'MR', 'EC')"}));

TEST_F(CatalogueTest, ThreeHelpTextsMayShareASentence) {
    SQLite::Database(file().string(), SQLite::OPEN_READWRITE)
        .exec(
            "UPDATE Variable SET HelpText = HelpText || ' See the Guide. See the Guide.'"
            " WHERE Name IN ('SN', 'RM', 'MR')");
    Catalogue catalogue(file());
    EXPECT_THAT(CheckCatalogue(catalogue, JoinCalculations()), IsEmpty());
}

TEST_F(CatalogueTest, AFactorThatIsNotAboveZeroIsRefused) {
    SQLite::Database(file().string(), SQLite::OPEN_READWRITE)
        .exec("UPDATE \"Convert\" SET Factor = 0 WHERE English = 'psi'");
    EXPECT_THROW(Catalogue{file()}, DatabaseError);
}

TEST_F(CatalogueTest, ATableOrColumnThatIsMissingIsRefused) {
    for (const char* statement :
         {"DROP TABLE Label", "ALTER TABLE Field DROP COLUMN Heading", "DROP TABLE RecentFiles",
          "CREATE VIEW Other AS SELECT 1", "ALTER TABLE Variable ADD COLUMN Other"}) {
        TestHome home;
        SQLite::Database((home / "DataBase/Kelvor.mdb").string(), SQLite::OPEN_READWRITE).exec(statement);
        EXPECT_THROW(Catalogue(home / "DataBase/Kelvor.mdb"), DatabaseError) << statement;
    }
}

TEST_F(CatalogueTest, LimitsAdmitTheExtremesThatTheMethodsKnow) {
    Catalogue catalogue(file());
    struct Extreme {
        const char* name;
        double value;  // English units
        const char* why;
    };
    for (const Extreme& extreme :
         {Extreme{"LDLayerThick", 100, "a drawing holds a thick layer at its greatest height"},
          Extreme{"SBD", 100, "likewise"},
          Extreme{"EXISTLT", 100, "likewise"},
          Extreme{"SUBLT", 100, "likewise; with a coefficient of 0.2 it alone exceeds an SNeff of 15"},
          Extreme{"ACACOLLC", 0, "no overlay coefficient, no overlay"},
          Extreme{"ACCSOLLC", 0, "likewise"},
          Extreme{"NDTEFFSN", -1, "a number below zero does not count"},
          Extreme{"CONDEFFSN", -1, "likewise"},
          Extreme{"ACACPCFDUR", 0.955, "between two bands"},
          Extreme{"ACACPCFJC", 0, "no slab is left"},
          Extreme{"ACACPCACT", 0, "no asphalt on the slab"},
          Extreme{"NDTEFFD", 10, "thickness of a textbook pavement"},
          Extreme{"NDTEFFEP2", 100000, "its modulus"},
          Extreme{"NDTRMC", 0, "no correction was entered"},
          Extreme{"NDTEAC", 0, "no modulus was entered"},
          Extreme{"D0F", 999, "softer than the search reaches"},
          Extreme{"DR", 0, "a sensor that failed"},
          Extreme{"JointSpacing", 0, "no joints"},
          Extreme{"RehabYear", 0, "the year of opening"},
          Extreme{"RehabYear", 100, "the last of a histogram"},
          Extreme{"RehabUnitCost", -1000, "what is left is worth something"}}) {
        const Variable* variable = catalogue.FindVariable(extreme.name);
        ASSERT_NE(variable, nullptr) << extreme.name;
        const double factor = catalogue.FindPairByEnglish(variable->units)->factor;
        EXPECT_LE(variable->low, extreme.value) << extreme.name << ": " << extreme.why;
        EXPECT_GE(variable->high, extreme.value) << extreme.name << ": " << extreme.why;
        EXPECT_LE(variable->lowMetric, extreme.value * factor) << extreme.name << ": " << extreme.why;
        EXPECT_GE(variable->highMetric, extreme.value * factor) << extreme.name << ": " << extreme.why;
    }
}

// --- Looking up ----------------------------------------------------------------------------------------

TEST_F(CatalogueTest, NamesCompareWithoutRegardToCase) {
    Catalogue catalogue(file());
    ASSERT_NE(catalogue.FindVariable("flexe18"), nullptr);
    EXPECT_EQ(catalogue.FindVariable("flexe18")->name, "FLEXE18");
    EXPECT_EQ(catalogue.FindVariable("NOSUCH"), nullptr);
    EXPECT_NE(catalogue.FindScreen("def"), nullptr);
    EXPECT_EQ(catalogue.FindScreen("NoSuch"), nullptr);
    EXPECT_EQ(catalogue.FindPairByMetric("MM")->english, "in");
}

TEST_F(CatalogueTest, FieldsComeInTheirOrderOnTheScreen) {
    SQLite::Database(file().string(), SQLite::OPEN_READWRITE)
        .exec(
            "INSERT INTO Field (Screen, Name, Seq) VALUES ('DeF', 'DEPTH', 30), ('def', 'SSN', 25), ('DeF', "
            "'NOSUCH', 26)");
    Catalogue catalogue(file());
    std::vector<std::string> names;
    for (const Field* field : catalogue.FieldsOfScreen("DeF")) names.push_back(field->name);
    EXPECT_THAT(names, testing::ElementsAre("SN", "FLEXE18", "FLEXREL", "FLEXDEV", "RM", "FLEXPO", "FLEXPT",
                                            "SSN", "DEPTH"))
        << "a field without its variable drops out";
}

TEST_F(CatalogueTest, OutputsComeInTheOrderOfTheCatalogue) {
    SQLite::Database(file().string(), SQLite::OPEN_READWRITE)
        .exec(
            "INSERT INTO Field (Screen, Name, Seq, Type) VALUES ('DeF', 'SSN', 40, 'o'), ('DeF', 'DEPTH', "
            "20, 'O')");
    Catalogue catalogue(file());
    std::vector<std::string> names;
    for (const Field* field : catalogue.OutputsOfScreen("DeF")) names.push_back(field->name);
    EXPECT_THAT(names, testing::ElementsAre("SSN", "DEPTH"));
}

TEST_F(CatalogueTest, AVariableWithoutAPictureAndLimitsIsAText) {
    Catalogue catalogue(file());
    EXPECT_TRUE(catalogue.FindVariable("JobNumber")->IsText());
    EXPECT_TRUE(catalogue.FindVariable("LDLayerMat")->IsText());
    EXPECT_FALSE(catalogue.FindVariable("RehabYear")->IsText());
    EXPECT_FALSE(catalogue.FindVariable("SN")->IsText());
    EXPECT_TRUE(Variable{}.IsText());
    Variable limited;
    limited.high = 5.0;
    EXPECT_FALSE(limited.IsText()) << "a limit makes it a number";
}

TEST_F(CatalogueTest, EachLimitStandsOnItsOwn) {
    SQLite::Database(file().string(), SQLite::OPEN_READWRITE)
        .exec("UPDATE Variable SET High = 7 WHERE Name = 'AREA'");
    Catalogue catalogue(file());
    EXPECT_EQ(catalogue.FindVariable("AREA")->high, 7.0);
    EXPECT_EQ(catalogue.FindVariable("AREA")->low, std::nullopt);
    EXPECT_EQ(catalogue.FindVariable("AREA")->highMetric, std::nullopt);
}

TEST_F(CatalogueTest, TheDataOfTheSubgradeMayBeAbsentAndReachAsFarAsTheGuidesTables) {
    Catalogue catalogue(file());
    struct Row {
        const char* name;
        double largest;  // English units: the end of the range in the Guide, or of the scale
    };
    for (const Row& row : {Row{"MRSG", 40000}, Row{"MRSB", 2000000}, Row{"SBD", 18}, Row{"SGD", 10},
                           Row{"LS", 4}, Row{"CBR", 100}, Row{"RVAL", 100}}) {
        for (const std::string& name : {std::string(row.name), "EXIST" + std::string(row.name)}) {
            const Variable* variable = catalogue.FindVariable(name);
            if (variable == nullptr) continue;  // CBR and R-value serve both pavements
            const double factor = catalogue.FindPairByEnglish(variable->units)->factor;
            EXPECT_EQ(variable->low, 0.0) << name;
            EXPECT_EQ(variable->lowMetric, 0.0) << name;
            EXPECT_GE(variable->high, row.largest) << name;
            EXPECT_GE(variable->highMetric.value_or(0.0), variable->high.value_or(0.0) * factor) << name;
            EXPECT_TRUE(catalogue.HelpText(name).has_value()) << name;
        }
    }
}

TEST(ListDatabaseTest, AListComesInItsOrder) {
    TestHome home;
    SQLite::Database((home / "DataBase/custom.tpl").string(), SQLite::OPEN_READWRITE)
        .exec("UPDATE \"Value\" SET Sort = 0 WHERE Name = 'AxleType' AND Value = 'Tridem'");
    ListDatabase lists(home / "DataBase/custom.tpl");
    EXPECT_THAT(lists.Values("axletype", false), testing::ElementsAre("Tridem", "Single", "Tandem"));
    EXPECT_THAT(lists.Values("NoSuch", false), IsEmpty());
    EXPECT_THAT(lists.Values("O'Brien", false), IsEmpty());
}

}  // namespace
}  // namespace kelvor::test

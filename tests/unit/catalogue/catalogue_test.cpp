#include "catalogue/catalogue.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "catalogue/list_database.h"
#include "catalogue_checks.h"
#include "make_data/database_maker.h"
#include "make_data/text_table.h"
#include "platform/database_error.h"
#include "shell/calculations.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::StartsWith;

const Path kData = Path(KELVOR_SOURCE_FOLDER) / "data";
const char* const kDefaultColumns = "Name\tDim1\tDim2\tRValue\tSValue";

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
        Damage{"screen", "INSERT INTO Field (Screen, Name, Seq) VALUES ('NoSuch', 'SN', 19)"},
        Damage{"variable", "INSERT INTO Field (Screen, Name, Seq) VALUES ('DeF', 'NOSUCH', 19)"},
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
        Damage{"order",
               "UPDATE Variable SET HelpHead = 'x', HelpText = 'x' WHERE Name IN ('SSN', 'LDLayerStructNo');"
               "INSERT INTO Screen (Name) VALUES ('NotYet');"
               "INSERT INTO Field (Screen, Name, Seq, Class, Type, Equation) VALUES "
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

// --- The databases that the build makes ------------------------------------------------------------------

TEST(MakeDatabasesTest, TheSameTablesGiveTheSameBytes) {
    TemporaryFolder folder;
    MakeDatabases(kData, folder / "a");
    MakeDatabases(kData, folder / "b");
    for (const char* name : {"DataBase/Kelvor.mdb", "DataBase/custom.tpl", "kvrwork.tpl"}) {
        EXPECT_EQ(ReadFile(folder / "a" / name), ReadFile(folder / "b" / name)) << name;
        EXPECT_EQ(ReadFile(folder / "a" / name), ReadFile(Path(KELVOR_HOME_FOLDER) / name)) << name;
    }
}

TEST(MakeDatabasesTest, TheTemplateHasEveryCellOfEveryVariableAndNoOther) {
    TestHome home;
    Catalogue catalogue(home / "DataBase/Kelvor.mdb");
    int expected = 0;
    for (const Variable& variable : catalogue.variables()) expected += variable.dim1 * variable.dim2;
    SQLite::Database project((home / "kvrwork.tpl").string());
    EXPECT_EQ(project.execAndGet("SELECT count(*) FROM Project").getInt(), expected);
    SQLite::Statement defaults(
        project,
        "SELECT Name, Dim1, RValue, SValue FROM Project WHERE RValue IS NOT NULL OR SValue IS NOT NULL");
    int filled = 0;
    while (defaults.executeStep()) {
        ++filled;
        const std::string name = defaults.getColumn(0);
        if (name == "LDLayerNumber") {
            EXPECT_EQ(defaults.getColumn(2).getInt(), defaults.getColumn(1).getInt());
        } else if (name == "MetricMode") {
            EXPECT_EQ(defaults.getColumn(2).getDouble(), 0.0);
        } else {
            EXPECT_EQ(name, "EXISTMAT");
            EXPECT_EQ(defaults.getColumn(3).getString(), "Flexible Surface");
        }
    }
    EXPECT_EQ(filled, 8);
}

TEST(MakeDatabasesTest, TheBoundsOfTheArraysStand) {
    TestHome home;
    Catalogue catalogue(home / "DataBase/Kelvor.mdb");
    struct Row {
        const char* name;
        int dim1, dim2;
    };
    for (const Row& row : {Row{"LDLayerNumber", 6, 1}, Row{"LDAdditThick", 6, 1},
                           Row{"EXISTMAT", 10, 1},     Row{"ACSURFLC", 10, 1},
                           Row{"EXISTEFSN", 10, 1},    Row{"AxleType", 50, 1},
                           Row{"FE18", 50, 1},         Row{"NDTLOADF", 300, 1},
                           Row{"Msg", 300, 1},         Row{"NDTEC", 300, 1},
                           Row{"LayerWidth", 20, 2},   Row{"UnitWeight", 20, 2},
                           Row{"LayerType", 35, 2},    Row{"InitialItemCost", 35, 2},
                           Row{"MaintYear", 35, 2},    Row{"RehabItem", 36, 2},
                           Row{"PWCostR", 36, 2},      Row{"PavDesc", 1, 2},
                           Row{"ItemTotal2", 1, 2},    Row{"SN", 1, 1},
                           Row{"MetricMode", 1, 1}}) {
        const Variable* variable = catalogue.FindVariable(row.name);
        ASSERT_NE(variable, nullptr) << row.name;
        EXPECT_EQ(variable->dim1, row.dim1) << row.name;
        EXPECT_EQ(variable->dim2, row.dim2) << row.name;
    }
}

/// A copy of the text tables, to be broken in one place.
class BrokenTablesTest : public testing::Test {
  protected:
    BrokenTablesTest() {
        std::filesystem::copy(kData, folder_ / "data", std::filesystem::copy_options::recursive);
    }

    /// Replaces a table below data/ by one of a single row.
    void WriteTable(const std::string& file, const std::string& columns, const std::string& row) {
        WriteFile(folder_ / ("data/" + file), columns + "\n" + row + "\n");
    }

    /// Why the databases cannot be made; empty if they can.
    std::string Fault() {
        try {
            MakeDatabases(folder_ / "data", folder_ / "home");
            return {};
        } catch (const TextTableError& failure) {
            return failure.what();
        }
    }

    TemporaryFolder folder_;
};

TEST_F(BrokenTablesTest, ADefaultForACellThatIsNoneIsRefused) {
    EXPECT_EQ(Fault(), "");
    WriteTable("template/defaults.tsv", kDefaultColumns, "NOSUCH\t1\t1\t5\t");
    EXPECT_EQ(Fault(), "defaults.tsv: no cell NOSUCH");
}

TEST_F(BrokenTablesTest, ADefaultThatIsNoNumberIsRefused) {
    WriteTable("template/defaults.tsv", kDefaultColumns, "SN\t1\t1\tfive\t");
    EXPECT_EQ(Fault(), "defaults.tsv: \"five\" is no number");
}

TEST_F(BrokenTablesTest, ASubscriptThatIsNoWholeNumberIsRefused) {
    const auto faultOf = [this](const std::string& subscript) {
        WriteTable("template/defaults.tsv", kDefaultColumns, "LDLayerNumber\t" + subscript + "\t1\t5\t");
        return Fault();
    };
    EXPECT_EQ(faultOf("2.5"), R"(defaults.tsv: "2.5" is no whole number)");
    EXPECT_EQ(faultOf("one"), R"(defaults.tsv: "one" is no number)");
    EXPECT_EQ(faultOf("40000"), R"(defaults.tsv: "40000" is too large)");
    EXPECT_EQ(faultOf("2.0"), "");
}

TEST_F(BrokenTablesTest, ABoundOrAnOrderThatIsNoWholeNumberIsRefused) {
    const auto makeTemplate = [this] { MakeTemplate(folder_ / "data", folder_ / "kvrwork.tpl"); };
    const std::string variables = ReadFile(folder_ / "data/catalogue/Variable.tsv");
    std::string broken = variables;
    const std::size_t bounds = broken.find("\t6\t1\t");
    ASSERT_NE(bounds, std::string::npos);
    WriteFile(folder_ / "data/catalogue/Variable.tsv", broken.replace(bounds, 3, "\t2.5\t"));
    EXPECT_EQ(Fault(), "Variable.tsv: \"2.5\" is no whole number");
    EXPECT_THROW(makeTemplate(), TextTableError);
    WriteFile(folder_ / "data/catalogue/Variable.tsv", variables);
    WriteTable("catalogue/RecentFiles.tsv", "FileName\tOpenDate\tSortOrder", "\t\t2.5");
    EXPECT_EQ(Fault(), "RecentFiles.tsv: \"2.5\" is no whole number");
}

TEST_F(BrokenTablesTest, AHelpTextWithoutItsVariableIsRefused) {
    std::filesystem::rename(folder_ / "data/catalogue/help/SN.txt", folder_ / "data/catalogue/help/SNN.txt");
    EXPECT_EQ(Fault(), "SNN.txt: there is no variable SNN");
    std::filesystem::rename(folder_ / "data/catalogue/help/SNN.txt", folder_ / "data/catalogue/help/sn.txt");
    EXPECT_EQ(Fault(), "sn.txt: there is no variable sn");
    std::filesystem::remove(folder_ / "data/catalogue/help/sn.txt");
    EXPECT_EQ(Fault(), "") << "a variable may have no help text";
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

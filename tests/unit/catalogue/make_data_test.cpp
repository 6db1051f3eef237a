#include "make_data/database_maker.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "catalogue/catalogue.h"
#include "make_data/catalogue_tables.h"
#include "make_data/list_tables.h"
#include "make_data/table_files.h"
#include "make_data/text_table.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

const Path kData = Path(KELVOR_SOURCE_FOLDER) / "data";
const char* const kDefaultColumns = "Name\tDim1\tDim2\tRValue\tSValue";

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

// --- Tables that are broken in one place -----------------------------------------------------------------

/// A copy of the text tables, to be broken in one place.
class TablesTest : public testing::Test {
  protected:
    TablesTest() { std::filesystem::copy(kData, folder_ / "data", std::filesystem::copy_options::recursive); }

    /// Replaces a table below data/, or adds it.
    void WriteTable(const std::string& file, const std::string& columns, const std::string& rows) {
        WriteFile(folder_ / ("data/" + file), columns + "\n" + rows + "\n");
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

TEST_F(TablesTest, ADefaultForACellThatIsNoneIsRefused) {
    EXPECT_EQ(Fault(), "");
    WriteTable("template/defaults.tsv", kDefaultColumns, "NOSUCH\t1\t1\t5\t");
    EXPECT_EQ(Fault(), "defaults.tsv, line 2: no cell NOSUCH");
}

TEST_F(TablesTest, ADefaultThatIsNoNumberIsRefused) {
    WriteTable("template/defaults.tsv", kDefaultColumns, "SN\t1\t1\tfive\t");
    EXPECT_EQ(Fault(), "defaults.tsv, line 2: \"five\" is no number");
}

TEST_F(TablesTest, ASubscriptThatIsNoWholeNumberIsRefused) {
    const auto faultOf = [this](const std::string& subscript) {
        WriteTable("template/defaults.tsv", kDefaultColumns, "LDLayerNumber\t" + subscript + "\t1\t5\t");
        return Fault();
    };
    EXPECT_EQ(faultOf("2.5"), R"(defaults.tsv, line 2: "2.5" is no whole number)");
    EXPECT_EQ(faultOf("one"), R"(defaults.tsv, line 2: "one" is no number)");
    EXPECT_EQ(faultOf("40000"), R"(defaults.tsv, line 2: "40000" is too large)");
    EXPECT_EQ(faultOf("2.0"), "");
}

TEST_F(TablesTest, ABoundThatIsNoWholeNumberIsRefused) {
    WriteTable("catalogue/variables/broken.tsv", "Name\tDim1\tDesc", "TESTED\t2.5\tA tested value");
    EXPECT_EQ(Fault(), "broken.tsv, line 2: \"2.5\" is no whole number");
    EXPECT_THROW(MakeTemplate(folder_ / "data", folder_ / "kvrwork.tpl"), TextTableError);
}

TEST_F(TablesTest, AnOrderThatIsNoWholeNumberIsRefused) {
    WriteTable("catalogue/RecentFiles.tsv", "FileName\tOpenDate\tSortOrder", "\t\t2.5");
    EXPECT_EQ(Fault(), "RecentFiles.tsv, line 2: \"2.5\" is no whole number");
}

TEST_F(TablesTest, AColumnThatNoTableHasIsRefused) {
    WriteTable("catalogue/variables/broken.tsv", "Name\tLowest", "TESTED\t2.5");
    EXPECT_EQ(Fault(), "broken.tsv: there is no column Lowest");
}

TEST_F(TablesTest, APlaceForAFieldThatIsNoneIsRefused) {
    WriteTable("catalogue/coarse_grid/Place.tsv", "Screen\tName\tx\ty", "DeF\tSN\t58\t2\nDeF\tDEPTH\t58\t3");
    EXPECT_EQ(Fault(), "Place.tsv, line 3: it belongs to no row");
}

TEST_F(TablesTest, AHelpTextWithoutItsVariableIsRefused) {
    std::filesystem::rename(folder_ / "data/catalogue/help/SN.txt", folder_ / "data/catalogue/help/SNN.txt");
    EXPECT_EQ(Fault(), "SNN.txt: there is no variable SNN");
    std::filesystem::rename(folder_ / "data/catalogue/help/SNN.txt", folder_ / "data/catalogue/help/sn.txt");
    EXPECT_EQ(Fault(), "sn.txt: there is no variable sn");
    std::filesystem::remove(folder_ / "data/catalogue/help/sn.txt");
    EXPECT_EQ(Fault(), "") << "a variable may have no help text";
}

TEST_F(TablesTest, AHelpTextWithoutItsHeadingOrItsTextIsRefused) {
    const Path file = folder_ / "data/catalogue/help/SN.txt";
    WriteFile(file, "A heading\nthat is two lines long\n\nA text.\n");
    EXPECT_EQ(Fault(), "SN.txt: the first line is no heading with an empty line below");
    WriteFile(file, "A text alone.\n");
    EXPECT_EQ(Fault(), "SN.txt: the first line is no heading with an empty line below");
    WriteFile(file, "A heading\n\n\n");
    EXPECT_EQ(Fault(), "SN.txt: there is no text below the heading");
}

// --- What follows from other cells is worked out ---------------------------------------------------------

TEST_F(TablesTest, AFieldBelowTheTermsHasItsPlaceByItsRow) {
    WriteTable("catalogue/fields/more.tsv", "Screen\tSeq\tName\tEquation",
               "New\t1\tSN\t\nNew\t\tSSN\tSSN\nNew\t25\tRM\t\nOther\t\tRM\t\nNew\t\tDEPTH\t");
    TextTable fields = ReadFields(folder_ / "data");
    std::vector<std::string> rows;
    for (TextRow& row : fields.rows) {
        if (!row.place.starts_with("more.tsv")) continue;
        std::string text;
        for (const char* column : {"Screen", "Name", "Id", "Seq", "Type", "SolveFor"})
            text += fields.Cell(row, column).value_or("-") + " ";
        rows.push_back(text);
    }
    EXPECT_THAT(rows, testing::ElementsAre("New SN SN 1 - 1 ", "New SSN SSN 19 O - ", "New RM RM 25 - - ",
                                           "Other RM RM 19 - - ", "New DEPTH DEPTH 26 - - "));
}

/// The entries of the lists whose name begins so, each with its list, unit system and place.
std::string ListsOf(const Path& data, const std::string& start) {
    TextTable lists = ReadLists(data);
    std::string rows;
    for (TextRow& row : lists.rows) {
        if (!lists.Cell(row, "Name").value_or("").starts_with(start)) continue;
        for (const char* column : {"Name", "UnitSystem", "Value", "Sort"})
            rows += lists.Cell(row, column).value_or("-") + " ";
        rows.back() = '\n';
    }
    return rows;
}

TEST_F(TablesTest, AnEntryOfAListHasItsPlaceAmongThoseOfItsUnitSystem) {
    WriteTable("lists/List.tsv", "Name\tDescription\tEntriesOf",
               "Road\tRoads\t\nRoad2\tOther roads\tRoad\nLDLayerMat\tMaterials\t\n"
               "LayerMat\tMaterials\t\nAxleType\tAxles\t\nLayerType\tItems\t\nMaintItem\tItems\t\n"
               "InitialUnit\tUnits\t");
    WriteTable("lists/entries/more.tsv", "Name\tUnitSystem\tValue",
               "Road\tE\tMile\nRoad\tM\tMetre\nRoad\tEM\tPiece\nRoad\t\tAny");
    EXPECT_EQ(ListsOf(folder_ / "data", "Road"),
              "Road E Mile 1\nRoad M Metre 1\nRoad E Piece 2\nRoad M Piece 2\nRoad - Any 1\n"
              "Road2 E Mile 1\nRoad2 M Metre 1\nRoad2 E Piece 2\nRoad2 M Piece 2\nRoad2 - Any 1\n");
}

TEST_F(TablesTest, AListWithoutEntriesAndAnEntryWithoutItsListAreRefused) {
    WriteTable("lists/entries/more.tsv", "Name\tValue", "Road\tMile");
    EXPECT_EQ(Fault(), "more.tsv, line 2: there is no list Road");
    WriteTable("lists/entries/more.tsv", "Name\tValue", "AxleType\tQuad");
    EXPECT_EQ(Fault(), "");
    WriteTable("lists/List.tsv", "Name\tDescription", "Road\tRoads");
    EXPECT_EQ(Fault(), "List.tsv, line 2: the list has no entries");
}

TEST_F(TablesTest, AScreenMayHaveTheFieldsOfAnotherOne) {
    WriteTable("catalogue/Screen.tsv", "Name\tFieldsOf\tTitle", "DeF\t\tDesign\nTwin\tDeF\tDesign once more");
    TextTable fields = ReadFields(folder_ / "data");
    std::string names;
    for (TextRow& row : fields.rows) {
        if (fields.Cell(row, "Screen") == "Twin")
            names += fields.Cell(row, "Name").value_or("") + fields.Cell(row, "Seq").value_or("") + " ";
    }
    EXPECT_EQ(names, "SN1 FLEXE182 FLEXREL3 FLEXDEV4 RM5 FLEXPO6 FLEXPT7 ");
    WriteTable("catalogue/Screen.tsv", "Name\tFieldsOf", "Twin\tNoSuch");
    EXPECT_EQ(Fault(), "Screen.tsv, line 2: there are no fields of NoSuch");
}

// --- The form of the tables ------------------------------------------------------------------------------

TEST(ShippedTablesTest, TheTablesThatShipAreAligned) {
    TemporaryFolder folder;
    std::filesystem::copy(kData, folder / "data", std::filesystem::copy_options::recursive);
    AlignTables(folder / "data");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kData)) {
        if (entry.path().extension() != ".tsv") continue;
        const Path name = entry.path().lexically_relative(kData);
        EXPECT_EQ(ReadFile(entry.path()), ReadFile(folder / "data" / name.string()))
            << "./dev format aligns the columns of " << name;
    }
}

}  // namespace
}  // namespace kelvor::test

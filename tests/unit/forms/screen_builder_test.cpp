// Screens that are built from the rows of the catalogue.

#include <SQLiteCpp/SQLiteCpp.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "forms/form.h"
#include "forms/screen_builder.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using Kind = UserEvent::Kind;
using testing::ElementsAre;

class ScreenBuilderTest : public testing::Test {
  protected:
    /// Changes rows of the catalogue, as one who adds a screen does.
    void Change(const std::string& statements) {
        const std::string path = (program_.home / "DataBase/Kelvor.mdb").string();
        SQLite::Database(path, SQLite::OPEN_READWRITE).exec(statements);
        program_.program.state().OpenCatalogue(path);
    }

    Form* Build(const std::string& screen) {
        ScreenContext context = program_.program.state().MakeScreenContext();
        OpenBuiltScreen(context, screen);
        return program_.program.state().formRegistry.Find("Blank");
    }

    std::vector<std::string> Messages() { return program_.host.record.TakeTexts(); }

    TestProgram program_;
};

TEST_F(ScreenBuilderTest, AScreenThatTheCatalogueDoesNotHaveIsTold) {
    EXPECT_EQ(Build("NoSuch"), nullptr);
    EXPECT_THAT(Messages(), ElementsAre("Screen NoSuch not found"));
    EXPECT_EQ(program_.program.state().formRegistry.CurrentForm->name(), "TabForm");
}

TEST_F(ScreenBuilderTest, ARuleIsAsLongAsItsPlaceLessFive) {
    Change(
        "INSERT INTO Screen (Name, Title) VALUES ('Try', 'A Trial');"
        "INSERT INTO Label (Screen, Label, x, y) VALUES ('Try', '-', 45, 1), ('Try', '=', 7, 2), "
        "('Try', 'Plain', 3, 4), ('Try', '-', 2, 5)");
    Form& form = *Build("Try");
    EXPECT_EQ(form.TextOf("Label1"), std::string(40, '-'));
    EXPECT_EQ(form.TextOf("Label2"), "==");
    EXPECT_EQ(form.TextOf("Label3"), "Plain");
    EXPECT_EQ(form.TextOf("Label4"), "") << "no room for a rule";
    EXPECT_EQ(form.Find("Label3")->place->x, 3.0);
    EXPECT_EQ(form.Find("Label3")->place->y, 4.0);
    EXPECT_EQ(form.TextOf("Title"), "A Trial");
}

TEST_F(ScreenBuilderTest, WithoutPlacesThereAreNoPageButtonsAndNoIndicator) {
    Change("INSERT INTO Screen (Name, Title) VALUES ('Try', 'A Trial')");
    const Form& form = *Build("Try");
    for (const char* name : {"PrevPage", "NextPage", "SolveFor", "Command1", "Grid", "Title1", "Title2"}) {
        EXPECT_FALSE(form.Find(name)->visible) << name;
    }
}

TEST_F(ScreenBuilderTest, APageButtonLeadsToTheScreenThatItNames) {
    Change(
        "INSERT INTO Screen (Name, Title, RightX, RightY, ScreenRight) VALUES ('Try', 'One', 3, 2, 'Try2');"
        "INSERT INTO Screen (Name, Title, LeftX, LeftY, ScreenLeft) VALUES ('Try2', 'Two', 3, 2, 'Gone')");
    Build("Try");
    program_.program.Raise({Kind::Press, "NextPage"});
    Form* second = program_.program.state().formRegistry.Find("Blank");
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->TextOf("ScreenName"), "Try2");
    EXPECT_FALSE(second->Find("NextPage")->visible);
    program_.program.Raise({Kind::Press, "PrevPage"});
    EXPECT_THAT(Messages(), ElementsAre("Screen Gone not found"));
    EXPECT_EQ(program_.program.state().formRegistry.Find("Blank"), second) << "and the page stays";
}

TEST_F(ScreenBuilderTest, AGridHasAsManyRowsAsItsVariable) {
    Change(
        "UPDATE Variable SET Dim1 = 25 WHERE Name IN ('AxleType', 'AxleWeight');"
        "INSERT INTO Screen (Name, Dim2, Title) VALUES ('Try', 1, 'A Trial');"
        "INSERT INTO Field (Screen, Name, Id, Seq, Class, Type, x, y, Heading) VALUES "
        "('Try', 'Grid', 'Grid', 1, 'G', NULL, 3, 2, NULL), "
        "('Try', 'AxleWeight', 'AxleWeight', 2, 'C', NULL, 12, NULL, 'Load'), "
        "('Try', 'NOSUCH', 'NOSUCH', 3, 'C', NULL, 12, NULL, 'Nothing'), "
        "('Try', 'AxleType', 'AxleType', 4, 'C', 'O', 8, NULL, 'Type')");
    Form& form = *Build("Try");
    const GridData& grid = *form.FindGrid()->grid;
    EXPECT_EQ(grid.rows, 25);
    ASSERT_EQ(grid.columns.size(), 2U) << "a field without a variable drops out";
    EXPECT_EQ(grid.columns[0].caption, "Load");
    EXPECT_TRUE(grid.columns[1].locked);
    EXPECT_EQ(form.Find("Grid")->place->x, 2.0);
    EXPECT_DOUBLE_EQ(form.Find("Grid")->place->width, 1.05 * (12 + 8 + 1));
    EXPECT_EQ(form.TextOf("Dim2"), "1");
    EXPECT_TRUE(program_.program.Raise({Kind::MoveToCell, {}, {}, 25}));
    program_.program.Raise({Kind::Key, "Down"});
    EXPECT_EQ(grid.row, 25) << "to its last row and no further";
    EXPECT_FALSE(program_.program.Raise({Kind::MoveToCell, {}, {}, 26}));
}

TEST_F(ScreenBuilderTest, FieldsEndAtTheirPlaceAndFollowTheCatalogue) {
    Change(
        "INSERT INTO Screen (Name, Title) VALUES ('Try', 'A Trial');"
        "INSERT INTO Field (Screen, Name, Id, Seq, Class, Type, Equation, x, y) VALUES "
        "('Try', 'RM', 'RM', 1, NULL, NULL, NULL, 40, 3), ('Try', 'SSN', 'SSN', 2, NULL, 'O', 'SSN', 40, 4), "
        "('Try', 'SN', 'SN', NULL, NULL, NULL, NULL, 40, 5)");
    Form& form = *Build("Try");
    const Control& rm = *form.Find("RM");
    EXPECT_DOUBLE_EQ(rm.place->width, 5 + 1.2) << "the letters of #,##0 and a margin";
    EXPECT_DOUBLE_EQ(rm.place->x + rm.place->width, 40.0);
    EXPECT_EQ(form.TextOf("NumLoaded"), "3");
    EXPECT_TRUE(form.Find("SSN")->locked);
    EXPECT_EQ(form.Find("SSN")->backColor, colours::kLightCyan);
    EXPECT_FALSE(form.Find("SN")->tabStop) << "no place in the order";
    EXPECT_EQ(form.focus, &rm);
    program_.program.Raise({Kind::Type, {}, "5000"});
    program_.program.Raise({Kind::Key, "Tab"});
    EXPECT_EQ(program_.Get("RM"), 5000.0);
}

}  // namespace
}  // namespace kelvor::test

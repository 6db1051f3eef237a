// The screens of existing pavements: their rows, their lists, and what they leave alone.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "forms/form.h"
#include "rehab_fixture.h"

namespace kelvor::test {
namespace {

using Kind = UserEvent::Kind;
using testing::ElementsAre;
using testing::EndsWith;

class ExistingScreensTest : public RehabTest {
  protected:
    Form& Open(const std::string& screen) {
        program_.program.Raise({Kind::OpenForm, screen, {}, 0});
        return *program_.program.state().formRegistry.CurrentForm;
    }
};

TEST_F(ExistingScreensTest, BothScreensOfTheLayersShowSixRowsAndOfferTheMaterialsOfExistingLayers) {
    for (const char* screen : {"ExF", "SNCHELP"}) {
        const Form& form = Open(screen);
        ASSERT_EQ(form.name(), screen);
        const GridData& grid = *form.FindGrid()->grid;
        EXPECT_EQ(grid.rows, 6);
        EXPECT_THAT(grid.columns[0].items,
                    ElementsAre("Flexible Surface", "Cement Fly Ash", "Graded Stone Base",
                                "Crushed Stone Base", "Granular Subbase"));
        EXPECT_TRUE(grid.columns[4].locked) << "EXISTEFSN is computed";
    }
}

TEST_F(ExistingScreensTest, CellsBeyondTheSixthRowAreRefused) {
    const Form& form = Open("ExF");
    EXPECT_TRUE(program_.program.Raise({Kind::EditCell, "EXISTLT", "4", 6}));
    EXPECT_FALSE(program_.program.Raise({Kind::EditCell, "EXISTLT", "4", 7}));
    EXPECT_EQ(form.FindGrid()->grid->row, 6);
    EXPECT_FALSE(store().FindCell("EXISTLT", 7, 1)->IsFilled());
}

TEST_F(ExistingScreensTest, OpeningAScreenWorksItsTotalOutAnewAndIsNoChange) {
    store().SetVarDim("EXISTEFSN", 1, 1, 9.0);  // stale: its layer has gone
    Set({{"EXISTEFSNSUM", 9.0}, {"SNEFFTOT", 9.0}});
    program_.program.state().bProjectChanged = false;
    EXPECT_EQ(Open("ExF").TextOf("EXISTEFSNSUM"), "0.00");
    EXPECT_EQ(Open("SNCHELP").TextOf("SNEFFTOT"), "0.00");
    EXPECT_FALSE(program_.program.state().bProjectChanged);
}

TEST_F(ExistingScreensTest, APickOnTheNewLayersSaysThatItAlsoSetsTheExistingOnes) {
    const Form& form = Open("LayDet");
    EXPECT_THAT(
        form.FindGrid()->grid->columns[0].hint,
        EndsWith("from the list; also sets the layer coefficient of this row of the existing pavement"));
}

}  // namespace
}  // namespace kelvor::test

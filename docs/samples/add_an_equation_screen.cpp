#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>

#include "design/calc/solve_for.h"
#include "forms/declaration_check.h"
#include "forms/form.h"
#include "forms/work_out_help.h"
#include "make_data/database_maker.h"
#include "shell/hub/hub_table.h"
#include "support/test_host.h"

namespace kelvor {

// [equation]
namespace {

constexpr FlexibleNames kTerms = {"SN", "FLEXE18", "FLEXREL", "FLEXDEV", "RM", "FLEXPO", "FLEXPT"};
constexpr std::array kEquations = {FlexibleEquation("Shoul", kTerms)};

}  // namespace

KeyTable ShoulderKeys() { return {{}, {}, kEquations}; }
// [equation]

// [screen]
/// `Shoul`: a paved shoulder, by the flexible equation.
FormType ShoulderForm() {
    FormType type;
    type.name = "Shoul";
    type.caption = "Paved Shoulder";
    type.equations = {{}};
    type.layout = Columns({
        Frame("Frame1", "Design Inputs",
              {Fields({{"FLEXE18"}, {"FLEXREL"}, {"FLEXDEV"}, {"RM"}, {"SN"}, {"FLEXPO"}, {"FLEXPT"}})}),
        SolveForFrame("Frame2", type.equations[0]),
    });
    type.helpRoutes = {WorkOutSoilModulus("RM")};
    return type;
}
// [screen]

namespace {

// [row]
constexpr HubRow kShoulder = {
    .group = HubGroup::Designs, .option = "oShoul", .caption = "Paved Shoulder", .screen = "Shoul"};
// [row]

}  // namespace

namespace test {
namespace {

const Path kData = KELVOR_SOURCE_FOLDER "/data";
const Path kSample = KELVOR_SOURCE_FOLDER "/docs/samples/shoulder";

/// The catalogue with the rows of the sample.
Path MakeCatalogueWithShoulder(const Path& folder) {
    const Path catalogue = folder / "data/catalogue";
    std::filesystem::copy(kData, folder / "data", std::filesystem::copy_options::recursive);
    std::ofstream(catalogue / "Screen.tsv", std::ios::app) << ReadFile(kSample / "Screen.tsv");
    std::filesystem::copy(kSample / "shoulder.tsv", catalogue / "fields");
    MakeCatalogue(folder / "data", folder / "Kelvor.mdb");
    return folder / "Kelvor.mdb";
}

class ShoulderScreenTest : public testing::Test {
  protected:
    ShoulderScreenTest() {
        ProcessState& state = program.program.state();
        state.OpenCatalogue(MakeCatalogueWithShoulder(folder_.path()));
        state.calculations = Dispatch({ShoulderKeys()});
        state.formRegistry.Declare({{"Shoul", ShoulderForm}});
    }

    TestProgram program;

  private:
    TemporaryFolder folder_;
};

TEST_F(ShoulderScreenTest, ItsDeclarationAndItsRowOfTheHubAreRight) {
    const ProcessState& state = program.program.state();
    EXPECT_NO_THROW(CheckDeclaration(ShoulderForm(), *state.dbCatalogue));
    EXPECT_NO_THROW(CheckHubRow(kShoulder, state.formRegistry, *state.dbCatalogue));
}

/// The example of the Guide's Figure 3.1: SN 5.0 for a loss of serviceability of 1.9.
TEST_F(ShoulderScreenTest, SolvesTheGuidesExample) {
    // [test]
    program.Set("FLEXE18", 5e6);
    program.Set("FLEXREL", 95.0);
    program.Set("FLEXDEV", 0.35);
    program.Set("RM", 5000.0);
    program.Set("FLEXPO", 4.4);
    program.Set("FLEXPT", 2.5);
    program.program.Raise({UserEvent::Kind::OpenForm, "Shoul"});
    program.program.Raise({UserEvent::Kind::Focus, "SN"});
    const Form& form = *program.program.state().formRegistry.Find("Shoul");
    EXPECT_EQ(form.TextOf("TARGET"), "Solves for: Structural Number");
    EXPECT_EQ(form.TextOf("CHECK"), "Missing: Structural Number");
    program.program.Raise({UserEvent::Kind::Press, "Command1"});
    EXPECT_NEAR(program.Get("SN"), 5.0, 0.05);  // read off the Guide's chart
    EXPECT_THAT(form.TextOf("CHECK"), testing::StartsWith("In balance: "));
    // [test]
    EXPECT_TRUE(program.host.record.TakeTexts().empty());
}

}  // namespace
}  // namespace test
}  // namespace kelvor

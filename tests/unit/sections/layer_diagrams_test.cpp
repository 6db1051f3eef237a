// The diagrams of layers, box by box.

#include <gtest/gtest.h>

#include "forms/form.h"
#include "sections/diagram_boxes.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

class LayerDiagramsTest : public testing::Test {
  protected:
    void Set(const std::string& name, double inches, int row = 1) {
        program_.store().SetCell(name, row, 1, {inches, std::nullopt});
    }

    /// A diagram that is opened while a screen is in front.
    const Form& OpenOver(const std::string& screen, const std::string& diagram = "CSec") {
        EXPECT_TRUE(program_.program.Raise({UserEvent::Kind::OpenForm, screen}));
        EXPECT_TRUE(program_.program.Raise({UserEvent::Kind::OpenForm, diagram}));
        return *program_.program.state().formRegistry.CurrentForm;
    }

    static int Height(const Form& form, const char* box) { return form.Get(box).stacked->height; }
    static int Top(const Form& form, const char* box) { return form.Get(box).stacked->top; }

    TestProgram program_;
};

TEST_F(LayerDiagramsTest, AnInchIsALowBoxAndAHundredAHighOne) {
    Set("SBD", 1.0);
    Set("DEPTH", 100.0);
    const Form& form = OpenOver("DeR");
    EXPECT_EQ(Height(form, "CSLayer1"), 240);
    EXPECT_EQ(Height(form, "CSLayer2"), 500);
}

TEST_F(LayerDiagramsTest, BetweenTheLimitsABoxIsSixtyTwipsAnInchOrThreeAMillimetre) {
    EXPECT_EQ(DiagramBoxHeight(4.0, 3.0), 240);
    EXPECT_EQ(DiagramBoxHeight(4.1, 3.0), 246);
    EXPECT_EQ(DiagramBoxHeight(8.3, 3.0), 498);
    EXPECT_EQ(DiagramBoxHeight(8.4, 3.0), 500);
    EXPECT_EQ(DiagramBoxHeight(80.2, 0.15), 241);   // 240.6
    EXPECT_EQ(DiagramBoxHeight(120.1, 0.15), 360);  // 360.3
    EXPECT_EQ(DiagramBoxHeight(1e300, 3.0), 500);
}

TEST_F(LayerDiagramsTest, ALayerOfZeroDisappearsAndTheTotalIgnoresIt) {
    Set("DEPTH", 8.0);
    const Form& form = OpenOver("DeR");
    EXPECT_FALSE(form.Get("CSLayer1").visible);
    EXPECT_FALSE(form.Get("LabCSLayer1").visible);
    EXPECT_FALSE(form.Get("ExtraLayer").visible);
    EXPECT_TRUE(form.Get("CSLayer2").visible);
    EXPECT_TRUE(form.Get("LabCSLayer2").visible);
    EXPECT_EQ(form.Get("CSLayer2").text, "8.0 inPCC Thickness");
    EXPECT_EQ(form.Get("TotalThickness").text, "Total Thickness  - 8.0 in");
    EXPECT_EQ(Top(form, "LabSubgrade"), 480);
}

TEST_F(LayerDiagramsTest, ASwitchToMetricChangesTextAndScaleButNotWhatTheLimitsHold) {
    Set("SBD", 1.0);
    Set("DEPTH", 6.0);
    const Form& form = OpenOver("DeR");
    EXPECT_EQ(Height(form, "CSLayer2"), 360);  // 20 x 6.0 x 3.0
    EXPECT_EQ(form.Get("TotalThickness").text, "Total Thickness  - 7.0 in");
    program_.program.ChooseUnits(true);
    EXPECT_EQ(Height(form, "CSLayer1"), 240);
    EXPECT_EQ(Height(form, "CSLayer2"), 457);  // 20 x 152.4 x 0.15 = 457.2
    EXPECT_EQ(form.Get("CSLayer2").text, "152.4 mmPCC Thickness");
    EXPECT_EQ(form.Get("TotalThickness").text, "Total Thickness  - 177.8 mm");
}

TEST_F(LayerDiagramsTest, EachScreenHasItsLabelsAndStacksThemAsTheyLie) {
    struct Screen {
        const char* name;
        std::vector<std::pair<const char*, double>> cells;  // the lowest layer first
        std::vector<const char*> boxes;                     // from the top down
        std::array<const char*, 3> labels;
    };
    const std::vector<Screen> screens = {
        {"DeR",
         {{"SBD", 4.0}, {"DEPTH", 5.0}},
         {"CSLayer2", "CSLayer1"},
         {"Base Thickness", "PCC Thickness", ""}},
        {"OvAPCS",
         {{"SBD", 4.0}, {"EXISTDEPTH", 5.0}, {"ACPCOLT", 6.0}},
         {"CSLayer3", "CSLayer2", "CSLayer1"},
         {"Base Thickness", "Existing PCC Thickness", "AC Overlay Thickness"}},
        {"OvBPCS",
         {{"SBD", 4.0}, {"EXISTDEPTH", 5.0}, {"BOLDEPTH", 6.0}},
         {"CSLayer3", "CSLayer2", "CSLayer1"},
         {"Base Thickness", "Existing PCC Thickness", "Bonded PCC Thickness"}},
        {"OvUPCS",
         {{"SBD", 4.0}, {"EXISTDEPTH", 5.0}, {"UBOLDEPTH", 6.0}},
         {"CSLayer2", "CSLayer3", "CSLayer1"},
         {"Base Thickness", "Unbonded Thickness", "Existing PCC Thickness"}},
        {"OvAFPCS",
         {{"SUBLT", 4.0}, {"CSPCLT", 5.0}, {"ACCSTHICK", 6.0}},
         {"CSLayer3", "CSLayer2", "CSLayer1"},
         {"Subbase ", "Fract Slab ", "AC Thickness"}},
        {"OvWTCS",
         {{"EXISTLT", 4.0}, {"WTDEPTH", 5.0}},
         {"CSLayer2", "CSLayer1"},
         {"Flexible Layer Thickness", "Whitetopping Thickness", ""}},
        {"OvAAPCS",
         {{"EXISTDEPTH", 4.0}, {"ACACPCFUTD", 5.0}},
         {"CSLayer2", "CSLayer1"},
         {"Existing Thickness", "Future Layer Thickness", ""}},
    };
    for (const Screen& screen : screens) {
        SCOPED_TRACE(screen.name);
        for (const auto& [name, inches] : screen.cells) Set(name, inches);
        const Form& form = OpenOver(screen.name);
        for (std::size_t i = 0; i < screen.boxes.size(); ++i) {
            const double inches = screen.cells[screen.boxes.size() - 1 - i].second;
            EXPECT_EQ(Height(form, screen.boxes[i]), static_cast<int>(60.0 * inches)) << screen.boxes[i];
            if (i == 0) continue;
            EXPECT_EQ(Top(form, screen.boxes[i]),
                      Top(form, screen.boxes[i - 1]) + Height(form, screen.boxes[i - 1]));
        }
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(form.Get("LabCSLayer" + std::to_string(i + 1)).text, screen.labels[i]);
        }
        const bool whitetopping = std::string(screen.name) == "OvWTCS";
        EXPECT_EQ(form.Get("LabSubgrade").text, whitetopping ? "Existing AC Pavement" : "Subgrade");
        EXPECT_EQ(form.TextOf("CSType") + "CS", screen.name == std::string("DeR") ? "DeRCS" : screen.name);
    }
}

TEST_F(LayerDiagramsTest, AScreenWithoutLayersIsNotEnteredYet) {
    const Form& form = OpenOver("ExR");
    EXPECT_EQ(form.TextOf("CSType"), "ExR");
    for (const char* label : {"LabCSLayer1", "LabCSLayer2", "LabCSLayer3"}) {
        EXPECT_EQ(form.Get(label).text, "Not entered yet");
        EXPECT_FALSE(form.Get(label).visible);
    }
    EXPECT_EQ(form.Get("TotalThickness").text, "Total Thickness  - 0.0 in");
    EXPECT_EQ(Top(form, "LabSubgrade"), 0);
}

TEST_F(LayerDiagramsTest, OpenedAgainItDrawsTheScreenThatIsInFrontThen) {
    Set("DEPTH", 8.0);
    (void)OpenOver("DeR");
    const Form& form = OpenOver("OvWT");
    EXPECT_EQ(form.TextOf("CSType"), "OvWT");
    program_.program.Raise({UserEvent::Kind::OpenForm, "CSec"});
    EXPECT_EQ(form.TextOf("CSType"), "OvWT") << "it was in front itself";
    program_.program.Raise({UserEvent::Kind::ActivateForm, "DeR"});
    program_.program.Raise({UserEvent::Kind::ActivateForm, "CSec"});
    EXPECT_EQ(form.TextOf("CSType"), "OvWT") << "it was not opened but brought to the front";
}

TEST_F(LayerDiagramsTest, TheDiagramOfADrawingIsThatOfItsScreen) {
    for (const auto& [drawing, diagram] :
         std::vector<std::pair<const char*, const char*>>{{"DeFCS", "CSec2"},
                                                          {"DeRCS", "CSec"},
                                                          {"DeSCS", "CSec2"},
                                                          {"OvAACS", "CSec2"},
                                                          {"OvWTCS", "CSec"}}) {
        program_.program.Raise({UserEvent::Kind::OpenForm, drawing});
        program_.program.Raise({UserEvent::Kind::Press, "cmdbDiagram"});
        const Form& form = *program_.program.state().formRegistry.CurrentForm;
        EXPECT_EQ(form.name(), diagram);
        EXPECT_EQ(form.TextOf("CSType") + "CS", drawing);
        program_.program.Raise({UserEvent::Kind::Press, "cmdbClose"});
        EXPECT_EQ(program_.program.state().formRegistry.Find(diagram), nullptr);
    }
}

TEST_F(LayerDiagramsTest, TheLayersOfAFlexibleDesignAreListedByTheirMaterials) {
    program_.store().SetCell("LDLayerMat", 1, 1, {std::nullopt, "Asphalt Surface Course"});
    program_.store().SetCell("LDLayerMat", 3, 1, {std::nullopt, "Rigid Base"});
    Set("LDLayerThick", 7.0, 1);
    Set("LDLayerThick", 20.0, 3);
    const Form& form = OpenOver("DeF", "CSec2");
    EXPECT_EQ(form.TextOf("CSVarName"), "LDLayerThick");
    EXPECT_EQ(form.Get("LabCSLayer(1)").text, "Asphalt Surface Course");
    EXPECT_EQ(form.Get("LabCSLayer(3)").text, "Rigid Base");
    EXPECT_EQ(Height(form, "CSLayer(1)"), 280);  // 20 x 7.0 x 2.0
    EXPECT_EQ(Height(form, "CSLayer(3)"), 500);
    EXPECT_EQ(Top(form, "CSLayer(3)"), 280);
    EXPECT_FALSE(form.Get("CSLayer(2)").visible);
    EXPECT_FALSE(form.Get("LabCSLayer(2)").visible);
    EXPECT_EQ(form.TextOf("LabCSLayer1"), "Asphalt Surface Course");
    EXPECT_EQ(form.TextOf("LabCSLayer11"), "Asphalt Surface Course");
    EXPECT_FALSE(form.Get("CSLayer1").visible);
    EXPECT_EQ(form.Get("TotalThickness").text, "Total Thickness - 27.0 in");
    program_.program.ChooseUnits(true);
    EXPECT_EQ(Height(form, "CSLayer(1)"), 356);  // 20 x 177.8 x 0.1 = 355.6
    EXPECT_EQ(form.Get("TotalThickness").text, "Total Thickness - 685.8 mm");
}

TEST_F(LayerDiagramsTest, AnOverlayLiesOnTheExistingLayers) {
    Set("EXISTLT", 3.1, 1);
    Set("EXISTLT", 6.0, 2);
    Set("ACACTHICK", 4.0);
    const Form& form = OpenOver("OvAACS", "CSec2");
    EXPECT_EQ(form.TextOf("CSVarName"), "EXISTLT");
    EXPECT_EQ(form.TextOf("LabCSLayer1"), "AC Overlay ");
    EXPECT_EQ(form.TextOf("LabCSLayer11"), "AC Overlay ");
    EXPECT_EQ(form.Get("LabCSLayer(1)").text, "Existing Flex Thick");
    EXPECT_EQ(form.Get("LabCSLayer(2)").text, "Layer 2");
    EXPECT_TRUE(form.Get("CSLayer1").visible);
    EXPECT_EQ(Height(form, "CSLayer1"), 320);    // 20 x 4.0 x 4.0
    EXPECT_EQ(Height(form, "CSLayer(1)"), 248);  // 20 x 3.1 x 4.0
    EXPECT_EQ(Top(form, "CSLayer(1)"), 320);
    EXPECT_EQ(Top(form, "CSLayer(2)"), 568);
    EXPECT_EQ(form.Get("TotalThickness").text, "Total Thickness - 13.1 in");
}

}  // namespace
}  // namespace kelvor::test

// What the drawings of cross sections hold, form by form.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "forms/form.h"
#include "sections/materials.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kHidden = "      ";

/// A row of a data sheet, and whether its series is white.
struct Row {
    std::string label;
    double cell = 0.0;
};

/// A form, what is stored before it is opened, and what its chart must then hold.
struct Section {
    const char* form;
    std::string title;
    std::vector<Row> rows;
};

class SectionChartsTest : public testing::Test {
  protected:
    void Set(const std::string& name, double inches, int row = 1) {
        program_.store().SetCell(name, row, 1, {inches, std::nullopt});
    }

    void SetText(const std::string& name, const std::string& text, int row) {
        program_.store().SetCell(name, row, 1, {std::nullopt, text});
    }

    void StoreAll() {
        const std::vector<std::pair<const char*, double>> designed = {
            {"Asphalt Surface Course", 1.5}, {"Asphalt Treated Base", 4.0}, {"", 0.0}, {"Gravel Base", 6.0}};
        for (std::size_t i = 0; i < designed.size(); ++i) {
            const int row = static_cast<int>(i) + 1;
            SetText("LDLayerMat", designed[i].first, row);
            Set("LDLayerThick", designed[i].second, row);
        }
        SetText("EXISTMAT", "Flexible Surface", 1);
        Set("EXISTLT", 3.0, 1);
        SetText("EXISTMAT", "Crushed Stone Base", 2);
        Set("EXISTLT", 8.0, 2);
        Set("EXISTLT", 50.0, 7);  // below the six that are shown
        for (const auto& [name, inches] : std::map<std::string, double>{{"SBD", 6.0},
                                                                        {"DEPTH", 9.5},
                                                                        {"EXISTDEPTH", 8.0},
                                                                        {"BOLDEPTH", 3.0},
                                                                        {"UBOLDEPTH", 7.0},
                                                                        {"ACACPCACT", 2.0},
                                                                        {"ACACPCOLT", 4.5},
                                                                        {"SUBLT", 5.0},
                                                                        {"CSPCLT", 10.0},
                                                                        {"ACCSTHICK", 6.5},
                                                                        {"WTDEPTH", 9.0},
                                                                        {"ACACTHICK", 2.5},
                                                                        {"ACPCOLT", 4.0}}) {
            Set(name, inches);
        }
    }

    ChartData Open(const std::string& form, const char* chart = "Chart1") {
        EXPECT_TRUE(program_.program.Raise({UserEvent::Kind::OpenForm, form}));
        return *program_.program.state().formRegistry.Find(form)->Get(chart).chart;
    }

    void Close(const std::string& form) { program_.program.Raise({UserEvent::Kind::CloseForm, form}); }
    void Metric() { program_.program.ChooseUnits(true); }

    static void ExpectSection(const ChartData& chart, const Section& section) {
        SCOPED_TRACE(section.form);
        EXPECT_EQ(chart.title, section.title);
        ASSERT_EQ(chart.rows.size(), section.rows.size());
        ASSERT_EQ(chart.series.size(), section.rows.size());
        for (std::size_t i = 0; i < section.rows.size(); ++i) {
            const Row& row = section.rows[i];
            const std::string name = row.label.substr(0, row.label.find('\n'));
            EXPECT_EQ(chart.rows[i].label, row.label);
            ASSERT_EQ(chart.rows[i].cells.size(), 1U);
            EXPECT_NEAR(chart.rows[i].cells[0].value_or(-1.0), row.cell, 1e-9) << row.label;
            EXPECT_EQ(chart.series[i].name, name);
            EXPECT_EQ(chart.series[i].colour == "#FFFFFF", row.label == kHidden) << row.label;
        }
    }

    TestProgram program_;
};

/// What the forms hold in English units; the tables of layers are turned over, row 1 being the top.
std::vector<Section> EnglishSections() {
    const Row none{kHidden, 0.0};
    return {
        {"DeFCS",
         "Flexible Design Cross Section\nTotal Thickness is 11.5 in",
         {{"Subgrade", 3.0},
          none,
          none,
          {"Gravel Base\n6.0 in", 6.0},
          none,
          {"Asphalt Treated Base\n4.0 in", 4.0},
          {"Asphalt Surface Course\n1.5 in", 1.5}}},
        {"DeRCS",
         "Rigid Pavement Design Cross Section\nTotal Thickness 15.5 in",
         {{"Subgrade", 3.0}, {"Base Thickness \n6.0 in", 6.0}, {"PCC Thickness\n9.5 in", 9.5}}},
        {"OvBPCS",
         "Bonded Overlay Design Cross Section\nTotal Thickness 11.0 in",
         {{"Existing Subbase and Subgrade", 3.0},
          {"Existing PCC Thickness\n8.0 in", 8.0},
          {"Bonded PCC Thickness \n3.0 in", 3.0}}},
        {"OvUPCS",
         "Unbonded PCC Overlay Cross Section\nTotal Thickness 15.0 in",
         {{"Existing Subbase and Subgrade", 3.0},
          {"Existing PCC Thickness\n8.0 in", 8.0},
          {"Interlayer", 1.0},
          {"Unbonded PCC Thickness \n7.0 in", 7.0}}},
        {"OvAAPCS",
         "AC Overlay of AC/PCC Pavement Cross Section\nTotal Thickness 14.5 in",
         {{"Existing Subbase and Subgrade", 3.0},
          {"Existing PCC Thickness \n8.0 in", 8.0},
          {"Existing AC Thickness \n2.0 in", 2.0},
          {"AC Overlay \n4.5 in", 4.5}}},
        {"OvAFPCS",
         "AC Overlay of Fractured PCC Pavement Cross Section\nTotal Thickness 21.5 in",
         {{"Existing Subgrade", 3.0},
          {"Subbase \n5.0 in", 5.0},
          {"Fractured Slab \n10.0 in", 10.0},
          {"AC Overlay \n6.5 in", 6.5}}},
        {"OvWTCS",
         "Whitetopping Design Cross Section\nTotal Thickness 20.0 in",
         {{"Existing Subgrade", 3.0},
          none,
          none,
          none,
          none,
          {"Crushed Stone Base\n8.0 in", 8.0},
          {"Flexible Surface\n3.0 in", 3.0},
          {"Whitetopping Thickness \n9.0 in", 9.0}}},
        {"OvAACS",
         "AC Overlay of AC Pavement Cross Section\nTotal Thickness 13.5 in",
         {{"Existing Subgrade", 3.0},
          none,
          none,
          none,
          none,
          {"Crushed Stone Base\n8.0 in", 8.0},
          {"Flexible Surface\n3.0 in", 3.0},
          {"AC Overlay \n2.5 in", 2.5}}},
        {"OvAPCS",
         "AC Overlay of PCC Pavement Cross Section\nTotal Thickness 17.0 in",
         {{"Existing Subgrade", 3.0},
          {"Subbase \n5.0 in", 5.0},
          {"Existing PCC Thickness \n8.0 in", 8.0},
          {"AC Overlay Thickness \n4.0 in", 4.0}}},
    };
}

TEST_F(SectionChartsTest, EachFormHoldsItsSectionInEnglishUnits) {
    StoreAll();
    for (const Section& section : EnglishSections()) {
        const ChartData chart = Open(section.form);
        ExpectSection(chart, section);
        EXPECT_EQ(chart.ceiling, 0.0);
        Close(section.form);
    }
}

/// Millimetres: 25.4 for an inch, shown to a tenth; labels and totals in whole ones.
std::vector<Section> MetricSections() {
    const Row none{kHidden, 0.0};
    return {
        {"DeFCS",
         "Flexible Design Cross Section\nTotal Thickness is 292 mm",  // 38.1 + 101.6 + 152.4 = 292.1
         {{"Subgrade", 76.2},
          none,
          none,
          {"Gravel Base\n152 mm", 152.4},
          none,
          {"Asphalt Treated Base\n102 mm", 101.6},
          {"Asphalt Surface Course\n38 mm", 38.1}}},
        {"DeRCS",
         "Rigid Pavement Design Cross Section\nTotal Thickness 394 mm",  // 152.4 + 241.3 = 393.7
         {{"Subgrade", 76.2}, {"Base Thickness \n152 mm", 152.4}, {"PCC Thickness\n241 mm", 241.3}}},
        {"OvBPCS",
         "Bonded Overlay Design Cross Section\nTotal Thickness 279 mm",  // 203.2 + 76.2 = 279.4
         {{"Existing Subbase and Subgrade", 76.2},
          {"Existing PCC Thickness\n203 mm", 203.2},
          {"Bonded PCC Thickness \n76 mm", 76.2}}},
        {"OvUPCS",
         "Unbonded PCC Overlay Cross Section\nTotal Thickness 381 mm",
         {{"Existing Subbase and Subgrade", 76.2},
          {"Existing PCC Thickness\n203 mm", 203.2},
          {"Interlayer", 25.4},
          {"Unbonded PCC Thickness \n178 mm", 177.8}}},
        {"OvAAPCS",
         "AC Overlay of AC/PCC Pavement Cross Section\nTotal Thickness 368 mm",  // 203.2 + 50.8 + 114.3
         {{"Existing Subbase and Subgrade", 76.2},
          {"Existing PCC Thickness \n203 mm", 203.2},
          {"Existing AC Thickness \n51 mm", 50.8},
          {"AC Overlay \n114 mm", 114.3}}},
        {"OvAFPCS",
         "AC Overlay of Fractured PCC Pavement Cross Section\nTotal Thickness 546 mm",  // 546.1
         {{"Existing Subgrade", 76.2},
          {"Subbase \n127 mm", 127.0},
          {"Fractured Slab \n254 mm", 254.0},
          {"AC Overlay \n165 mm", 165.1}}},
        {"OvWTCS",
         "Whitetopping Design Cross Section\nTotal Thickness 508 mm",
         {{"Existing Subgrade", 76.2},
          none,
          none,
          none,
          none,
          {"Crushed Stone Base\n203 mm", 203.2},
          {"Flexible Surface\n76 mm", 76.2},
          {"Whitetopping Thickness \n229 mm", 228.6}}},
        {"OvAACS",
         "AC Overlay of AC Pavement Cross Section\nTotal Thickness 343 mm",  // 342.9
         {{"Existing Subgrade", 76.2},
          none,
          none,
          none,
          none,
          {"Crushed Stone Base\n203 mm", 203.2},
          {"Flexible Surface\n76 mm", 76.2},
          {"AC Overlay \n64 mm", 63.5}}},
        {"OvAPCS",
         "AC Overlay of PCC Pavement Cross Section\nTotal Thickness 432 mm",  // 431.8
         {{"Existing Subgrade", 76.2},
          {"Subbase \n127 mm", 127.0},
          {"Existing PCC Thickness \n203 mm", 203.2},
          {"AC Overlay Thickness \n102 mm", 101.6}}},
    };
}

TEST_F(SectionChartsTest, ASwitchOfUnitsDrawsTheOpenFormAnew) {
    StoreAll();
    for (const Section& section : MetricSections()) {
        program_.program.ChooseUnits(false);
        (void)Open(section.form);
        Metric();
        ExpectSection(Open(section.form), section);
        Close(section.form);
    }
}

TEST_F(SectionChartsTest, WithoutThicknessesOnlyTheFixedBandsAreThere) {
    for (const Section& full : EnglishSections()) {
        const ChartData chart = Open(full.form);
        SCOPED_TRACE(full.form);
        EXPECT_TRUE(chart.title.ends_with(" 0.0 in")) << chart.title;
        ASSERT_EQ(chart.rows.size(), full.rows.size());
        EXPECT_EQ(chart.rows[0].cells[0], 3.0);
        for (std::size_t i = 1; i < chart.rows.size(); ++i) {
            const bool interlayer = full.rows[i].label == "Interlayer";
            EXPECT_EQ(chart.rows[i].cells[0], interlayer ? 1.0 : 0.0);
            EXPECT_EQ(chart.rows[i].label, interlayer ? "Interlayer" : kHidden);
            EXPECT_EQ(chart.series[i].colour == "#FFFFFF", !interlayer);
        }
    }
}

TEST_F(SectionChartsTest, SixLayersAreDrawnFromTheTopDown) {
    for (int row = 1; row <= 6; ++row) {
        SetText("LDLayerMat", "Layer " + std::to_string(row), row);
        Set("LDLayerThick", row, row);
    }
    const ChartData chart = Open("DeFCS");
    EXPECT_EQ(chart.title, "Flexible Design Cross Section\nTotal Thickness is 21.0 in");
    ASSERT_EQ(chart.rows.size(), 7U);
    EXPECT_EQ(chart.rows[1].label, "Layer 6\n6.0 in");
    EXPECT_EQ(chart.rows[6].label, "Layer 1\n1.0 in");
}

TEST_F(SectionChartsTest, ALayerThatIsShownAsZeroCountsAsZero) {
    Set("DEPTH", 0.04);
    Set("SBD", 6.0);
    const ChartData chart = Open("DeRCS");
    EXPECT_EQ(chart.title, "Rigid Pavement Design Cross Section\nTotal Thickness 6.0 in");
    EXPECT_EQ(chart.rows[2].label, kHidden);
    EXPECT_EQ(chart.rows[2].cells[0], 0.0);
}

TEST_F(SectionChartsTest, TheTotalIsThatOfTheShownThicknesses) {
    Set("EXISTDEPTH", 4.04);
    Set("BOLDEPTH", 4.04);
    const ChartData chart = Open("OvBPCS");
    EXPECT_EQ(chart.rows[1].cells[0], 4.0);
    EXPECT_EQ(chart.title, "Bonded Overlay Design Cross Section\nTotal Thickness 8.0 in");
}

TEST_F(SectionChartsTest, TheThinnerOfTwoPavementsHasTheTotalOfTheOtherAsItsCeiling) {
    StoreAll();  // 11.5 in flexible, 15.5 in rigid
    const ChartData flexible = Open("DeSCS", "Chart1");
    const ChartData rigid = Open("DeSCS", "Chart2");
    EXPECT_EQ(flexible.title, "Flexible Design Cross Section");
    EXPECT_EQ(rigid.title, "Rigid Pavement Design Cross Section");
    EXPECT_EQ(flexible.ceiling, 15.5);
    EXPECT_EQ(rigid.ceiling, 0.0);
    EXPECT_EQ(flexible.rows.size(), 7U);
    EXPECT_EQ(rigid.rows.size(), 3U);
    Close("DeSCS");
    Set("LDLayerThick", 12.0, 5);
    EXPECT_EQ(Open("DeSCS", "Chart1").ceiling, 0.0);
    EXPECT_EQ(Open("DeSCS", "Chart2").ceiling, 23.5);
    Close("DeSCS");
    Set("DEPTH", 17.5);  // as thick as the other
    EXPECT_EQ(Open("DeSCS", "Chart1").ceiling, 0.0);
    EXPECT_EQ(Open("DeSCS", "Chart2").ceiling, 23.5);
}

TEST_F(SectionChartsTest, EveryDesignAndOverlayScreenLeadsToItsSection) {
    for (const char* screen :
         {"DeF", "DeR", "DeS", "OvAA", "OvAFP", "OvAP", "OvAAP", "OvBP", "OvUP", "OvWT"}) {
        SCOPED_TRACE(screen);
        ASSERT_TRUE(program_.program.Raise({UserEvent::Kind::OpenForm, screen}));
        const Form* form = program_.program.state().formRegistry.CurrentForm;
        EXPECT_EQ(form->Get("cmdbCS").text, "&Cross Section");
        ASSERT_TRUE(program_.program.Raise({UserEvent::Kind::Press, "cmdbCS"}));
        EXPECT_EQ(program_.program.state().formRegistry.CurrentForm->name(), std::string(screen) + "CS");
    }
}

TEST_F(SectionChartsTest, NumbersBeyondAllRoadsLeaveTheProgramRunning) {
    Set("SBD", 1.7e308);
    Set("DEPTH", 1.7e308);
    (void)Open("DeRCS");
    (void)Open("DeSCS");
    EXPECT_EQ(program_.program.state().formRegistry.CurrentForm->name(), "DeSCS");
}

TEST(MaterialsTest, TheNamesOfTheListsTellTheMaterial) {
    for (const auto& [name, material] :
         std::map<std::string, Material>{{"Asphalt Surface Course", Material::Asphalt},
                                         {"Asphalt Binder Course", Material::Asphalt},
                                         {"Asphalt Treated Base", Material::Treated},
                                         {"Bituminous Stabilized Base", Material::Treated},
                                         {"Recycled Asphalt Base", Material::Asphalt},
                                         {"Cement Treated Base", Material::Treated},
                                         {"Cement Fly Ash", Material::Treated},
                                         {"Lime Stabilized Base", Material::Treated},
                                         {"Graded Stone Base", Material::Granular},
                                         {"Crushed Stone Base", Material::Granular},
                                         {"Gravel Base", Material::Granular},
                                         {"Granular Subbase", Material::Granular},
                                         {"Sand Subbase", Material::Granular},
                                         {"Lime Stabilized Subgrade", Material::Treated},
                                         {"Flexible Surface", Material::Asphalt},
                                         {"AC", Material::Asphalt},
                                         {"Portland Cement Concrete", Material::Concrete},
                                         {"asphalt concrete", Material::Asphalt},
                                         {"Rigid Base", Material::Concrete},
                                         {"Sandstone Aggregate", Material::Granular},
                                         {"Limestone", Material::Granular},
                                         {"Something", Material::Other},
                                         {"", Material::Other}}) {
        EXPECT_EQ(MaterialNamed(name), material) << name;
    }
}

}  // namespace
}  // namespace kelvor::test

#include "drawing/section_scene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "drawing/hatches.h"
#include "drawing/svg.h"
#include "drawing/text_width.h"

namespace kelvor::test {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// A flexible pavement: 2 in over 6 in over 12 in, with a layer that was left out.
ChartData Section() {
    ChartData sheet;
    sheet.kind = ChartKind::Section;
    sheet.title = "Flexible Design Cross Section\nTotal Thickness is 20.0 in";
    sheet.up = {.title = "in", .picture = "#,##0.0"};
    sheet.series = {{"Subgrade", "#AA8866", Material::Subgrade},
                    {"Gravel Base", "#DDCC99", Material::Granular},
                    {"      ", "#FFFFFF", Material::Other},
                    {"Cement Treated Base", "#BBBB99", Material::Treated},
                    {"Asphalt Surface Course", "#333333", Material::Asphalt}};
    sheet.rows = {{"Subgrade", {3.0}},
                  {"Gravel Base\n12.0 in", {12.0}},
                  {"      ", {0.0}},
                  {"Cement Treated Base\n6.0 in", {6.0}},
                  {"Asphalt Surface Course\n2.0 in", {2.0}}};
    return sheet;
}

std::vector<shape::Rectangle> Bands(const Scene& scene) {
    std::vector<shape::Rectangle> bands;
    for (const Shape& shape : scene.shapes) {
        const auto* rectangle = std::get_if<shape::Rectangle>(&shape);
        if (rectangle != nullptr && !rectangle->name.empty()) bands.push_back(*rectangle);
    }
    return bands;
}

std::vector<std::string> Texts(const Scene& scene) {
    std::vector<std::string> texts;
    for (const Shape& shape : scene.shapes) {
        if (const auto* text = std::get_if<shape::Text>(&shape)) texts.push_back(text->text);
    }
    return texts;
}

const shape::Text& FindText(const Scene& scene, const std::string& wanted) {
    for (const Shape& shape : scene.shapes) {
        const auto* text = std::get_if<shape::Text>(&shape);
        if (text != nullptr && text->text == wanted) return *text;
    }
    throw std::runtime_error("there is no text " + wanted);
}

TEST(SectionSceneTest, BandsAreInTheRatioOfTheThicknessesFromTheLowestUp) {
    const auto bands = Bands(MakeSectionScene(Section(), {}));
    ASSERT_EQ(bands.size(), 4U);
    EXPECT_EQ(bands[0].name, "Subgrade");
    EXPECT_EQ(bands[3].name, "Asphalt Surface Course 2.0 in");
    const double inch = bands[1].height / 12.0;
    EXPECT_NEAR(bands[0].height, 3.0 * inch, 1e-9);
    EXPECT_NEAR(bands[2].height, 6.0 * inch, 1e-9);
    EXPECT_NEAR(bands[3].height, 2.0 * inch, 1e-9);
    for (std::size_t i = 1; i < bands.size(); ++i) {
        EXPECT_NEAR(bands[i].corner.y + bands[i].height, bands[i - 1].corner.y, 1e-9);
    }
}

TEST(SectionSceneTest, AHiddenLayerLeavesNoTrace) {
    ChartData without = Section();
    without.rows.erase(without.rows.begin() + 2);
    without.series.erase(without.series.begin() + 2);
    EXPECT_EQ(MakeSectionScene(Section(), {}), MakeSectionScene(without, {}));
}

TEST(SectionSceneTest, LabelsThicknessesTotalAndLegendAreToRead) {
    const Scene scene = MakeSectionScene(Section(), {});
    EXPECT_EQ(scene.title, "Flexible Design Cross Section, Total Thickness is 20.0 in");
    for (const char* text : {"Flexible Design Cross Section", "Total Thickness is 20.0 in", "Gravel Base",
                             "12.0 in", "Cement Treated Base", "6.0 in", "Asphalt Surface Course", "2.0 in",
                             "20.0 in", "Subgrade", "Asphalt", "Treated base", "Granular base"}) {
        EXPECT_THAT(Texts(scene), Contains(text));
    }
    EXPECT_THAT(Texts(scene), Not(Contains("3.0 in"))) << "the subgrade has no thickness";
    EXPECT_THAT(Texts(scene), Not(Contains("Concrete"))) << "there is none";
}

TEST(SectionSceneTest, AThinLayerHasItsLabelAndNoneLiesOverAnother) {
    ChartData sheet = Section();
    sheet.rows[1].cells = {100.0};
    sheet.rows[3] = {"Binder\n0.5 in", {0.5}};
    sheet.rows[4] = {"Surface\n0.5 in", {0.5}};
    const Scene scene = MakeSectionScene(sheet, {});
    const double upper = FindText(scene, "Surface").place.y;
    const double lower = FindText(scene, "Binder").place.y;
    EXPECT_GE(lower - upper, 2.0 * FindText(scene, "Surface").size);
    EXPECT_GT(upper, 30.0);
    EXPECT_LT(FindText(scene, "Subgrade").place.y, scene.height);
    EXPECT_NEAR(Bands(scene)[2].height / Bands(scene)[1].height, 0.005, 1e-9);
}

TEST(SectionSceneTest, TwoSectionsHaveOneScaleByTheCeiling) {
    ChartData thin = Section();
    thin.rows[1].cells = {4.0};  // 12 in in all
    thin.ceiling = 20.0;
    const auto thick = Bands(MakeSectionScene(Section(), {400.0, 300.0}));
    const auto other = Bands(MakeSectionScene(thin, {400.0, 300.0}));
    EXPECT_NEAR(other[1].height / 4.0, thick[1].height / 12.0, 1e-9);
    EXPECT_NEAR(other[0].corner.y, thick[0].corner.y, 1e-9) << "they stand on one subgrade";
}

TEST(SectionSceneTest, AnInterlayerIsOutsideTheTotal) {
    ChartData sheet = Section();
    sheet.rows[3] = {"Interlayer", {1.0}};
    sheet.series[3].material = Material::Interlayer;
    EXPECT_THAT(Texts(MakeSectionScene(sheet, {})), Contains("14.0 in"));  // 12 and 2
}

TEST(SectionSceneTest, WithoutLayersTheSubgradeLiesInTheLowerHalf) {
    ChartData sheet = Section();
    for (std::size_t i = 1; i < sheet.rows.size(); ++i) sheet.rows[i].cells = {0.0};
    const auto bands = Bands(MakeSectionScene(sheet, {}));
    ASSERT_EQ(bands.size(), 1U);
    EXPECT_GT(bands[0].corner.y, 150.0);
    sheet.rows.clear();
    sheet.series.clear();
    EXPECT_THAT(Bands(MakeSectionScene(sheet, {})), IsEmpty());
}

TEST(SectionSceneTest, TheHeightsInTheFileAreInRatioToo) {
    const std::string svg = ToSvg(MakeSectionScene(Section(), {}));
    const auto heightOf = [&](const std::string& name) {
        const std::size_t title = svg.find("<title>" + name + "</title></rect>");
        const std::size_t rect = svg.rfind("<rect", title);
        const std::size_t height = svg.find("height=\"", rect) + 8;
        return std::stod(svg.substr(height));
    };
    EXPECT_NEAR(heightOf("Gravel Base 12.0 in") / heightOf("Asphalt Surface Course 2.0 in"), 6.0, 0.02);
    EXPECT_THAT(svg, Not(HasSubstr("#FFFFFF\"><title>")));
}

/// The outermost points of a mark.
struct Extent {
    double left = 1e9;
    double top = 1e9;
    double right = -1e9;
    double bottom = -1e9;

    void Take(Point point) {
        left = std::min(left, point.x);
        right = std::max(right, point.x);
        top = std::min(top, point.y);
        bottom = std::max(bottom, point.y);
    }

    void operator()(const shape::Line& line) {
        for (const Point& point : line.points) Take(point);
    }
    void operator()(const shape::Polygon& polygon) {
        for (const Point& corner : polygon.corners) Take(corner);
    }
    void operator()(const shape::Ellipse& e) {
        Take({e.centre.x - e.radiusX, e.centre.y - e.radiusY});
        Take({e.centre.x + e.radiusX, e.centre.y + e.radiusY});
    }
    void operator()(const shape::Rectangle& r) {
        Take(r.corner);
        Take({r.corner.x + r.width, r.corner.y + r.height});
    }
    void operator()(const shape::Text& /*text*/) {}
};

TEST(HatchesTest, NoMarkReachesOutOfItsLayer) {
    for (const Material material : {Material::Other, Material::Asphalt, Material::Concrete, Material::Treated,
                                    Material::Granular, Material::Interlayer, Material::Subgrade}) {
        for (const double height : {1.0, 3.0, 11.0, 90.0}) {
            Scene scene;
            DrawHatched(scene, {{10.0, 20.0}, 130.0, height, "#CCCCCC"}, material);
            const bool marked = material != Material::Asphalt && height > 2.5;
            EXPECT_TRUE(marked || scene.shapes.size() == 1U) << NameOf(material) << " " << height;
            EXPECT_TRUE(!marked || height < 10.0 || scene.shapes.size() > 3U) << NameOf(material);
            Extent extent;
            for (const Shape& shape : scene.shapes) std::visit(extent, shape);
            EXPECT_GE(extent.left, 10.0) << NameOf(material) << " " << height;
            EXPECT_LE(extent.right, 140.0) << NameOf(material) << " " << height;
            EXPECT_GE(extent.top, 20.0) << NameOf(material) << " " << height;
            EXPECT_LE(extent.bottom, 20.0 + height) << NameOf(material) << " " << height;
        }
    }
}

TEST(TextWidthTest, ATextIsShortenedToItsRoom) {
    EXPECT_EQ(FitText("Base", 9.0, 100.0), "Base");
    const std::string cut = FitText("Bituminous Stabilized Base", 9.0, 60.0);
    EXPECT_TRUE(cut.starts_with("Bitum"));
    EXPECT_TRUE(cut.ends_with("\u2026"));
    EXPECT_LE(TextWidth(cut, 9.0), 60.0);
    EXPECT_EQ(FitText("\u00e9\u00e9\u00e9\u00e9", 10.0, 25.0), "\u00e9\u2026");
}

}  // namespace
}  // namespace kelvor::test

#include "drawing/plot_scene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "drawing/picture_file.h"
#include "drawing/plot_axis.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;

template <typename Kind>
std::vector<Kind> ShapesOf(const Scene& scene) {
    std::vector<Kind> shapes;
    for (const Shape& shape : scene.shapes) {
        if (const auto* kind = std::get_if<Kind>(&shape)) shapes.push_back(*kind);
    }
    return shapes;
}

ChartData Costs() {
    ChartData sheet;
    sheet.kind = ChartKind::GroupedBars;
    sheet.title = "Costs";
    sheet.series = {{"A", "#1F5FBF"}, {"B", "#BF5F1F"}};
    sheet.rows = {{"0", {100.0, 50.0}}, {"1", {25.0, std::nullopt}}};
    return sheet;
}

TEST(PlotSceneTest, BarsAreInTheRatioOfTheirValues) {
    std::vector<double> heights;
    for (const auto& bar : ShapesOf<shape::Rectangle>(MakePlotScene(Costs(), {}))) {
        if (!bar.name.empty()) heights.push_back(bar.height);
    }
    ASSERT_EQ(heights.size(), 3U) << "an empty cell has no bar";
    EXPECT_NEAR(heights[0] / heights[1], 4.0, 1e-9);
    EXPECT_NEAR(heights[0] / heights[2], 2.0, 1e-9);
}

TEST(PlotSceneTest, ValuesStandAboveBarsThatAreWideEnoughForThem) {
    ChartData sheet = Costs();
    sheet.showsValues = true;
    const auto hasValue = [&] {
        const auto texts = ShapesOf<shape::Text>(MakePlotScene(sheet, {}));
        return std::any_of(texts.begin(), texts.end(), [](const auto& text) { return text.text == "25"; });
    };
    EXPECT_TRUE(hasValue());
    for (int year = 2; year <= 40; ++year) sheet.rows.push_back({std::to_string(year), {30.0, 40.0}});
    EXPECT_FALSE(hasValue());
}

TEST(PlotSceneTest, LinesAndPointsStandAtTheirLabels) {
    ChartData sheet = Costs();
    sheet.kind = ChartKind::Points;
    sheet.rows = {{"0", {12.0}}, {"20", {6.0}}, {"60", {3.0}}};
    sheet.series.pop_back();
    const auto points = ShapesOf<shape::Ellipse>(MakePlotScene(sheet, {}));
    ASSERT_EQ(points.size(), 3U);
    EXPECT_NEAR((points[2].centre.x - points[0].centre.x) / (points[1].centre.x - points[0].centre.x), 3.0,
                1e-9);
    EXPECT_NEAR((points[2].centre.y - points[0].centre.y) / (points[1].centre.y - points[0].centre.y),
                9.0 / 6.0, 1e-9);
}

TEST(PlotSceneTest, ASeriesOfHollowPointsIsNeverJoinedAndSaysSoInTheLegend) {
    ChartData sheet = Costs();
    sheet.series = {{"Test", "#2F7FD6"}, {.name = "Left out", .colour = "#808080", .hollowPoints = true}};
    sheet.rows = {{"1", {200.0, std::nullopt}},
                  {"2", {std::nullopt, 90.0}},
                  {"3", {std::nullopt, 80.0}},
                  {"4", {180.0, std::nullopt}}};
    sheet.kind = ChartKind::Line;
    const Scene scene = MakePlotScene(sheet, {});
    std::vector<shape::Ellipse> points = ShapesOf<shape::Ellipse>(scene);
    ASSERT_EQ(points.size(), 3U) << "two tests and their sign in the legend";
    for (const shape::Ellipse& point : points) {
        EXPECT_EQ(point.fill, scene.paper);
        EXPECT_EQ(point.stroke.colour, "#808080");
    }
    EXPECT_GT(points[2].centre.y, points[1].centre.y) << "the legend stands below";
    const auto texts = ShapesOf<shape::Text>(scene);
    EXPECT_TRUE(
        std::any_of(texts.begin(), texts.end(), [](const auto& text) { return text.text == "Left out"; }));
}

TEST(PlotAxisTest, AnAxisReachesAsFarAsTheDataInRoundNumbers) {
    ChartData sheet = Costs();
    sheet.rows[0].cells = {97.0};
    EXPECT_THAT(AxisUp(sheet).numbers, ElementsAre(0.0, 20.0, 40.0, 60.0, 80.0, 100.0));
    sheet.ceiling = 150.0;
    EXPECT_EQ(AxisUp(sheet).greatest, 150.0);
    sheet.rows.clear();
    sheet.ceiling = 0.0;
    EXPECT_EQ(AxisUp(sheet).greatest, 1.0) << "a chart without data";
}

TEST(PictureFileTest, APngFileIsAPictureOfTheSizeOfTheDrawing) {
    const TestHome home;
    NativeFileSystem files;
    WritePicture(files, home / "costs.PNG", MakePlotScene(Costs(), {480.0, 330.0}));
    const std::string png = ReadFile(home / "costs.PNG");
    ASSERT_GT(png.size(), 24U);
    EXPECT_EQ(png.substr(1, 3), "PNG");
    const auto number = [&](std::size_t at) {  // its size stands in the first chunk, high byte first
        return static_cast<unsigned char>(png[at]) * 256 + static_cast<unsigned char>(png[at + 1]);
    };
    EXPECT_EQ(number(18), 1280);  // 480 points at 192 dots an inch
    EXPECT_EQ(number(22), 880);
    EXPECT_THROW(WritePicture(files, home / "costs.gif", Scene{}), FileError);
    EXPECT_FALSE(IsPictureFile("costs.gif"));
    EXPECT_TRUE(IsPictureFile("costs.SVG"));
}

}  // namespace
}  // namespace kelvor::test

#include "drawing/plot_scene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "drawing/picture_file.h"
#include "drawing/plot_axis.h"
#include "drawing/text_width.h"
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

/// The texts above bars: those between the title and the line of labels, right of the axis.
std::vector<shape::Text> ValuesOf(const ChartData& sheet, const std::set<std::string>& values) {
    std::vector<shape::Text> found;
    for (const auto& text : ShapesOf<shape::Text>(MakePlotScene(sheet, {}))) {
        if (text.anchor == shape::Anchor::Middle && values.contains(text.text)) found.push_back(text);
    }
    return found;
}

TEST(PlotSceneTest, ValuesStandAboveTheirBars) {
    ChartData sheet = Costs();
    sheet.showsValues = true;
    EXPECT_EQ(ValuesOf(sheet, {"100", "50", "25"}).size(), 3U);
    sheet.rows.push_back({"2", {0.0, 0.0}});
    EXPECT_EQ(ValuesOf(sheet, {"100", "50", "25"}).size(), 3U);
}

TEST(PlotSceneTest, ALineOfOneValueIsAPoint) {
    ChartData sheet;
    sheet.kind = ChartKind::Line;
    sheet.series = {{"Test", "#1F5FBF"}};
    sheet.rows = {{"1", {100.0}}};
    EXPECT_EQ(ShapesOf<shape::Ellipse>(MakePlotScene(sheet, {})).size(), 1U);
    sheet.rows.push_back({"2", {50.0}});
    EXPECT_EQ(ShapesOf<shape::Ellipse>(MakePlotScene(sheet, {})).size(), 0U);
}

TEST(PlotSceneTest, AmongManyBarsTheFewWithValuesSayThem) {
    ChartData sheet = Costs();
    sheet.showsValues = true;
    sheet.rows = {{"1900", {77'777.0, 66'666.0}}};
    for (int year = 1901; year <= 1980; ++year) sheet.rows.push_back({std::to_string(year), {0.0, 0.0}});
    sheet.rows[40].cells = {55'555.0, 0.0};
    EXPECT_EQ(ValuesOf(sheet, {"77,777", "55,555"}).size(), 2U);
    EXPECT_EQ(ValuesOf(sheet, {"66,666"}).size(), 0U) << "it would stand across the bar beside it";
    EXPECT_EQ(ValuesOf(sheet, {"0"}).size(), 0U) << "no bar, no value";
}

TEST(PlotSceneTest, NoValueRunsIntoAnother) {
    ChartData sheet = Costs();
    sheet.showsValues = true;
    for (int year = 2; year <= 60; ++year) sheet.rows.push_back({std::to_string(year), {30'000.0, 30'000.0}});
    const std::vector<shape::Text> values = ValuesOf(sheet, {"30,000"});
    EXPECT_GT(values.size(), 3U);
    EXPECT_LT(values.size(), 60U);
    for (std::size_t i = 1; i < values.size(); ++i) {
        const double width = TextWidth("30,000", values[i].size);
        const bool besides = std::abs(values[i].place.x - values[i - 1].place.x) >= width;
        EXPECT_TRUE(besides || values[i].place.x < values[i - 1].place.x) << i;
    }
}

TEST(PlotSceneTest, ALegendWithoutRoomGoesOnInAnotherLine) {
    ChartData sheet = Costs();
    sheet.kind = ChartKind::Line;
    sheet.series = {{"Static modulus of subgrade reaction of every test", "#1F5FBF"},
                    {"Average of the tests that count", "#BF5F1F"},
                    {"Left out of the averages", "#808080"}};
    const DrawingSize small{300.0, 200.0};
    double lowest = 0.0;
    std::set<double> lines;
    for (const auto& text : ShapesOf<shape::Text>(MakePlotScene(sheet, small))) {
        for (const ChartSeries& series : sheet.series) {
            if (text.text != series.name) continue;
            lines.insert(text.place.y);
            EXPECT_LE(text.place.x + TextWidth(text.text, text.size), small.width) << text.text;
        }
        lowest = std::max(lowest, text.place.y);
    }
    EXPECT_GE(lines.size(), 2U);
    EXPECT_LE(lowest, small.height);
}

TEST(PlotSceneTest, LinesDifferByMoreThanTheirColours) {
    ChartData sheet = Costs();
    sheet.kind = ChartKind::Line;
    sheet.rows = {{"0", {100.0, 50.0}}, {"10", {60.0, 70.0}}, {"20", {20.0, 90.0}}};
    std::vector<double> dashes;
    for (const auto& line : ShapesOf<shape::Line>(MakePlotScene(sheet, {}))) {
        if (line.points.size() == 3) dashes.push_back(line.stroke.dash);
    }
    ASSERT_EQ(dashes.size(), 2U);
    EXPECT_EQ(dashes[0], 0.0);
    EXPECT_GT(dashes[1], 0.0);
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

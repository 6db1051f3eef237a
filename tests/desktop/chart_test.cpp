// Charts whose data sheet a screen changes while it is open.

#include <gmock/gmock.h>

#include <QBarSeries>
#include <QChart>
#include <QChartView>
#include <QLegendMarker>
#include <QScatterSeries>
#include <QStackedBarSeries>
#include <QTest>
#include <QValueAxis>

#include "console/model_driver.h"
#include "desktop/chart_view.h"
#include "desktop/desktop_fixture.h"
#include "forms/layout.h"

namespace kelvor::test {
namespace {

ChartData YearlyCosts() {
    ChartData chart;
    chart.kind = ChartKind::GroupedBars;
    chart.title = "Costs & years";
    chart.series = {{"Pavement A", "#1F5FBF"}, {"Pavement B", "#BF5F1F"}};
    chart.rows = {{"0", {100.0, 80.0}}, {"1", {5.0, std::nullopt}}, {"1", {0.0, 7.5}}};
    return chart;
}

/// The sheet that the button shows next.
ChartData nextSheet;

void ShowNext(ScreenEvent& event) { event.form.Get("Chart1").chart = nextSheet; }

FormType ChartForm() {
    FormType type;
    type.name = "Charts";
    type.tag = "Charts";
    type.layout = Rows({Chart("Chart1", YearlyCosts()), Buttons({{"Next", "&Next"}})});
    type.handlers = {{FormEvent::Click, "Next", HandlerOrder::Instead, ShowNext}};
    return type;
}

class ChartTest : public DesktopTest {
  protected:
    ChartTest() {
        state().formRegistry.Declare({ChartForm()});
        window().door().Raise({UserEvent::Kind::OpenForm, "Charts", {}, 0});
        QApplication::processEvents();
    }

    QWidget& Widget() { return *window().FindView("Charts")->FindWidget("Chart1"); }
    const QChart& Drawn() { return *dynamic_cast<const QChartView&>(Widget()).chart(); }

    const QValueAxis& AxisUp() {
        return *qobject_cast<const QValueAxis*>(Drawn().axes(Qt::Vertical).value(0));
    }

    /// Has the screen show another sheet, and returns what is then drawn.
    ChartData Show(ChartData sheet) {
        nextSheet = std::move(sheet);
        window().door().Raise({UserEvent::Kind::Press, "Next", {}, 0});
        QApplication::processEvents();
        return DrawnChart(Widget());
    }

    static void ExpectSame(const ChartData& drawn, const ChartData& sheet) {
        EXPECT_EQ(drawn.title, sheet.title);
        EXPECT_EQ(drawn.ceiling, sheet.ceiling);
        EXPECT_EQ(drawn.series, sheet.series);
        EXPECT_EQ(drawn.rows, sheet.rows);
    }
};

TEST_F(ChartTest, GroupedBarsAreDrawnAsTheSheetHasThem) {
    ExpectSame(DrawnChart(Widget()), YearlyCosts());
    ASSERT_NE(qobject_cast<QBarSeries*>(Drawn().series().value(0)), nullptr);
    EXPECT_GE(AxisUp().max(), 100.0);
    EXPECT_EQ(AxisUp().min(), 0.0);
}

TEST_F(ChartTest, ACellATitleAColourAndASeriesMayChange) {
    ChartData sheet = YearlyCosts();
    sheet.title = "Present  Worth\nTotal <all> 250.0";
    sheet.rows[1].cells = {6.0, 9.0, 250.0};
    sheet.rows[0].cells.emplace_back(1.0);
    sheet.rows[2].cells.emplace_back(std::nullopt);
    sheet.series[1].colour = "#FFFFFF";
    sheet.series.push_back({"Pavement C", "#00AA00"});
    ExpectSame(Show(sheet), sheet);
    EXPECT_GE(AxisUp().max(), 250.0) << "the axis follows the data";
    sheet.series.clear();
    sheet.rows.clear();
    ExpectSame(Show(sheet), sheet);
}

TEST_F(ChartTest, ACeilingIsTheMaximumOfTheAxis) {
    ChartData sheet = YearlyCosts();
    sheet.ceiling = 123.0;
    ExpectSame(Show(sheet), sheet);
    EXPECT_EQ(AxisUp().max(), 123.0);
    sheet.ceiling = 0.0;
    ExpectSame(Show(sheet), sheet);
    EXPECT_NE(AxisUp().max(), 123.0);
}

TEST_F(ChartTest, LayersAreStackedFromTheLowestUp) {
    ChartData section;
    section.kind = ChartKind::StackedBars;
    section.title = "Cross Section\nTotal Thickness is 13.0 in";
    section.series = {
        {"Subgrade", "#8B5A2B"}, {"Gravel Base", "#C0A060"}, {"      ", "#FFFFFF"}, {"AC", "#303030"}};
    section.rows = {{"Subgrade\n3.0 in", {3.0}},
                    {"Gravel Base\n8.0 in", {8.0}},
                    {"      ", {0.0}},
                    {"AC\n5.0 in", {5.0}}};
    ExpectSame(Show(section), section);
    ASSERT_NE(qobject_cast<QStackedBarSeries*>(Drawn().series().value(0)), nullptr);
    EXPECT_GE(AxisUp().max(), 16.0);
    EXPECT_LT(AxisUp().max(), 32.0);
    const QImage picture = Widget().grab().toImage();
    bool layerIsSeen = false;
    for (int y = 0; y < picture.height() && !layerIsSeen; ++y) {
        for (int x = 0; x < picture.width() && !layerIsSeen; ++x) {
            layerIsSeen = picture.pixelColor(x, y) == QColor("#C0A060");
        }
    }
    EXPECT_TRUE(layerIsSeen);
}

TEST_F(ChartTest, PointsAndLinesHaveTheirLabelsAcross) {
    ChartData basin;
    basin.title = "Deflection basin";
    basin.across = {.title = "Distance", .picture = "0"};
    basin.up = {.title = "Deflection", .picture = "0.00"};
    basin.series = {{"measured", "#AA0000"}, {"worked out", "#0000AA"}};
    basin.rows = {{"0", {12.25, std::nullopt}}, {"24", {6.5, 6.25}}, {"60", {std::nullopt, 2.0}}};
    for (const ChartKind kind : {ChartKind::Points, ChartKind::Line}) {
        basin.kind = kind;
        ExpectSame(Show(basin), basin);
        EXPECT_GE(AxisUp().max(), 12.25);
        const auto* across = qobject_cast<const QValueAxis*>(Drawn().axes(Qt::Horizontal).value(0));
        ASSERT_NE(across, nullptr);
        EXPECT_GE(across->max(), 60.0);
    }
}

TEST_F(ChartTest, ASeriesOfHollowPointsStandsBesideLinesAndPoints) {
    ChartData tests;
    tests.title = "Static k";
    tests.series = {{"Test", "#2F7FD6"}, {.name = "Left out", .colour = "#808080", .hollowPoints = true}};
    tests.rows = {{"1", {200.0, std::nullopt}}, {"2", {std::nullopt, 90.0}}, {"3", {180.0, std::nullopt}}};
    for (const ChartKind kind : {ChartKind::Line, ChartKind::Points}) {
        tests.kind = kind;
        ExpectSame(Show(tests), tests);
        const auto* leftOut = qobject_cast<const QScatterSeries*>(Drawn().series().value(1));
        ASSERT_NE(leftOut, nullptr) << "no line joins what is left out";
        EXPECT_EQ(leftOut->pen().color(), QColor("#808080"));
        EXPECT_EQ(leftOut->brush().color().alpha(), 0);
        const auto markers = Drawn().legend()->markers(Drawn().series().value(1));
        ASSERT_EQ(markers.size(), 1);
        EXPECT_EQ(markers.first()->label(), "Left out");
        EXPECT_EQ(markers.first()->pen().color(), QColor("#808080")) << "also seen on a dark ground";
    }
}

TEST_F(ChartTest, WhatIsTheSameIsNotDrawnAgain) {
    const QAbstractSeries* before = Drawn().series().value(0);
    window().door().Raise({UserEvent::Kind::Focus, "Next", {}, 0});
    EXPECT_EQ(Drawn().series().value(0), before);
}

TEST_F(ChartTest, TheConsoleAndTheWindowTellTheSame) {
    ChartData sheet = YearlyCosts();
    sheet.ceiling = 300.0;
    const ChartData drawn = Show(sheet);
    ModelDriver driver(desktop.program(), [](const std::string&) {});
    ExpectSame(drawn, driver.Chart("Chart1"));
}

}  // namespace
}  // namespace kelvor::test

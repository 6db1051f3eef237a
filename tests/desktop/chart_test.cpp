// Charts whose data sheet a screen changes while it is open.

#include <gmock/gmock.h>

#include <QEvent>
#include <QImage>
#include <QTest>

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

    ChartView& View() { return dynamic_cast<ChartView&>(*window().FindView("Charts")->FindWidget("Chart1")); }

    /// How many dots of the drawing have a colour.
    int DotsOf(const char* colour) {
        const QImage picture = View().grab().toImage();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == QColor(colour);
        }
        return count;
    }

    /// Has the screen show another sheet, and returns what is then drawn.
    ChartData Show(ChartData sheet) {
        nextSheet = std::move(sheet);
        window().door().Raise({UserEvent::Kind::Press, "Next", {}, 0});
        QApplication::processEvents();
        return View().shown();
    }

    static void ExpectSame(const ChartData& drawn, const ChartData& sheet) {
        EXPECT_EQ(drawn.title, sheet.title);
        EXPECT_EQ(drawn.ceiling, sheet.ceiling);
        EXPECT_EQ(drawn.series, sheet.series);
        EXPECT_EQ(drawn.rows, sheet.rows);
    }
};

TEST_F(ChartTest, BarsAreDrawnAsTheSheetHasThem) {
    ExpectSame(View().shown(), YearlyCosts());
    // 105 against 87.5 in all, in bars of one width.
    const double ratio = static_cast<double>(DotsOf("#1F5FBF")) / DotsOf("#BF5F1F");
    EXPECT_NEAR(ratio, 105.0 / 87.5, 0.1);
}

TEST_F(ChartTest, ACellATitleAColourAndASeriesMayChange) {
    ChartData sheet = YearlyCosts();
    sheet.title = "Present  Worth\nTotal <all> 250.0";
    sheet.rows[1].cells = {6.0, 9.0, 250.0};
    sheet.rows[0].cells.emplace_back(1.0);
    sheet.rows[2].cells.emplace_back(std::nullopt);
    sheet.series[1].colour = "#AA00AA";
    sheet.series.push_back({"Pavement C", "#00AA00"});
    ExpectSame(Show(sheet), sheet);
    EXPECT_EQ(DotsOf("#BF5F1F"), 0);
    EXPECT_GT(DotsOf("#AA00AA"), 0);
    EXPECT_GT(DotsOf("#00AA00"), DotsOf("#1F5FBF"));
    EXPECT_EQ(View().accessibleName(), "Present  Worth, Total <all> 250.0");
    sheet.series.clear();
    sheet.rows.clear();
    ExpectSame(Show(sheet), sheet);
    EXPECT_EQ(DotsOf("#00AA00"), 0);
}

TEST_F(ChartTest, UnderAHigherCeilingTheBarsAreLower) {
    ChartData sheet = YearlyCosts();
    sheet.ceiling = 100.0;
    ExpectSame(Show(sheet), sheet);
    const int high = DotsOf("#1F5FBF");
    sheet.ceiling = 200.0;
    ExpectSame(Show(sheet), sheet);
    EXPECT_NEAR(DotsOf("#1F5FBF"), high / 2.0, 0.1 * high);
}

TEST_F(ChartTest, TheDrawingHasTheColoursAndTheLettersOfTheWindow) {
    QPalette dark;
    dark.setColor(QPalette::Base, QColor("#102030"));
    dark.setColor(QPalette::Text, QColor("#F0F0F0"));
    View().setPalette(dark);
    EXPECT_GT(DotsOf("#102030"), View().width() * View().height() / 2);
    const int letters = DotsOf("#F0F0F0");
    EXPECT_GT(letters, 0);
    QFont font = View().font();
    font.setPointSizeF(2.0 * font.pointSizeF());
    View().setFont(font);
    EXPECT_GT(DotsOf("#F0F0F0"), 2 * letters);
}

TEST_F(ChartTest, LeftOutTestsAreHollowAlsoOnADarkGround) {
    QPalette dark;
    dark.setColor(QPalette::Base, QColor("#102030"));
    View().setPalette(dark);
    ChartData tests;
    tests.kind = ChartKind::Points;
    tests.series = {{"Test", "#2F7FD6"}, {.name = "Left out", .colour = "#80C080", .hollowPoints = true}};
    tests.rows = {{"1", {200.0, std::nullopt}}, {"2", {std::nullopt, 90.0}}};
    ExpectSame(Show(tests), tests);
    // One point and one sign in the legend each: rings have less than half of the dots of disks and squares.
    EXPECT_GT(DotsOf("#80C080"), 0);
    EXPECT_LT(DotsOf("#80C080"), DotsOf("#2F7FD6") / 2);
}

/// Counts how often a widget is painted.
class Paints : public QObject {
  public:
    explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

TEST_F(ChartTest, WhatIsTheSameIsNotDrawnAgain) {
    const Paints paints(View());
    window().door().Raise({UserEvent::Kind::Focus, "Next", {}, 0});
    QApplication::processEvents();
    EXPECT_EQ(paints.count, 0);
    ChartData sheet = YearlyCosts();
    sheet.rows[0].cells[0] = 50.0;
    Show(sheet);
    EXPECT_EQ(paints.count, 1);
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

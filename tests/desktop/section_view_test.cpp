// Drawings of cross sections as they are seen: what is measured is measured in the picture of the window.

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>

#include "desktop/chart_view.h"
#include "desktop/desktop_fixture.h"
#include "desktop/drawing_menu.h"
#include "desktop/palettes.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class SectionViewTest : public DesktopTest {
  protected:
    ~SectionViewTest() override { QApplication::setPalette(LightPalette()); }

    void Set(const std::string& name, double inches, int row = 1) {
        state().dbWork.SetCell(name, row, 1, {inches, std::nullopt});
    }

    /// Asphalt, 4 in, over 12 in of gravel; rows 1 and 3 of the table.
    void StoreFlexible() {
        state().dbWork.SetCell("LDLayerMat", 1, 1, {std::nullopt, "Asphalt Surface Course"});
        state().dbWork.SetCell("LDLayerMat", 3, 1, {std::nullopt, "Gravel Base"});
        Set("LDLayerThick", 4.0, 1);
        Set("LDLayerThick", 12.0, 3);
    }

    QWidget& Open(const std::string& form, const char* control = "Chart1") {
        window().door().Raise({UserEvent::Kind::OpenForm, form});
        QApplication::processEvents();
        return *window().FindView(form)->FindWidget(control);
    }

    void Press(const std::string& button) {
        window().door().Raise({UserEvent::Kind::Press, button});
        QApplication::processEvents();
    }

    /// The greatest number of dots of a colour below each other in the picture of a widget.
    static int HeightOf(QWidget& widget, const QColor& colour) {
        const QImage picture = widget.grab().toImage();
        int most = 0;
        for (int x = 0; x < picture.width(); ++x) {
            int run = 0;
            for (int y = 0; y < picture.height(); ++y) {
                run = picture.pixelColor(x, y) == colour ? run + 1 : 0;
                most = std::max(most, run);
            }
        }
        return most;
    }

    /// The lowest dot of a colour, from the top.
    static int LowestOf(QWidget& widget, const QColor& colour) {
        const QImage picture = widget.grab().toImage();
        for (int y = picture.height() - 1; y >= 0; --y) {
            int count = 0;
            for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == colour ? 1 : 0;
            if (count > picture.width() / 8) return y;  // more than the legend has
        }
        return -1;
    }
};

const QColor kAsphalt("#333333");
const QColor kSubgrade("#B08D62");

TEST_F(SectionViewTest, BandsAreAsHighAsTheirLayersAreThick) {
    StoreFlexible();
    QWidget& chart = Open("DeFCS");
    const int asphalt = HeightOf(chart, kAsphalt);
    ASSERT_GT(asphalt, 30);
    const int subgrade = HeightOf(chart, kSubgrade);
    EXPECT_NEAR(subgrade, asphalt * 3.0 / 4.0, 3.0);
    // 12 in of gravel lie between them.
    const int asphaltEnd = LowestOf(chart, kAsphalt);
    const int subgradeEnd = LowestOf(chart, kSubgrade);
    EXPECT_NEAR(asphalt, (subgradeEnd - asphaltEnd) * 4.0 / 15.0, 3.0);
}

TEST_F(SectionViewTest, TwoPavementsStandOnOneSubgradeAtOneScale) {
    StoreFlexible();
    Set("SBD", 2.0);
    Set("DEPTH", 6.0);
    QWidget& flexible = Open("DeSCS");
    QWidget& rigid = *window().FindView("DeSCS")->FindWidget("Chart2");
    EXPECT_NEAR(HeightOf(flexible, kSubgrade), HeightOf(rigid, kSubgrade), 1.0);
    EXPECT_EQ(LowestOf(flexible, kSubgrade), LowestOf(rigid, kSubgrade));
}

TEST_F(SectionViewTest, TheDrawingHasTheColoursOfTheWindow) {
    StoreFlexible();
    for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
        QApplication::setPalette(palette);
        QWidget& chart = Open("DeFCS");
        EXPECT_EQ(chart.grab().toImage().pixelColor(1, 1), palette.color(QPalette::Base));
        EXPECT_GT(HeightOf(chart, kAsphalt), 30);
    }
}

TEST_F(SectionViewTest, AScreenReaderHearsTheLayersFromTheTopDown) {
    StoreFlexible();
    const QWidget& chart = Open("DeFCS");
    EXPECT_EQ(chart.accessibleName(), "Flexible Design Cross Section, Total Thickness is 16.0 in");
    EXPECT_EQ(chart.accessibleDescription(), "Asphalt Surface Course 4.0 in, Gravel Base 12.0 in, Subgrade");
}

TEST_F(SectionViewTest, ADrawingIsThereInAWink) {
    StoreFlexible();
    (void)Open("DeRCS");
    QElapsedTimer timer;
    timer.start();
    (void)Open("DeFCS").grab();
    EXPECT_LT(timer.elapsed(), 500);  // on whatever machine, under sanitizers too
}

// --- What can be done with a drawing -------------------------------------------------------------------

TEST_F(SectionViewTest, ItsMenuSavesItAsAFile) {
    StoreFlexible();
    QWidget& chart = Open("DeFCS");
    const Path file = home.home().folder / "section.svg";
    responder.QueueAnswer(file.string());
    QStringList entries;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (const QAction* action : menu->actions()) entries << action->text();
        menu->setActiveAction(menu->actions().constFirst());
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 20}, chart.mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(&chart, &event);
    EXPECT_THAT(entries, ElementsAre("Save as &SVG...", "Save as P&NG...", "&Copy", "&Print..."));
    EXPECT_THAT(ReadFile(file), HasSubstr("<title>Gravel Base 12.0 in</title>"));
}

TEST_F(SectionViewTest, ItIsSavedAsAPictureToo) {
    StoreFlexible();
    const auto& view = dynamic_cast<const ChartView&>(Open("DeFCS"));
    const Path file = home.home().folder / "section.png";
    SaveDrawing(state().host.files, view.shown(), file);
    const QImage picture(QString::fromStdString(file.string()));
    EXPECT_EQ(picture.width(), 1280);  // 480 points at 192 dots an inch
    EXPECT_THROW(SaveDrawing(state().host.files, view.shown(), home.home().folder / "section.gif"),
                 FileError);
}

TEST_F(SectionViewTest, CtrlCCopiesIt) {
    StoreFlexible();
    (void)Open("DeFCS");
    QApplication::clipboard()->clear();
    window().activateWindow();
    (void)QTest::qWaitForWindowActive(&window());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
    const QMimeData* copy = QApplication::clipboard()->mimeData();
    EXPECT_TRUE(copy->hasImage());
    EXPECT_THAT(copy->data("image/svg+xml").toStdString(), HasSubstr("Gravel Base"));
}

// --- Diagrams -------------------------------------------------------------------------------------------

TEST_F(SectionViewTest, TheBoxesOfADiagramLieOnEachOther) {
    Set("SBD", 1.0);
    Set("DEPTH", 100.0);
    (void)Open("DeRCS");
    Press("cmdbDiagram");
    const FormView& view = *window().FindView("CSec");
    const QWidget& upper = *view.FindWidget("CSLayer2");
    const QWidget& lower = *view.FindWidget("CSLayer1");
    EXPECT_NEAR(static_cast<double>(upper.height()) / lower.height(), 500.0 / 240.0, 0.05);
    EXPECT_EQ(lower.y(), upper.y() + upper.height());
    EXPECT_EQ(view.FindWidget("LabSubgrade")->y(), lower.y() + lower.height());
    EXPECT_TRUE(view.FindWidget("CSLayer3")->isHidden());
    EXPECT_TRUE(view.FindWidget("LabCSLayer3")->isHidden());
}

}  // namespace
}  // namespace kelvor::test

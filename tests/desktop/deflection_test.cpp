// Deflection tests by keys alone, from the start to the averages, and blocks of tests from a spreadsheet.

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <cmath>

#include "desktop/desktop_fixture.h"
#include "forms/form.h"
#include "platform/number_text.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DeflectionWindowTest : public KeyboardTest {
  protected:
    template <typename WidgetType>
    WidgetType& Find(const char* form, const char* name) {
        FormView* view = window().FindView(form);
        EXPECT_NE(view, nullptr) << form;
        auto* widget = view->findChild<WidgetType*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }

    std::string Shown(const char* form, const char* field) {
        return Find<QLineEdit>(form, field).text().toStdString();
    }

    /// From the start page to the tab of the overlays, where the first option is selected.
    void GoToOverlays() {
        for (int i = 0; i < 4; ++i) Press(Qt::Key_PageDown, Qt::ControlModifier);
        Press(Qt::Key_Return);
    }

    /// The screen of the option so many above the first one, round the group: its last three are those of
    /// deflection tests.
    void OpenFromTheEnd(int above) {
        for (int i = 0; i < above; ++i) Press(Qt::Key_Up);
        Press(Qt::Key_O, Qt::AltModifier);
    }

    void Paste(const QString& block) {
        QApplication::clipboard()->setText(block);
        Press(Qt::Key_V, Qt::ControlModifier);
    }
};

TEST_F(DeflectionWindowTest, FromTheStartToTheAveragesOfFlexibleTestsByKeysAlone) {
    GoToOverlays();
    Press(Qt::Key_O, Qt::AltModifier);  // the existing pavement
    while (QApplication::focusWidget()->objectName() != "Grid") Press(Qt::Key_Return);
    Press(Qt::Key_Right);
    TypeAndEnter("12");
    Press(Qt::Key_O, Qt::AltModifier);
    OpenFromTheEnd(3);
    for (const char* text : {"36", "0.33", "5.9"}) TypeAndEnter(text);
    for (const char* text : {"9,000", "18", "3.55", "wheel path"}) TypeAndEnter(text);
    EXPECT_EQ(Shown("ReDfF", "NDTEFFD"), "12");
    EXPECT_EQ(Shown("ReDfF", "AVGNDTRM"), "5,577");  // 9000 x 0.24 x 0.33 / (0.00355 x 36) psi
    Paste(QStringLiteral("10,000\t20\t5\r\n9,000\t18\t\r\n"));
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_EQ(Shown("ReDfF", "AVGNDTRM"), "4,989");  // with 10000 x 0.24 x 0.33 / (0.005 x 36) = 4400 psi
    EXPECT_EQ(Shown("ReDfF", "NDTRMCount"), "2");
}

TEST_F(DeflectionWindowTest, FromTheStartToTheAveragesOfRigidTestsByKeysAlone) {
    GoToOverlays();
    OpenFromTheEnd(2);
    for (const char* text : {"5.9", "", "9"}) TypeAndEnter(text);  // Poisson's ratio has its usual value
    Paste(QStringLiteral("9,000\t4\t3.4\t2.7\t2\n"));
    Press(Qt::Key_Down);
    for (const char* text : {"9,000", "4", "3.4", "2.7", "2"}) TypeAndEnter(text);
    EXPECT_THAT(Messages(), IsEmpty());
    // AREA = 6 (1 + 2 x 3.4 / 4 + 2 x 2.7 / 4 + 2 / 4) = 27.3 in, so l = 25.16 in by the Guide's formula.
    EXPECT_EQ(Shown("ReDfR", "AVGBACKL"), "25.2");
    EXPECT_EQ(Shown("ReDfR", "BACKLCount"), "2");
    EXPECT_EQ(Shown("ReDfR", "BACKLDeviation"), "0.0");
}

/// AREA and l of a test on 4 inches of asphalt of 500,000 psi that is bonded to its slab, by the formulas of
/// the 1993 AASHTO Guide, Part III, Section 5.7.
double RadiusOfComposite(double d0, double d12, double d24, double d36) {
    const double compression = 121'500.6 * std::pow(4.0 / 500'000.0, 1.0798) - 0.0328;
    const double area = 6.0 * (1.0 + (2.0 * d12 + 2.0 * d24 + d36) / (d0 - compression));
    return std::pow(std::log((36.0 - area) / 1812.2791333) / -2.55934, 4.387009);
}

TEST_F(DeflectionWindowTest, FromTheStartToTheAveragesOfCompositeTestsByKeysAlone) {
    Press(Qt::Key_N, Qt::ControlModifier);
    Press(Qt::Key_4, Qt::ControlModifier);
    OpenFromTheEnd(1);
    // Asphalt, bond, plate; Poisson's ratio has its usual value; slab.
    for (const char* text : {"500,000", "4", "1", "5.9", "", "9"}) TypeAndEnter(text);
    Paste(QStringLiteral("9,000\t4.5\t3.4\t2.7\t2\r\n9,000\t4.5\t3.4\t\t2\r\n"));
    const double pasted = RadiusOfComposite(4.5, 3.4, 2.7, 2.0);
    EXPECT_NEAR(ParseNumber(Shown("ReDfC", "AVGBACKLC")), pasted, 0.051);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    for (const char* text : {"9,000", "5", "4.1", "3.2", "2.4"}) TypeAndEnter(text);
    EXPECT_THAT(Messages(), IsEmpty());
    const double typed = RadiusOfComposite(5.0, 4.1, 3.2, 2.4);
    EXPECT_NEAR(ParseNumber(Shown("ReDfC", "AVGBACKLC")), (pasted + typed) / 2.0, 0.051);
    EXPECT_EQ(Shown("ReDfC", "BACKLCCount"), "2") << "the test without d24 does not count";
    EXPECT_NE(Shown("ReDfC", "AVGNDTEC"), "");
    Press(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(state().formRegistry.CurrentForm->type().isHub);
}

TEST_F(DeflectionWindowTest, ATestIsLeftOutOfTheSpreadByItsKeyAndTakenIn) {
    GoToOverlays();
    OpenFromTheEnd(3);
    for (const char* text : {"36", "0.33", "5.9"}) TypeAndEnter(text);
    Paste(QStringLiteral("9,000\t18\t3.55\n10,000\t20\t5\n"));
    EXPECT_EQ(Shown("ReDfF", "NDTRMMean"), "4,989");
    Press(Qt::Key_Down);
    Press(Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(Find<QCheckBox>("ReDfF", "LeftOut").isChecked());
    EXPECT_EQ(Shown("ReDfF", "NDTRMMean"), "5,577");
    EXPECT_EQ(Shown("ReDfF", "NDTRMCount"), "1");
    EXPECT_EQ(Shown("ReDfF", "AVGNDTRM"), "4,989");
    Press(Qt::Key_Space);
    EXPECT_FALSE(Find<QCheckBox>("ReDfF", "LeftOut").isChecked());
    EXPECT_EQ(Shown("ReDfF", "NDTRMCount"), "2");
}

TEST_F(DeflectionWindowTest, APastedBlockSaysWhichTestsItLeavesOut) {
    GoToOverlays();
    OpenFromTheEnd(2);
    for (const char* text : {"5.9", "", "9"}) TypeAndEnter(text);
    QString block;
    for (int row = 1; row <= 301; ++row) block += QStringLiteral("9,000\t4\t3.4\t2.7\t2\n");
    block.replace(0, 5, QStringLiteral("heavy"));
    Paste(block);
    EXPECT_THAT(Messages(), ElementsAre("2 rows were left out. The first is row 1, Load : Please enter valid "
                                        "numeric value."));
    EXPECT_EQ(Shown("ReDfR", "BACKLCount"), "299");
}

}  // namespace
}  // namespace kelvor::test

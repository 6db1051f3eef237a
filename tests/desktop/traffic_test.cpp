// From the start to a solved structural number over each of the three ways to the design traffic, by keys
// alone, and what the screens of traffic do with letters and pasted blocks.

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <cmath>

#include "desktop/desktop_fixture.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TrafficWindowTest : public KeyboardTest {
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

    /// 20 years without growth, axles of 18 kips: the counts times the periods are the ESALs.
    void EnterInputs(const char* periodLetter) {
        for (int i = 0; i < 2; ++i) Press(Qt::Key_PageDown, Qt::ControlModifier);
        Press(Qt::Key_Return);
        Press(Qt::Key_T, Qt::AltModifier);
        for (const char* text : {"9", "5", "2.5", "20", "0"}) TypeAndEnter(text);
        Type(periodLetter);
        Press(Qt::Key_O, Qt::AltModifier);
    }

    /// The option so many below the first one.
    void OpenRoute(int below) {
        for (int i = 0; i < below; ++i) Press(Qt::Key_Down);
        Press(Qt::Key_T, Qt::AltModifier);
    }

    void SolveStructuralNumber() {
        Press(Qt::Key_PageDown, Qt::ControlModifier);
        Press(Qt::Key_A, Qt::AltModifier);
        Press(Qt::Key_D, Qt::AltModifier);
        Press(Qt::Key_Return);  // the traffic stands there
        for (const char* text : {"95", "0.45", "5,000", "", "4.2", "2.5"}) TypeAndEnter(text);
        Press(Qt::Key_T, Qt::AltModifier);
        Press(Qt::Key_S, Qt::AltModifier);
        EXPECT_THAT(Messages(), IsEmpty());
    }

    /// The traffic that the 1993 AASHTO Guide's flexible equation gives for the structural number found.
    double TrafficOfTheGuide() {
        const double SN = state().dbWork.GetVar("SN").value();
        const double loss = std::log10((4.2 - 2.5) / (4.2 - 1.5));
        return std::pow(10.0, -1.645 * 0.45 + 9.36 * std::log10(SN + 1.0) - 0.20 +
                                  loss / (0.40 + 1094.0 / std::pow(SN + 1.0, 5.19)) +
                                  2.32 * std::log10(5000.0) - 8.07);
    }
};

TEST_F(TrafficWindowTest, FromTheStartOverAxleDataToAStructuralNumberByKeysAlone) {
    EnterInputs("y");
    OpenRoute(1);
    Type("s");
    Press(Qt::Key_Right);
    TypeAndEnter("18");
    TypeAndEnter("250,000");
    EXPECT_EQ(Shown("TrAx", "FLEXE18"), "5,000,000");  // 250,000 a year, 20 years
    EXPECT_EQ(Shown("TrAx", "RIGE18"), "5,000,000");
    Press(Qt::Key_O, Qt::AltModifier);
    SolveStructuralNumber();
    EXPECT_EQ(Shown("DeF", "FLEXE18"), "5,000,000");
    EXPECT_EQ(Shown("DeF", "SN"), "5.41");
    EXPECT_NEAR(TrafficOfTheGuide(), 5e6, 5e3);
}

TEST_F(TrafficWindowTest, FromTheStartOverVehiclesToAStructuralNumberByKeysAlone) {
    EnterInputs("m");
    OpenRoute(2);
    for (const char* text : {"10,000", "s", "18", "s", "18"}) TypeAndEnter(text);
    EXPECT_EQ(Find<QComboBox>("TrVe", "AT51").currentText(), "Single");
    EXPECT_EQ(Shown("TrVe", "TrPer"), "Month");
    EXPECT_EQ(Shown("TrVe", "FLEXE18"), "4,800,000");  // 10,000 vehicles with 2 axles, 240 months
    Press(Qt::Key_O, Qt::AltModifier);
    SolveStructuralNumber();
    EXPECT_EQ(Shown("DeF", "FLEXE18"), "4,800,000");
    EXPECT_NEAR(TrafficOfTheGuide(), 4.8e6, 4.8e3);
}

TEST_F(TrafficWindowTest, FromTheStartOverTrafficFactorsToAStructuralNumberByKeysAlone) {
    EnterInputs("d");
    OpenRoute(3);
    for (const char* text : {"500", "", "1.2", "1.9"}) TypeAndEnter(text);  // past the other option
    EXPECT_EQ(Shown("TrTr", "FLEXE18"), "4,383,000");  // 500 trucks, 1.2 each, 365.25 days, 20 years
    Press(Qt::Key_O, Qt::AltModifier);
    SolveStructuralNumber();
    EXPECT_EQ(Shown("DeF", "FLEXE18"), "4,383,000");
    EXPECT_NEAR(TrafficOfTheGuide(), 4.383e6, 4.4e3);
}

TEST_F(TrafficWindowTest, LettersInAListGiveItsWords) {
    EnterInputs("d");
    Press(Qt::Key_T, Qt::AltModifier);
    auto& period = Find<QComboBox>("TrFa", "TrPer");
    EXPECT_EQ(period.currentText(), "Day");
    period.lineEdit()->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    Type("m");
    EXPECT_EQ(period.currentText(), "Month");
    EXPECT_EQ(state().dbWork.GetVar("TrPer"), 2.0);
    Type("onth");
    EXPECT_EQ(period.currentText(), "Month");
    Type("y");
    EXPECT_EQ(period.currentText(), "Year");
}

TEST_F(TrafficWindowTest, ASpectrumIsPastedFromASpreadsheet) {
    EnterInputs("y");
    OpenRoute(1);
    QString block;
    for (int row = 0; row < 50; ++row) block += QStringLiteral("Single\t18\t100\r\n");
    QApplication::clipboard()->setText(block);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_EQ(Shown("TrAx", "FLEXE18"), "100,000");  // 50 rows of 100 a year, 20 years
    QApplication::clipboard()->setText("Tandem\t34\t10\nQuad\t18\t1\n");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_THAT(Messages(),
                ElementsAre("1 row was left out: row 2, Axle Type: Please select item from the list"));
}

}  // namespace
}  // namespace kelvor::test

// From the start to the verdict on two pavements and all pictures of their costs, by keys alone.

#include <gmock/gmock.h>

#include <QClipboard>
#include <QImage>
#include <QTest>
#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "desktop/desktop_fixture.h"
#include "desktop/widget_reading.h"

namespace kelvor::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class CostWindowTest : public KeyboardTest {
  protected:
    const Form& Current() { return *state().formRegistry.CurrentForm; }

    /// Alt and the access key of a control of the form in front.
    void PressAccessKeyOf(const char* control) {
        const char key = Current().Get(control).accessKey;
        ASSERT_NE(key, '\0') << control << " has no access key";
        Press(static_cast<Qt::Key>(std::toupper(static_cast<unsigned char>(key))), Qt::AltModifier);
    }

    /// What a label of a form shows.
    std::string Shown(const char* form, const char* label) {
        FormView* view = window().FindView(form);
        return view == nullptr ? std::string() : TextOf(*view->FindWidget(label));
    }

    void EnterFactors() {
        for (int i = 0; i < 5; ++i) Press(Qt::Key_PageDown, Qt::ControlModifier);
        ASSERT_EQ(Current().page(), 4);
        for (const char* text : {"7", "2.5", "", "35", "35"}) TypeAndEnter(text);
        EXPECT_EQ(state().dbWork.GetVar("AnalysisPeriodB").value(), 35.0);
    }

    /// Goes by Alt and its letter to an option, selects it, and presses the button that opens it.
    void OpenChoice(const char* option, const char* button) {
        PressAccessKeyOf(option);
        Press(Qt::Key_Space);
        EXPECT_TRUE(Current().Get(option).value) << option << ", the focus is on " << Current().focus->name;
        PressAccessKeyOf(button);
    }

    /// Copies the picture in front by its key. False if nothing arrives.
    bool CopiesPicture() {
        QApplication::clipboard()->clear();
        Press(Qt::Key_C, Qt::ControlModifier);
        return !QApplication::clipboard()->image().isNull();
    }

    /// "Layer 1, area", in the list of the cell under the cursor.
    void PickFirstItem() {
        Press(Qt::Key_F2);
        Press(Qt::Key_Down);
        Press(Qt::Key_Return);
    }

    /// The item that came along from the page before: picking it fills its quantity and its unit.
    void PickItemAnew() {
        Press(Qt::Key_F2);
        Press(Qt::Key_Down);
        Press(Qt::Key_Up);
        Press(Qt::Key_Return);
    }

    /// A pavement of one layer of 9,000 ft and 20 ft, 20,000 sq yd.
    void EnterPavement(const char* option, const char* unitCost, const char* yearly) {
        OpenChoice(option, "Command2");
        ASSERT_EQ(Current().name(), "LcA1") << testing::PrintToString(Messages());
        for (const char* text : {"", "9000", "", ""}) TypeAndEnter(text);  // description, lengths, joints
        PickFirstItem();
        for (const char* text : {"20", "6", "145"}) TypeAndEnter(text);
        const int pavement = Current().dim2().value_or(0);
        EXPECT_EQ(state().dbWork.GetVarDim("UnitWeight", 1, pavement).value(), 145.0);
        EXPECT_EQ(state().units->GetDisplayValue("LayerType", 1, pavement), "Layer 1, area");
        PressAccessKeyOf("NextPage");
        ASSERT_EQ(Current().name(), "LcA1_2") << testing::PrintToString(Messages());
        PickItemAnew();
        for (const char* text : {"", "", unitCost}) TypeAndEnter(text);  // quantity and unit are there
        PressAccessKeyOf("NextPage");
        PressAccessKeyOf("NextPage");
        ASSERT_EQ(Current().name(), "LcA1_4") << testing::PrintToString(Messages());
        for (const char* text : {"1", "", yearly}) TypeAndEnter(text);  // quantity, unit, unit cost
        PressAccessKeyOf("cmdAction");
    }
};

TEST_F(CostWindowTest, FromTheStartToTheVerdictAndAllPicturesByKeysAlone) {
    EnterFactors();
    EnterPavement("oLcA1", "40", "1000");
    EnterPavement("oLcA2", "44", "500");
    EXPECT_EQ(state().dbWork.GetVarDim("ItemTotal2", 1, 1).value(), 20'000.0 * 40.0);
    EXPECT_EQ(state().dbWork.GetVarDim("ItemTotal2", 1, 2).value(), 20'000.0 * 44.0);
    OpenChoice("oLcS", "Command2");
    EXPECT_EQ(Current().name(), "LcS");
    EXPECT_EQ(Shown("LcS", "CostDifference1"), "-80,000");
    EXPECT_THAT(Shown("LcS", "VERDICT"), HasSubstr("Pavement A costs"));
    PressAccessKeyOf("cmdAction");
    for (const char* graph : {"InitialCost", "MaintenanceCosts", "RehabilitationCosts", "PW", "EUAC"}) {
        OpenChoice(graph, "Command8");
        EXPECT_EQ(Current().name(), "CostChart") << graph;
        EXPECT_TRUE(CopiesPicture()) << graph;
        PressAccessKeyOf("cmdAction");
    }
    OpenChoice("ExpenditureHistogram", "Command8");
    EXPECT_EQ(Current().name(), "Histogr");
    EXPECT_THAT(Current().Get("Chart1").chart->rows, SizeIs(36)) << "years 0 to 35";
    EXPECT_TRUE(CopiesPicture());
    PressAccessKeyOf("cmdbClose");
    EXPECT_TRUE(Current().type().isHub);
    EXPECT_THAT(Messages(), IsEmpty());
}

}  // namespace
}  // namespace kelvor::test

// The pages of cost data as a user works in them.

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

#include "cost_fixture.h"
#include "platform/number_text.h"

namespace kelvor::test {
namespace {

class CostPagesTest : public CostTest {
  protected:
    void Open(const char* page, int pavement) { Raise({UserEvent::Kind::OpenForm, page, {}, pavement}); }
    void Press(const char* button) { Raise({UserEvent::Kind::Press, button, {}, 0}); }
    void EditCell(int row, const char* column, const std::string& text) {
        Raise({UserEvent::Kind::EditCell, column, text, row});
    }
    void Paste(int row, const char* column, const std::string& block) {
        Raise({UserEvent::Kind::MoveToCell, column, {}, row});
        Raise({UserEvent::Kind::PasteCells, {}, block, 0});
    }
    void Raise(const UserEvent& event) { program_.program.Raise(event); }
    bool& projectChanged() { return program_.program.state().bProjectChanged; }
    const Form& Page() { return *program_.program.state().formRegistry.CurrentForm; }
};

// --- Switches of units ------------------------------------------------------------------------------------

/// The columns of a page whose quantities follow a switch.
struct QuantityPage {
    const char* page;
    const char* quantity;
    const char* unit;
    int firstRow;
};

class TwentySwitchesTest : public CostPagesTest, public testing::WithParamInterface<QuantityPage> {
  protected:
    struct Image {
        std::vector<std::optional<double>> numbers;
        std::vector<std::optional<std::string>> texts;
        std::vector<std::optional<std::string>> units;
        bool operator==(const Image&) const = default;
    };

    Image TakeImage() {
        Image image;
        for (const int pavement : {1, 2}) {
            for (int row = 1; row <= 35; ++row) {
                image.numbers.push_back(Cell(GetParam().quantity, row, pavement));
                image.texts.push_back(Text(GetParam().quantity, row, pavement));
                image.units.push_back(Text(GetParam().unit, row, pavement));
            }
        }
        return image;
    }

    /// Quantities that were typed in the active system, with its units.
    void TypeQuantities(const std::vector<const char*>& units, unsigned seed) {
        std::mt19937 random(seed);
        std::uniform_real_distribution<double> quantity(0.001, 1e6);
        for (const int pavement : {1, 2}) {
            Open(GetParam().page, pavement);
            for (int row = GetParam().firstRow; row <= 35; ++row) {
                EditCell(row, GetParam().quantity, NumberToText(quantity(random)));
                EditCell(row, GetParam().unit, units[static_cast<std::size_t>(row) % units.size()]);
            }
        }
    }

    void SwitchThereAndBack(bool metric) {
        program_.program.ChooseUnits(!metric);
        program_.program.ChooseUnits(metric);
    }
};

TEST_P(TwentySwitchesTest, EveryTextStaysAndEveryNumberFromTheFirstReturnOn) {
    for (const bool metric : {false, true}) {
        SCOPED_TRACE(metric ? "typed in metric units" : "typed in English units");
        program_.program.ChooseUnits(metric);
        TypeQuantities(metric ? std::vector{"sq m", "ton (m)", "In cm", "each", "l"}
                              : std::vector{"sq yd", "ton (e)", "In feet", "each", "gal"},
                       metric ? 7U : 8U);
        ASSERT_TRUE(Text(GetParam().quantity, 35, 2).has_value());
        const auto texts = TakeImage().texts;
        const auto units = TakeImage().units;
        SwitchThereAndBack(metric);
        const Image returned = TakeImage();
        EXPECT_EQ(returned.texts, texts);
        EXPECT_EQ(returned.units, units);
        for (int i = 0; i < 10; ++i) {
            SwitchThereAndBack(metric);
            EXPECT_TRUE(TakeImage() == returned) << "after " << 2 * i + 4 << " switches";
        }
    }
}

std::string NameOfPage(const testing::TestParamInfo<QuantityPage>& test) { return test.param.page; }

INSTANTIATE_TEST_SUITE_P(Pages, TwentySwitchesTest,
                         testing::Values(QuantityPage{"LcA1_2", "InitialQuantity", "InitialUnit", 1},
                                         QuantityPage{"LcA1_4", "RehabQuantity", "RehabUnit", 1}),
                         NameOfPage);

// --- Pages ------------------------------------------------------------------------------------------------

TEST_F(CostPagesTest, AnEntryLeavesTheOtherPavementAsItIs) {
    Open("LcA1_2", 1);
    SetRow(1, 2, {{"InitialQuantity", 5.0}, {"InitialUnitCost", 3.0}, {"InitialItemCost", 7.0}});
    EditCell(1, "InitialUnitCost", "2");
    EXPECT_EQ(Cell("InitialItemCost", 1, 1), 0.0);
    EXPECT_EQ(Cell("InitialItemCost", 1, 2), 7.0);
}

/// What is written under the table of a page.
std::string NoteOf(const Form& page) { return page.Get("UNITNOTE").text; }

TEST_F(CostPagesTest, AUnitChangedUnderAMetricQuantityIsStoredAsItStandsWithANote) {
    program_.program.ChooseUnits(true);
    Open("LcA1_2", 1);
    EditCell(1, "InitialQuantity", "83.612736");
    EXPECT_EQ(NoteOf(Page()), "");
    EditCell(1, "InitialUnit", "sq m");
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 83.612736);
    EXPECT_EQ(Text("InitialQuantity", 1, 1), "83.612736");
    EXPECT_EQ(NoteOf(Page()), "The quantity was entered for another unit: enter it again.");
    EditCell(1, "InitialQuantity", "83.612736");
    EXPECT_NEAR(ParseNumber(Text("InitialQuantity", 1, 1).value()), 100.0, 1e-9);
    EXPECT_EQ(NoteOf(Page()), "");
}

TEST_F(CostPagesTest, AUnitWithoutAQuantityAndAnEnglishUnitNeedNoNote) {
    Open("LcA1_4", 1);
    EditCell(1, "RehabQuantity", "100");
    EditCell(1, "RehabUnit", "sq yd");
    EXPECT_EQ(NoteOf(Page()), "");
    program_.program.ChooseUnits(true);
    Open("LcA1_2", 1);
    EditCell(1, "InitialUnit", "sq m");
    EXPECT_EQ(NoteOf(Page()), "");
}

TEST_F(CostPagesTest, TheSameUnitOnceMoreAndARowThatGoesNeedNoNote) {
    program_.program.ChooseUnits(true);
    Open("LcA1_2", 1);
    EditCell(1, "InitialUnit", "sq m");
    EditCell(1, "InitialQuantity", "83.612736");
    EditCell(1, "InitialUnit", "sq m");
    EXPECT_EQ(NoteOf(Page()), "");
    EditCell(1, "InitialUnit", "In cm");
    EXPECT_NE(NoteOf(Page()), "");
    program_.host.dialogs.QueueAnswer("yes");
    Raise({UserEvent::Kind::DeleteRow, {}, {}, 1});
    EXPECT_EQ(NoteOf(Page()), "");
}

TEST_F(CostPagesTest, AQuantityThatCameFromTheOtherUnitSystemIsOfItsUnit) {
    for (const char* page : {"LcA1_2", "LcA1_4"}) {
        const bool initial = std::string(page) == "LcA1_2";
        const char* quantity = initial ? "InitialQuantity" : "RehabQuantity";
        const char* unit = initial ? "InitialUnit" : "RehabUnit";
        program_.program.ChooseUnits(false);
        Open(page, 1);
        EditCell(2, unit, "sq yd");
        EditCell(2, quantity, "5");
        Raise({UserEvent::Kind::CloseForm, page, {}, 0});
        program_.program.ChooseUnits(true);
        Open(page, 1);
        EXPECT_EQ(NoteOf(Page()), "Unit costs do not convert: they stay as they were entered.");
        EditCell(2, unit, "sq m");
        EXPECT_EQ(NoteOf(Page()), "");
        Raise({UserEvent::Kind::CloseForm, page, {}, 0});
        Open(page, 1);
        EXPECT_EQ(NoteOf(Page()), "") << "it has been said";
        Raise({UserEvent::Kind::CloseForm, page, {}, 0});
    }
}

TEST_F(CostPagesTest, APastedQuantityFollowsTheUnitOfItsRow) {
    program_.program.ChooseUnits(true);
    Open("LcA1_2", 1);
    Paste(1, "InitialItem", "Milling\t836.12736\tsq m\t3\nMobilization\t1\tlump sum\t500");
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 836.12736);
    EXPECT_NEAR(ParseNumber(Text("InitialQuantity", 1, 1).value()), 1000.0, 1e-9);
    EXPECT_NEAR(Cell("InitialItemCost", 1, 1).value(), 3 * 836.12736, 1e-9);
    EXPECT_NEAR(Cell("ItemTotal2", 1, 1).value(), 3 * 836.12736 + 500.0, 1e-9);
}

TEST_F(CostPagesTest, TheNameAndTheYearOfTheAnnualMaintenanceArePassedOverByAPaste) {
    Open("LcA1_4", 2);
    Paste(1, "RehabItem", "Milling\t7\t12\teach\t100");
    EXPECT_EQ(Text("RehabItem", 1, 2), "Annual Maintenance");
    EXPECT_EQ(Text("RehabYear", 1, 2), "N/A");
    EXPECT_EQ(Cell("RehabQuantity", 1, 2), 12.0);
}

TEST_F(CostPagesTest, OpeningAndTurningPagesIsNoChangeOfTheProject) {
    Open("LcA1", 1);
    for (const char* button : {"NextPage", "NextPage", "NextPage", "PrevPage", "PrevPage", "PrevPage"}) {
        Press(button);
    }
    EXPECT_EQ(Page().name(), "LcA1");
    EXPECT_FALSE(projectChanged());
}

TEST_F(CostPagesTest, NamesThatAreCarriedAlongAreAChange) {
    SetText("LayerType", 35, 2, "Milling");
    Open("LcA1", 2);
    projectChanged() = false;
    Press("NextPage");
    EXPECT_EQ(Text("InitialItem", 35, 2), "Milling");
    EXPECT_TRUE(projectChanged());
}

TEST_F(CostPagesTest, AnItemThatWasPickedIsTakenBackWithAllThatItFilled) {
    Set({{"ProjectLength", 900.0}});
    SetRow(1, 1, {{"LayerWidth", 20.0}});
    Open("LcA1_2", 1);
    EditCell(1, "InitialUnitCost", "2");
    EditCell(1, "InitialItem", "Layer 1, area");
    EXPECT_EQ(Cell("ItemTotal2", 1, 1), 2.0 * 900.0 * 20.0 / 9.0);
    ASSERT_TRUE(program_.program.Undo().has_value());
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), std::nullopt);
    EXPECT_EQ(Text("InitialUnit", 1, 1), std::nullopt);
    EXPECT_EQ(Cell("ItemTotal2", 1, 1), 0.0);
    EXPECT_EQ(Page().Get("ItemTotal2").text, "0.00");
}

// --- The histogram's progress -----------------------------------------------------------------------------

/// Dialogs that keep what work tells of itself.
class ProgressRecord : public ScriptedDialogs {
  public:
    void ShowWait(const WaitNotice& notice) override {
        EXPECT_EQ(notice.title, "Calculating Amounts...");
        steps.push_back(notice.text);
        isShown = true;
    }
    void HideWait() override { isShown = false; }

    std::vector<std::string> steps;
    bool isShown = false;
};

class HistogramProgressTest : public testing::Test {
  protected:
    HistogramProgressTest()
        : program_({machine_.native, machine_.clock, dialogs_, machine_.components},
                   {home_.path(), home_.path()}) {
        program_.Start("");
    }

    void OpenHistogram() { program_.Raise({UserEvent::Kind::OpenForm, "Histogr", {}, 0}); }

    TestHome home_;
    TestHost machine_;
    ProgressRecord dialogs_;
    Program program_;
};

TEST_F(HistogramProgressTest, EachStepIsShownAndTheProgressGoes) {
    program_.SetValue("AnalysisPeriodB", 1, 1, "2");
    program_.SetValue("RehabYear", 2, 2, "1");
    OpenHistogram();
    EXPECT_EQ(dialogs_.steps,
              (std::vector<std::string>{"Opening Histogram", "Calculating annual cost for 1 year.",
                                        "Building histogram (costs for 1 year).",
                                        "Building histogram (costs for 2 year)."}));
    EXPECT_FALSE(dialogs_.isShown);
}

TEST_F(HistogramProgressTest, EachBarIsToldInDigits) {
    program_.SetValue("AnalysisPeriodA", 1, 1, "2");
    OpenHistogram();
    const auto& controls = program_.state().formRegistry.CurrentForm->controls();
    const auto chart = std::find_if(controls.begin(), controls.end(),
                                    [](const auto& control) { return control->chart.has_value(); });
    ASSERT_NE(chart, controls.end());
    EXPECT_TRUE((*chart)->chart->showsValues);
}

TEST_F(HistogramProgressTest, WithoutAPeriodThereIsNone) {
    OpenHistogram();
    EXPECT_TRUE(dialogs_.steps.empty());
}

// --- Whole rows -------------------------------------------------------------------------------------------

class RehabilitationRowsTest : public CostPagesTest {
  protected:
    RehabilitationRowsTest() {
        Open("LcA1_4", 1);
        EditCell(1, "RehabQuantity", "2");
        EditCell(1, "RehabUnitCost", "50");
        Paste(2, "RehabItem", "Milling\t7\t12\teach\t100\nOther\t14\t3\teach\t900");
    }

    std::vector<std::string> Items() {
        std::vector<std::string> items;
        for (int row = 1; row <= 4; ++row) items.push_back(Text("RehabItem", row, 1).value_or(""));
        return items;
    }
    void Shift(UserEvent::Kind kind, int row) { Raise({kind, {}, {}, row}); }
};

TEST_F(RehabilitationRowsTest, ARowIsInsertedBelowTheAnnualMaintenance) {
    const std::string total = Page().TextOf("ItemTotal4");
    Shift(UserEvent::Kind::InsertRow, 2);
    EXPECT_EQ(Items(), (std::vector<std::string>{"Annual Maintenance", "", "Milling", "Other"}));
    EXPECT_EQ(Cell("RehabItemCost", 3, 1), 1200.0);
    EXPECT_EQ(Cell("RehabItemCost", 4, 1), 2700.0);
    EXPECT_EQ(Page().TextOf("ItemTotal4"), total) << "an empty row costs nothing";
}

TEST_F(RehabilitationRowsTest, RowsChangePlacesWithAllTheyHold) {
    Shift(UserEvent::Kind::MoveRowUp, 3);
    EXPECT_EQ(Items(), (std::vector<std::string>{"Annual Maintenance", "Other", "Milling", ""}));
    EXPECT_EQ(Cell("RehabYear", 2, 1), 14.0);
    EXPECT_EQ(Cell("RehabItemCost", 2, 1), 2700.0);
    EXPECT_EQ(Page().FindGrid()->grid->row, 2);
}

TEST_F(RehabilitationRowsTest, TheAnnualMaintenanceStaysInTheFirstRow) {
    const std::vector<std::string> before = Items();
    Shift(UserEvent::Kind::InsertRow, 1);
    Shift(UserEvent::Kind::MoveRowDown, 1);
    Shift(UserEvent::Kind::MoveRowUp, 2);
    EXPECT_EQ(Items(), before);
    EXPECT_EQ(Cell("RehabUnitCost", 1, 1), 50.0);
}

}  // namespace
}  // namespace kelvor::test

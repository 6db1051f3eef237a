// The sample projects of costs, against their cash flows written down from their prices and dimensions.

#include <array>

#include "cash_flow.h"
#include "cost_fixture.h"
#include "lcc/calc/cost_verdict.h"

namespace kelvor::test {
namespace {

class SampleCostsTest : public CostTest {
  protected:
    void OpenSample(const std::string& name) {
        program_.program.OpenProject(KELVOR_HOME_FOLDER "/Samples/" + name + ".kvr");
        ASSERT_NE(program_.Get("DiscountRate"), 0.0);
        program_.program.Raise({UserEvent::Kind::OpenForm, "LcS", {}, 0});
    }

    /// The present worths of the summary are those of the flows, and so is the verdict.
    void ExpectFlows(const std::array<std::vector<Expense>, 2>& flows, double rate,
                     const std::string& verdict) {
        const CostSummary& summary = program_.program.state().costSummary;
        for (std::size_t i = 0; i < flows.size(); ++i) {
            EXPECT_NEAR(summary.pavements.at(i).discounted.value(), PresentWorth(flows.at(i), rate), 0.01)
                << i;
        }
        EXPECT_EQ(CostVerdict(Context()), verdict);
    }
};

void Append(std::vector<Expense>& flow, const std::vector<Expense>& more) {
    flow.insert(flow.end(), more.begin(), more.end());
}

TEST_F(SampleCostsTest, TheConcreteRoad) {
    OpenSample("costs_concrete_road");
    const double length = 2 * 5280.0;
    const double joints = length * 24.0 / 15.0;
    std::vector<Expense> a = EveryYear(2 * 1500.0, 35);
    Append(a, {{length * 24.0 / 9.0 * 38.0 + length * 28.0 * 6.0 * 135.0 / 24000.0 * 14.0 + joints * 2.2 +
                    60'000.0,
                0},
               {joints * 1.6, 10},
               {1400 * 120.0, 18},
               {joints * 1.6, 20},
               {2000 * 120.0, 27}});
    std::vector<Expense> b = EveryYear(2 * 1100.0, 35);
    Append(b, {{length * 24.0 / 9.0 * 41.0 + length * 28.0 * 4.0 * 140.0 / 24000.0 * 27.0 + joints * 6.5 +
                    65'000.0,
                0},
               {joints * 1.6, 15},
               {500 * 120.0, 25}});
    // The worths cross at 3.1 per cent, where a search on these two flows finds it.
    ExpectFlows(
        {a, b}, (7.0 - 2.5) / 1.025 / 100.0,
        "Pavement A costs 3 per cent less a year than B: 87,041 against 89,718. Below 3.1 per cent B has "
        "the lower present worth, above 3.1 A.");
    EXPECT_GT(PresentWorth(a, 0.0305), PresentWorth(b, 0.0305));
    EXPECT_LT(PresentWorth(a, 0.0315), PresentWorth(b, 0.0315));
}

TEST_F(SampleCostsTest, TheAsphaltRoad) {
    OpenSample("costs_asphalt_road");
    const auto tons = [](double width, double millimetres, double weight) {
        return 3000.0 * width * millimetres / 1000.0 * weight / 1000.0;
    };
    const double renewal = 21'900 * 3.5 + 2573 * 90.0;
    std::vector<Expense> a = EveryYear(3 * 1000.0, 40);
    Append(a, {{tons(7.3, 150, 2350) * 85.0 + tons(8.5, 300, 2200) * 22.0 + 40'000.0, 0},
               {renewal, 14},
               {renewal, 27}});
    std::vector<Expense> b = EveryYear(3 * 800.0, 40);
    Append(b, {{tons(7.3, 260, 2350) * 85.0 + 30'000.0, 0}, {renewal, 20}});
    ExpectFlows(
        {a, b}, (6.0 - 2.0) / 1.02 / 100.0,
        "Pavement B costs 4 per cent less a year than A: 67,824 against 70,683. Below 6.8 per cent B has "
        "the lower present worth, above 6.8 A.");
    EXPECT_GT(PresentWorth(a, 0.0675), PresentWorth(b, 0.0675));
    EXPECT_LT(PresentWorth(a, 0.0685), PresentWorth(b, 0.0685));
}

TEST_F(SampleCostsTest, TheProjectOfEveryReportHasItsCostsAddedUp) {
    OpenSample("every_report");
    const CostSummary& summary = program_.program.state().costSummary;
    EXPECT_EQ(summary.pavements.at(0).initial, 70'400.0 * 42.0);
    EXPECT_EQ(summary.pavements.at(1).initial, 70'400.0 * 34.0);
    EXPECT_EQ(summary.pavements.at(0).rehabilitation, 50'000.0 * 1.5);
    EXPECT_EQ(summary.pavements.at(1).rehabilitation, 70'400.0 * 11.0);
}

TEST_F(SampleCostsTest, PagingThroughASampleLosesNoName) {
    for (const char* sample : {"costs_asphalt_road", "costs_concrete_road", "every_report"}) {
        program_.program.OpenProject(KELVOR_HOME_FOLDER "/Samples/" + std::string(sample) + ".kvr");
        for (const int pavement : {1, 2}) {
            const auto names = [&] {
                std::vector<std::string> texts;
                for (const char* column : {"LayerType", "InitialItem"}) {
                    for (int row = 1; row <= 10; ++row) {
                        texts.push_back(program_.store().FindCell(column, row, pavement)->text.value_or(""));
                    }
                }
                return texts;
            };
            const auto before = names();
            program_.program.Raise({UserEvent::Kind::OpenForm, "LcA1", {}, pavement});
            program_.program.Raise({UserEvent::Kind::Press, "NextPage"});
            ASSERT_EQ(program_.program.state().formRegistry.CurrentForm->name(), "LcA1_2");
            program_.program.Raise({UserEvent::Kind::Press, "PrevPage"});
            ASSERT_EQ(program_.program.state().formRegistry.CurrentForm->name(), "LcA1");
            EXPECT_EQ(names(), before) << sample << " " << pavement;
            program_.program.Raise({UserEvent::Kind::CloseForm, "LcA1"});
        }
    }
}

}  // namespace
}  // namespace kelvor::test

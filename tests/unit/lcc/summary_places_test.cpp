// The cost summary is worked out in more places than one; all of them, and a sum year by year, agree.

#include <array>
#include <cmath>
#include <random>

#include "cash_flow.h"
#include "cost_fixture.h"
#include "lcc/calc/cost_chart_values.h"
#include "lcc/calc/cost_summary.h"
#include "platform/number_text.h"
#include "reports/staging/staging_database.h"
#include "reports/staging/staging_file.h"
#include "reports/staging/staging_routines.h"

namespace kelvor::test {
namespace {

constexpr int kProjects = 1000;

/// Costs of a pavement that were drawn by lot.
struct DrawnPavement {
    int period = 0;
    double initial = 0.0;
    double yearly = 0.0;
    std::vector<Expense> items;

    [[nodiscard]] double Items() const {
        double sum = 0.0;
        for (const Expense& item : items) sum += item.amount;
        return sum;
    }

    [[nodiscard]] std::vector<Expense> Flow() const {
        std::vector<Expense> flow = EveryYear(yearly, period);
        flow.insert(flow.end(), items.begin(), items.end());
        flow.push_back({initial, 0});
        return flow;
    }
};

class SummaryPlacesTest : public CostTest {
  protected:
    double Draw(double least, double greatest) {
        return std::uniform_real_distribution<double>(least, greatest)(random_);
    }
    int DrawWhole(int least, int greatest) {
        return std::uniform_int_distribution<int>(least, greatest)(random_);
    }

    /// Whole money, so that what is shown as whole numbers can be compared as it is.
    DrawnPavement DrawPavement(int pavement) {
        DrawnPavement drawn;
        drawn.period = DrawWhole(1, 50);
        drawn.initial = DrawWhole(0, 5'000'000);
        drawn.yearly = DrawWhole(0, 3) == 0 ? 0.0 : DrawWhole(1, 20'000);
        Set({{pavement == 1 ? "AnalysisPeriodA" : "AnalysisPeriodB", static_cast<double>(drawn.period)}});
        double total = drawn.yearly * drawn.period;
        SetRow(1, pavement,
               {{"RehabQuantity", drawn.yearly}, {"RehabUnitCost", 1.0}, {"RehabItemCost", total}});
        for (int row = 2; row <= 35; ++row) {
            const bool isFilled = DrawWhole(0, 2) == 0;
            const Expense item = {isFilled ? DrawWhole(1, 500'000) * 1.0 : 0.0, DrawWhole(0, 60)};
            SetRow(row, pavement, {{"RehabItemCost", item.amount}, {"RehabYear", item.year}});
            if (isFilled) drawn.items.push_back(item);
            total += item.amount;
        }
        SetRow(1, pavement, {{"ItemTotal2", drawn.initial}, {"ItemTotal4", total}});
        return drawn;
    }

    /// What a label of the open summary shows.
    double Shown(const std::string& label) {
        return ParseNumber(program_.program.state().formRegistry.Find("LcS")->Get(label).text);
    }

    double OfChart(const char* category, std::size_t pavement) {
        return CostSummaryValues(Context(), category).value().at(pavement);
    }

    void OpenSummary() { program_.program.Raise({UserEvent::Kind::OpenForm, "LcS", {}, 0}); }
    void CloseSummary() { program_.program.Raise({UserEvent::Kind::CloseForm, "LcS", {}, 0}); }

    /// What the report of the costs would say, by the names of its columns.
    StagedTable StageReport() {
        StagingDatabase database(
            staging_.Provide(program_.host.native, program_.home / "DataBase/Kelvor.mdb"));
        const CalcContext context = Context();
        Stager stager(database, context);
        StageLifeCycleCost(stager);
        const ProcessState& state = program_.program.state();
        StagedTable table = *database.ReadAll(*state.dbCatalogue, *state.units).Find("LCCAnalysis");
        database.Commit();
        return table;
    }

    static double OfReport(const StagedTable& report, const std::string& column) {
        return std::get<double>(report.rows.at(0).at(report.Find(column).value()));
    }

    StagingFile staging_{program_.home.path() / "staging.tmp"};
    std::mt19937 random_{20'011};
};

TEST_F(SummaryPlacesTest, AThousandProjectsHaveTheSameSummaryEverywhere) {
    for (int project = 0; project < kProjects; ++project) {
        const double ratePercent = Draw(0.5, 12.0);
        Set({{"DiscountRate", ratePercent}, {"InflationRate", Draw(0.0, 8.0)}});
        const std::array drawn = {DrawPavement(1), DrawPavement(2)};
        OpenSummary();
        const StagedTable report = StageReport();
        for (std::size_t i = 0; i < 2; ++i) {
            SCOPED_TRACE("project " + std::to_string(project) + ", pavement " + std::to_string(i + 1));
            const std::string number = std::to_string(i + 1);
            const double maintenance = drawn[i].yearly * drawn[i].period;
            const double worth = PresentWorth(drawn[i].Flow(), ratePercent / 100.0);
            EXPECT_EQ(Shown("InitialCost" + number), drawn[i].initial);
            EXPECT_EQ(OfChart("InitialCost", i), drawn[i].initial);
            EXPECT_EQ(Shown("RehabCost" + number), drawn[i].Items() + maintenance);
            EXPECT_EQ(OfChart("MaintCost", i), maintenance);
            EXPECT_EQ(OfChart("RehabCost", i), drawn[i].Items());
            EXPECT_EQ(OfChart("TotalExpenditures", i), Shown("TodaysCost" + number));
            EXPECT_NEAR(Shown("DiscountCost" + number), worth, 0.5 + 1e-6);
            EXPECT_EQ(OfChart("PW", i), Shown("DiscountCost" + number));
            EXPECT_EQ(OfChart("EUAC", i), Shown("EUAC" + number));
            // The report has the same numbers before they are rounded.
            const PavementCosts& costs = program_.program.state().costSummary.pavements.at(i);
            const std::string letter = i == 0 ? "A" : "B";
            EXPECT_EQ(OfReport(report, "InitialCost" + letter), costs.initial.value());
            EXPECT_EQ(OfReport(report, "RehabCost" + letter), costs.rehabilitation.value());
            EXPECT_EQ(OfReport(report, "TodaysCost" + letter), costs.todays.value());
            EXPECT_EQ(OfReport(report, "InflatedCost" + letter), costs.inflated.value());
            EXPECT_EQ(OfReport(report, "DiscountCost" + letter), costs.discounted.value());
            EXPECT_EQ(OfReport(report, "EUAC" + letter), costs.euac.value());
            // The annual cost pays the present worth back: nothing is left of the debt.
            const double annual = costs.euac.value();
            EXPECT_NEAR(LeftOfDebt(worth, annual, ratePercent / 100.0, drawn[i].period) /
                            (1.0 + Grown(worth, ratePercent / 100.0, drawn[i].period)),
                        0.0, 1e-9);
        }
        CloseSummary();
        if (HasFailure()) return;
    }
}

}  // namespace
}  // namespace kelvor::test

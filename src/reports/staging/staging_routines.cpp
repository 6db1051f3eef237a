#include "reports/staging/staging_routines.h"

#include <array>
#include <cstddef>

#include "lcc/calc/cost_summary.h"
#include "lcc/calc/pavements.h"
#include "reports/staging/column_rules.h"

namespace kelvor {

namespace {

constexpr int kLayers = 6;
constexpr int kLastAxleRow = 49;
constexpr int kCostRows = 10;

double StagedNumber(Stager& stager, const std::string& table, const std::string& column) {
    double number = 0.0;
    stager.Try([&] {
        const StagedValue value = stager.database().Read(table, 1, column);
        if (const auto* staged = std::get_if<double>(&value)) number = *staged;
    });
    return number;
}

bool HasExistingData(Stager& stager) {
    constexpr std::array kSupport = {"MRSG", "MRSB", "SBD", "SGD", "LS", "K"};
    constexpr std::array kFactors = {"APDETEXP", "APDETTOT", "APBOLFJC"};
    bool any = false;
    for (const char* column : kSupport) any |= StagedNumber(stager, "ModulusOfSubgrade", column) != 0.0;
    for (const char* column : kFactors) any |= StagedNumber(stager, "OverlayAdjFactor", column) != 0.0;
    return any;
}

/// A total that stands in each row; 0, with its message, if it is no number.
double Total(Stager& stager, const std::string& variable) {
    double total = 0.0;
    stager.Try([&] { total = ShownNumber(stager.context(), variable); });
    return total;
}

void StagePavement(Stager& stager, const std::string& table, int pavement) {
    stager.Fill("InitialCosts", table, {.row = 1, .dim2 = pavement});
    for (int i = 1; i <= kCostRows; ++i) {
        stager.Fill("RehabCosts", table, {.row = i + 1, .dim1 = i, .dim2 = pavement});
    }
}

void Give(Stager::GivenValues& given, const std::string& pavement, const PavementCosts& costs) {
    given["InitialCost" + pavement] = costs.initial.value();
    given["RehabCost" + pavement] = costs.rehabilitation.value();
    given["TodaysCost" + pavement] = costs.todays.value();
    given["InflatedCost" + pavement] = costs.inflated.value();
    given["DiscountCost" + pavement] = costs.discounted.value();
    given["EUAC" + pavement] = costs.euac.value();
}

}  // namespace

void StageGeneralInfo(Stager& stager) { stager.Fill("GeneralInfo", "GenInfo"); }

void StageFlexibleDesign(Stager& stager) {
    stager.Fill("FlexibleDesign", "FlexPavementDesign");
    for (int i = 1; i <= kLayers; ++i) stager.Fill("Layers", "LayerThickness", {.row = i, .dim1 = i});
}

void StageRigidDesign(Stager& stager) {
    stager.Fill("SlabSupport", "ModulusOfSubgrade");
    stager.Fill("RigidDesign", "Rigid");
}

bool StageOverlayCommon(Stager& stager, const std::string& screen) {
    stager.Fill("OverlaySupport", "ModulusOfSubgrade");
    stager.Fill("OverlayAdjFactor", "OverlayAdjFactor");
    const bool hasExistingData = HasExistingData(stager);
    stager.Fill(screen, screen);  // the filling and the table of an overlay have the name of its screen
    return hasExistingData;
}

void StageTrafficCommon(Stager& stager) { stager.Fill("TrafficCommon", "TrFa"); }

void StageTrafficFactors(Stager& stager) {
    StageTrafficCommon(stager);
    stager.Fill("TrafficFactors", "TrTr");
}

void StageVehicleTraffic(Stager& stager) {
    StageTrafficCommon(stager);
    stager.Fill("VehicleTraffic", "TrVe");
}

void StageAxleTraffic(Stager& stager) {
    StageTrafficCommon(stager);
    const Stager::GivenValues totals = {{"RIGE18", Total(stager, "RIGE18")},
                                        {"FLEXE18", Total(stager, "FLEXE18")}};
    stager.Try([&] { stager.database().DeleteRows("TrAx"); });
    const CalcContext& context = stager.context();
    for (int i = 1; i <= kLastAxleRow; ++i) {
        if (context.Get("AxleWeight", i) == 0.0 || context.units.GetDisplayValue("AxleType", i).empty())
            return;
        stager.Add("AxleTraffic", "TrAx", {.row = i, .dim1 = i}, totals);
    }
}

void StageCostAnalysis(Stager& stager) {
    stager.Fill("CostAnalysis", "CostAnalysis");
    StagePavement(stager, "PavementA", kPavementA);
    StagePavement(stager, "PavementB", kPavementB);
}

void StageLifeCycleCost(Stager& stager) {
    CostSummary summary;  // the annual cost starts from 0: only the screen of the summary keeps its own
    ComputePavementCosts(stager.context(), summary,
                         [&](const ArithmeticFault& fault) { stager.Report(fault.what()); });
    Stager::GivenValues given;
    Give(given, "A", summary.pavements[0]);
    Give(given, "B", summary.pavements[1]);
    stager.Fill("LifeCycleCosts", "LCCAnalysis", {}, given);
}

}  // namespace kelvor

#include "shell/hub/hub_table.h"

#include <algorithm>
#include <array>

#include "platform/text.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

using enum HubGroup;
using enum ReportWants;
namespace category = report_category;

/// What every route to the ESALs needs, but for the distribution.
constexpr std::array kSharedInputs = {"TrafficDEPTH", "TrafficSN", "PT", "Life", "GrowthRate", "TrPer"};
constexpr HubNeeds kTrafficInputs = {kSharedInputs,
                                     ToTranslate("needs the values of Pavement & Traffic Inputs")};

/// What an overlay needs to know of the pavement below it.
constexpr std::array kSlabInputs = {"EXISTMR", "EXISTEC", "EXISTJ", "EXISTK"};
constexpr std::array kSoilInputs = {"EXISTRM"};
constexpr std::array kSlabAndThickness = {"EXISTDEPTH", "EXISTMR", "EXISTEC", "EXISTJ", "EXISTK"};
constexpr HubNeeds kSlab = {kSlabInputs};
constexpr HubNeeds kSoil = {kSoilInputs};
constexpr HubNeeds kThickSlab = {kSlabAndThickness};

constexpr std::array kRows = {
    HubRow{.group = Traffic,
           .option = "PavementTrafficFactors",
           .caption = "Pavement && Traffic Inputs",
           .does = ToTranslate(
               "What every way to the ESALs needs: pavement, years, growth and share of the design lane"),
           .screen = "TrFa",
           .decidesOn = DecidesOn::TrafficRoutes},
    HubRow{.group = Traffic,
           .option = "AxleData",
           .caption = "ESAL Determination by Axle Data",
           .does = ToTranslate("ESALs from axle loads that were counted"),
           .screen = "TrAx",
           .needs = kTrafficInputs,
           .report = {category::kTraffic, 1, "rbTRopTrAx", "ESAL Determination by Axle Data", Cells, true}},
    HubRow{.group = Traffic,
           .option = "VehicleType",
           .caption = "ESAL Determination by Vehicle Type",
           .does = ToTranslate("ESALs from the vehicles of each type"),
           .screen = "TrVe",
           .needs = kTrafficInputs,
           .report = {category::kTraffic, 2, "rbTRopTrVe", "ESAL Determination by Vehicle Type", AxleCells,
                      true}},
    HubRow{
        .group = Traffic,
        .option = "TrafficFactor",
        .caption = "ESAL Determination by Traffic Factor",
        .does = ToTranslate("ESALs from the daily traffic and a truck factor"),
        .screen = "TrTr",
        .needs = kTrafficInputs,
        .report = {category::kTraffic, 3, "rbTRopTrTr", "ESAL Determination by Traffic Factors", Data, true}},

    HubRow{.group = Designs,
           .option = "oDeF",
           .caption = "Asphalt Pavement Design / Evaluation",
           .does = ToTranslate("Structural number of a new asphalt pavement, and its layers"),
           .screen = "DeF",
           .report = {category::kDesign, 1, "rbNDopF", "Flexible", Nothing}},
    HubRow{.group = Designs,
           .option = "oDeR",
           .caption = "Rigid Pavement Design / Evaluation",
           .does = ToTranslate("Slab thickness of a new concrete pavement"),
           .screen = "DeR",
           .decidesOn = DecidesOn::Overlays,
           .report = {category::kDesign, 2, "rbNDopR", "Rigid", Nothing}},
    HubRow{.group = Designs,
           .option = "oDeS",
           .caption = "Both Rigid and Asphalt Design / Evaluation",
           .does = ToTranslate("An asphalt and a concrete pavement side by side"),
           .screen = "DeS"},

    HubRow{.group = Existing,
           .option = "oExF",
           .caption = "Existing Flexible Pavement Information",
           .does = ToTranslate("Layers and soil of the asphalt pavement that is there"),
           .screen = "ExF",
           .decidesOn = DecidesOn::Overlays},
    HubRow{.group = Existing,
           .option = "oExR",
           .caption = "Existing Rigid Pavement Information",
           .does = ToTranslate("Slab, joints and soil of the concrete pavement that is there"),
           .screen = "ExR",
           .decidesOn = DecidesOn::Overlays},
    HubRow{.group = Existing,
           .option = "oExC",
           .caption = "Existing Composite Pavement Information",
           .does = ToTranslate("Asphalt, slab and soil of the composite pavement that is there"),
           .screen = "ExC",
           .decidesOn = DecidesOn::Overlays},

    HubRow{.group = Overlays,
           .option = "oOvAA",
           .caption = "AC Overlay of AC Pavement",
           .does = ToTranslate("Asphalt on an asphalt pavement"),
           .screen = "OvAA",
           .needs = kSoil,
           .report = {category::kOverlays, 5, "rbOVopAA", "AC Overlay of AC Pavement", Data}},
    HubRow{.group = Overlays,
           .option = "oOvAFP",
           .caption = "AC Overlay of Fractured PCC Pavement",
           .does = ToTranslate("Asphalt on a concrete slab that is cracked, broken or rubblized"),
           .screen = "OvAFP",
           .needs = kSlab,
           .report = {category::kOverlays, 4, "rbOVopAFP", "AC Overlay of Fractured PCC Pavement", Data}},
    HubRow{.group = Overlays,
           .option = "oOvAP",
           .caption = "AC Overlay of PCC Pavement",
           .does = ToTranslate("Asphalt on a concrete slab"),
           .screen = "OvAP",
           .needs = kSlab,
           .report = {category::kOverlays, 6, "rbOVopAP", "AC Overlay of PCC Pavement", Data}},
    HubRow{.group = Overlays,
           .option = "oOvAAP",
           .caption = "AC Overlay of AC/PCC Pavement",
           .does = ToTranslate("Asphalt on asphalt on a concrete slab"),
           .screen = "OvAAP",
           .needs = kThickSlab,
           .report = {category::kOverlays, 7, "rbOVopAAP", "AC Overlay of AC/PCC Pavement", Data}},
    HubRow{.group = Overlays,
           .option = "oOvBP",
           .caption = "Bonded Overlay",
           .does = ToTranslate("Concrete bonded to a concrete slab"),
           .screen = "OvBP",
           .needs = kSlab,
           .report = {category::kOverlays, 1, "rbOVopBP", "Bonded Overlay", Data}},
    HubRow{.group = Overlays,
           .option = "oOvUP",
           .caption = "Unbonded PCC Overlay",
           .does = ToTranslate("Concrete on a concrete slab, parted by an interlayer"),
           .screen = "OvUP",
           .needs = kThickSlab,
           .report = {category::kOverlays, 2, "rbOVopUP", "Unbonded Overlay", Data}},
    HubRow{.group = Overlays,
           .option = "oOvWT",
           .caption = "PCC Overlay of Asphalt (Whitetopping)",
           .does = ToTranslate("Concrete on an asphalt pavement"),
           .screen = "OvWT",
           .needs = kSoil,
           .report = {category::kOverlays, 3, "rbOVopWT", "PCC Overlay of Asphalt (Whitetopping)", Data}},

    HubRow{.group = Deflections,
           .option = "FPNDTCalc",
           .caption = "Flexible Pavement NDT Backcalculation",
           .does = ToTranslate("Moduli of an asphalt pavement from falling-weight deflections"),
           .screen = "ReDfF"},
    HubRow{.group = Deflections,
           .option = "RPNDTCalc",
           .caption = "Rigid Pavement NDT Backcalculation",
           .does = ToTranslate("Moduli of slab and soil from falling-weight deflections"),
           .screen = "ReDfR"},
    HubRow{.group = Deflections,
           .option = "CPNDTCalc",
           .caption = "Composite Pavement (AC/PCC) NDT Backcalculation",
           .does = ToTranslate("Moduli of asphalt, slab and soil from falling-weight deflections"),
           .screen = "ReDfC"},

    HubRow{.group = Costs,
           .option = "oLcA1",
           .caption = "Pavement (A) Cost Information",
           .does = ToTranslate("Geometry, layers, repairs and upkeep of pavement A, and what they cost"),
           .screen = "LcA1",
           .slice = 1},
    HubRow{.group = Costs,
           .option = "oLcA2",
           .caption = "Pavement (B) Cost Information",
           .does = ToTranslate("The same of pavement B"),
           .screen = "LcA1",
           .slice = 2},
    HubRow{.group = Costs,
           .option = "oLcS",
           .caption = "Life-Cycle Cost Summary",
           .does = ToTranslate("Present worth and annual cost of both pavements side by side"),
           .screen = "LcS"},

    HubRow{.group = Graphs,
           .option = "InitialCost",
           .caption = "Initial Cost",
           .does = ToTranslate("What both pavements cost to build, as bars"),
           .screen = "CostChart",
           .slice = 1},
    HubRow{.group = Graphs,
           .option = "MaintenanceCosts",
           .caption = "Maintenance Cost",
           .does = ToTranslate("What the upkeep of both costs, as bars"),
           .screen = "CostChart",
           .slice = 2},
    HubRow{.group = Graphs,
           .option = "RehabilitationCosts",
           .caption = "Rehabilitation Cost",
           .does = ToTranslate("What the repairs of both cost, as bars"),
           .screen = "CostChart",
           .slice = 3},
    HubRow{.group = Graphs,
           .option = "PW",
           .caption = "Present Worth",
           .does = ToTranslate("All costs of both pavements at their present worth, as bars"),
           .screen = "CostChart",
           .slice = 4},
    HubRow{.group = Graphs,
           .option = "EUAC",
           .caption = "EUAC",
           .does = ToTranslate("The equivalent annual cost of both pavements, as bars"),
           .screen = "CostChart",
           .slice = 5},
    HubRow{.group = Graphs,
           .option = "ExpenditureHistogram",
           .caption = "Expenditure Histogram",
           .does = ToTranslate("What is spent in which year, on both pavements"),
           .screen = "Histogr"},
};

}  // namespace

std::span<const HubRow> HubTable() { return kRows; }

const HubRow* FindHubRow(std::string_view screen) {
    const auto* found = std::find_if(kRows.begin(), kRows.end(),
                                     [&](const HubRow& row) { return EqualNoCase(row.screen, screen); });
    return found == kRows.end() ? nullptr : found;
}

const char* HubButton(HubGroup group) {
    switch (group) {
        case Traffic:
            return "Command1";
        case Designs:
            return "Command4";
        case Existing:
        case Overlays:
        case Deflections:
            return "Command7";
        case Costs:
            return "Command2";
        case Graphs:
            return "Command8";
    }
    return "";
}

}  // namespace kelvor

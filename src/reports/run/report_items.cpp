#include "reports/run/report_items.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

#include "platform/text.h"
#include "reports/staging/staging_routines.h"

namespace kelvor {

namespace {

constexpr std::array kReports = {
    ReportName{"DeR", "Rigid Design Report", "_Rigid Pavement Design.rtf"},
    ReportName{"DeF", "Flexible Design Report", "_Flexible Design Inputs.rtf"},
    ReportName{"OvBP", "Bonded Overlay Design", "_Bonded Overlay Design.rtf"},
    ReportName{"OvUP", "Unbonded Pavement", "_Unbonded Pavement.rtf"},
    ReportName{"OvUP_Part", "Unbonded Pavement", "_Unbonded Pavement_Part.rtf"},
    ReportName{"OvWT", "PCC Overlay of Asphalt (Whitetopping)", "_PCC Overlay of Asphalt (Whitetopping).rtf"},
    ReportName{"OvAFP", "AC Overlay of Fractured PCC  Pavement",
               "_AC Overlay of Fractured PCC  Pavement.rtf"},
    ReportName{"OvAA", "AC Overlay of AC  Pavement", "_AC Overlay of AC  Pavement.rtf"},
    ReportName{"OvAP", "AC Overlay of PCC Pavement", "_AC Overlay of PCC Pavement.rtf"},
    ReportName{"OvAAP", "AC Overlay of AC/PCC Pavement", "_AC Overlay of AC_PCC Pavement.rtf"},
    ReportName{"TrAx", "ESAL Determination by Axle Data", "_ESAL Determination by Axle Data.rtf"},
    ReportName{"TrVe", "ESAL Data by Vehicle Type", "_ESAL Data by Vehicle Type.rtf"},
    ReportName{"TrTr", "ESAL Determination by Traffic Factors", "_ESAL Determination by Traffic Factors.rtf"},
    ReportName{"LCA1", "Cost Report (A)", "_Cost Report(A).rtf"},
    ReportName{"LCA2", "Cost Report (B)", "_Cost Report(B).rtf"},
};
static_assert(kReports.size() <= kMostReports);

bool Rigid(Stager& stager, const char* /*screen*/) { return StageRigidDesign(stager), false; }
bool Flexible(Stager& stager, const char* /*screen*/) { return StageFlexibleDesign(stager), false; }
bool Overlay(Stager& stager, const char* screen) { return StageOverlayCommon(stager, screen); }
bool Axles(Stager& stager, const char* /*screen*/) { return StageAxleTraffic(stager), false; }
bool Vehicles(Stager& stager, const char* /*screen*/) { return StageVehicleTraffic(stager), false; }
bool Factors(Stager& stager, const char* /*screen*/) { return StageTrafficFactors(stager), false; }

bool Costs(Stager& stager, const char* /*screen*/) {
    StageLifeCycleCost(stager);
    StageCostAnalysis(stager);
    return false;
}

constexpr std::array kItems = {
    ReportItem{"rbNDopR", "DeR", BalanceFlag::DeR, Rigid, "DeR"},
    ReportItem{"rbNDopF", "DeF", BalanceFlag::DeF, Flexible, "DeF"},
    ReportItem{"rbOVopBP", "OvBP", BalanceFlag::OvBP, Overlay, "OvBP"},
    ReportItem{"rbOVopUP", "OvUP", BalanceFlag::OvUP, Overlay, "OvUP", nullptr, "OvUP_Part"},
    ReportItem{"rbOVopWT", "OvWT", BalanceFlag::OvWT, Overlay, "OvWT"},
    ReportItem{"rbOVopAFP", "OvAFP", BalanceFlag::OvAFP, Overlay, "OvAFP"},
    ReportItem{"rbOVopAA", "OvAA", BalanceFlag::OvAA, Overlay, "OvAA"},
    ReportItem{"rbOVopAP", "OvAP", BalanceFlag::OvAP, Overlay, "OvAP"},
    ReportItem{"rbOVopAAP", "OvAAP", BalanceFlag::OvAAP, Overlay, "OvAAP"},
    ReportItem{"rbTRopTrAx", "TrAx", std::nullopt, Axles, "TrAx"},
    ReportItem{"rbTRopTrVe", "TrVe", std::nullopt, Vehicles, "TrVe"},
    ReportItem{"rbTRopTrTr", "TrTr", std::nullopt, Factors, "TrTr"},
    ReportItem{"rbCost", "EcFa", std::nullopt, Costs, "LCA1", "LCA2"},
};

/// The screens of costs, each of which is reported with all of them.
constexpr std::array kCostScreens = {"LcA1", "LcA1_2", "LcA1_3", "LcA1_4",
                                     "LcA2", "LcA2_2", "LcA2_3", "LcA2_4"};

}  // namespace

std::span<const ReportItem> ReportItems() { return kItems; }

const ReportItem* FindReportItem(std::string_view screen) {
    const bool isCost = std::any_of(kCostScreens.begin(), kCostScreens.end(),
                                    [&](const char* name) { return EqualNoCase(name, screen); });
    const std::string_view reported = isCost ? "EcFa" : screen;
    const auto* found = std::find_if(kItems.begin(), kItems.end(), [&](const ReportItem& item) {
        return EqualNoCase(item.screen, reported);
    });
    return found == kItems.end() ? nullptr : found;
}

const ReportName& FindReport(std::string_view name) {
    const auto* found = std::find_if(kReports.begin(), kReports.end(),
                                     [&](const ReportName& report) { return report.name == name; });
    if (found == kReports.end()) throw std::logic_error("no report " + std::string(name));
    return *found;
}

}  // namespace kelvor

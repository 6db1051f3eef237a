#include "shell/overview.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "forms/equation_lines.h"
#include "forms/form_builder.h"
#include "lcc/calc/cost_summary.h"
#include "platform/translation.h"
#include "shell/hub/screen_data.h"

namespace kelvor {

namespace {

/// A screen of the overview. It holds data if one of its results or of its own inputs, which no other screen
/// has, is a number other than 0.
struct OverviewScreen {
    std::string_view name;
    std::vector<std::string_view> results;
    std::vector<std::string_view> inputs;
};

const std::vector<OverviewScreen>& Screens() {
    static const std::vector<OverviewScreen> screens = {
        {"DeF", {"SN"}, {"FLEXREL", "FLEXDEV", "RM", "FLEXPO", "FLEXPT"}},
        {"DeR", {"DEPTH"}, {"RIGREL", "RIGDEV", "MR", "EC", "RIGPO", "RIGPT"}},
        {"OvAA", {"ACACTHICK"}, {"ACACREL", "ACACDEV", "ACACPO", "ACACPT"}},
        {"OvAFP", {"ACCSTHICK"}, {"ACCSREL", "ACCSDEV", "ACCSPO", "ACCSPT"}},
        {"OvAP", {"ACPCOLT"}, {"ACPCREL", "ACPCDEV", "ACPCPO", "ACPCPT"}},
        {"OvAAP", {"ACACPCOLT"}, {"ACACPCREL", "ACACPCDEV", "ACACPCPO", "ACACPCPT"}},
        {"OvBP", {"BOLDEPTH"}, {"BOLFJC", "BOLFDUR", "BOLFFAT"}},
        {"OvUP", {"UBOLDEPTH"}, {"UBOLFJCU"}},
        {"OvWT", {"WTDEPTH"}, {}},
        {"TrAx", {"RIGE18", "FLEXE18"}, {"AxleWeight", "NumOfAxles"}},
        {"TrVe", {"RIGE18", "FLEXE18"}, {"NA53", "NA56", "NA59", "NA62", "NA65", "NA70", "AW51",
                                         "AW52", "AW53", "AW54", "AW55", "AW56", "AW57", "AW58",
                                         "AW59", "AW60", "AW61", "AW62", "AW63", "AW64", "AW65",
                                         "AW66", "AW67", "AW68", "AW69", "AW70"}},
        {"TrTr", {"RIGE18", "FLEXE18"}, {"TrInADTT", "TrInADT", "TrInPerTruck"}},
        {"ReDfF", {"AVGNDTRM", "AVGNDTEFFEP"}, {"NDTLOADF", "D0F", "DR"}},
        {"ReDfR", {"AVGSTATK", "AVGNDTE"}, {"NDTLOAD", "D0", "D12", "D24", "D36"}},
        {"ReDfC", {"AVGSTATKC", "AVGNDTEC"}, {"NDTLOADC", "D0C", "D12C", "D24C", "D36C"}},
    };
    return screens;
}

/// The comparison of costs keeps no results in the project: they are worked out.
constexpr const char* kCostScreen = "LcS";
const std::vector<std::string_view> kCostInputs = {"InitialItemCost", "RehabItemCost", "MaintItemCost"};
constexpr std::string_view kPagesOfCosts[] = {"LcA1", "LcA1_2", "LcA1_3", "LcA1_4", "EcFa"};

/// ESALs are on the screens of the designs too: on a route to them they tell nothing of the route.
bool IsShared(std::string_view variable) { return variable == "RIGE18" || variable == "FLEXE18"; }

bool AnyCounts(const ProcessState& state, const std::vector<std::string_view>& variables) {
    return std::any_of(variables.begin(), variables.end(), [&](std::string_view variable) {
        return !IsShared(variable) && AnyCellCounts(*state.dbCatalogue, state.dbWork, variable);
    });
}

/// As in the catalogue, which calls both of the ESALs that the designs ask for alike.
std::string TitleOf(const ProcessState& state, std::string_view variable) {
    if (variable == "RIGE18") return Translated("Rigid ESAL");
    if (variable == "FLEXE18") return Translated("Flexible ESAL");
    const Variable* known = state.dbCatalogue->FindVariable(variable);
    return known == nullptr || known->desc.empty() ? std::string(variable) : known->desc;
}

OverviewResult ResultOf(const ProcessState& state, std::string_view variable) {
    const std::string unit = state.units->UnitLabel(variable);
    return {std::string(variable), TitleOf(state, variable), state.units->GetDisplayValue(variable),
            IsNoUnit(unit) ? "" : unit};
}

std::vector<OverviewResult> CostResults(ProcessState& state) {
    CostSummary summary;
    bool complete = true;
    ComputeCostSummary(state.MakeCalcContext(), summary, [&](const ArithmeticFault&) { complete = false; });
    const auto text = [&](std::size_t pavement) {
        return complete ? FormatWhole(summary.pavements.at(pavement).euac) : std::string();
    };
    return {{"EUACA", Translated("EUAC, Pavement (A)"), text(0), ""},
            {"EUACB", Translated("EUAC, Pavement (B)"), text(1), ""}};
}

/// When one of a screen's variables was changed last, counted in events; 0: not since the project was opened.
/// What is compared of costs stands on screens of its own.
int LastChange(const ProcessState& state, std::string_view screen) {
    int last = 0;
    if (screen == kCostScreen) {
        for (const std::string_view page : kPagesOfCosts) last = std::max(last, LastChange(state, page));
    }
    for (const Field* field : state.dbCatalogue->FieldsOfScreen(screen)) {
        const auto found = state.changes.find(field->name);
        if (found != state.changes.end()) last = std::max(last, found->second);
    }
    return last;
}

std::string CaptionOf(const ProcessState& state, std::string_view screen) {
    const FormType* type = state.formRegistry.FindType(screen);
    return type == nullptr ? std::string(screen) : type->caption;
}

}  // namespace

std::vector<OverviewLine> MakeOverview(ProcessState& state) {
    std::vector<OverviewLine> lines;
    if (!state.dbWork.IsOpen()) return lines;
    const ScreenContext context = state.MakeScreenContext();
    for (const OverviewScreen& screen : Screens()) {
        if (!AnyCounts(state, screen.results) && !AnyCounts(state, screen.inputs)) continue;
        OverviewLine line{std::string(screen.name), CaptionOf(state, screen.name), {}, {}};
        for (const std::string_view result : screen.results) line.results.push_back(ResultOf(state, result));
        line.balanced = EquationHolds(context, screen.name);
        lines.push_back(std::move(line));
    }
    if (AnyCounts(state, kCostInputs))
        lines.push_back({kCostScreen, CaptionOf(state, kCostScreen), CostResults(state), std::nullopt});
    std::stable_sort(lines.begin(), lines.end(), [&](const OverviewLine& a, const OverviewLine& b) {
        return LastChange(state, a.name) > LastChange(state, b.name);
    });
    return lines;
}

}  // namespace kelvor

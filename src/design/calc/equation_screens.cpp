#include "design/calc/equation_screens.h"

#include <algorithm>
#include <array>

#include "platform/text.h"

namespace kelvor {

namespace {

constexpr FlexibleNames kNewFlexible = {"SN", "FLEXE18", "FLEXREL", "FLEXDEV", "RM", "FLEXPO", "FLEXPT"};
constexpr FlexibleNames kAcOfAc = {"ACACFUTSN", "FLEXE18", "ACACREL", "ACACDEV",
                                   "EXISTRM",   "ACACPO",  "ACACPT"};
constexpr FlexibleNames kAcOfFractured = {"ACCSFUTSN", "FLEXE18", "ACCSREL", "ACCSDEV",
                                          "EXISTRM2",  "ACCSPO",  "ACCSPT"};

constexpr RigidNames kNewRigid = {"DEPTH", "RIGE18", "RIGREL", "RIGDEV", "MR",   "EC",
                                  "J",     "K",      "C",      "RIGPO",  "RIGPT"};
constexpr RigidNames kAcOfPcc = {"ACPCFUTD", "RIGE18", "ACPCREL", "ACPCDEV", "EXISTMR", "EXISTEC",
                                 "EXISTJ",   "EXISTK", "EXISTC",  "ACPCPO",  "ACPCPT"};
constexpr RigidNames kAcOfComposite = {"ACACPCFUTD", "RIGE18", "ACACPCREL", "ACACPCDEV", "EXISTMR", "EXISTEC",
                                       "EXISTJ",     "EXISTK", "EXISTC",    "ACACPCPO",  "ACACPCPT"};
constexpr RigidNames kBonded = {"BOLFUTDEPTH", "RIGE18", "OLRIGREL", "OLRIGDEV", "EXISTMR", "EXISTEC",
                                "EXISTJ",      "EXISTK", "EXISTC",   "OLFUTPO",  "OLFUTPT"};
constexpr RigidNames kUnbonded = {"UBOLFUTDEPTH", "RIGE18", "OLRIGREL", "OLRIGDEV", "OLMR",   "OLEC",
                                  "OLJ",          "EXISTK", "EXISTC",   "OLFUTPO",  "OLFUTPT"};
constexpr RigidNames kWhitetopping = {"WTDEPTH", "RIGE18", "OLRIGREL", "OLRIGDEV", "OLMR",   "OLEC",
                                      "OLJ",     "EXISTK", "EXISTC",   "OLFUTPO",  "OLFUTPT"};

constexpr EquationScreen Flexible(std::string_view screen, const FlexibleNames& names, int firstTerm = 1) {
    return {screen, firstTerm, &names, nullptr};
}

constexpr EquationScreen Rigid(std::string_view screen, const RigidNames& names) {
    return {screen, 1, nullptr, &names};
}

constexpr std::array kEquations = {
    Flexible("DeF", kNewFlexible), Rigid("DeR", kNewRigid),
    Rigid("DeS", kNewRigid),       Flexible("DeS", kNewFlexible, static_cast<int>(kRigidTerms) + 1),
    Flexible("OvAA", kAcOfAc),     Flexible("OvAFP", kAcOfFractured),
    Rigid("OvAP", kAcOfPcc),       Rigid("OvAAP", kAcOfComposite),
    Rigid("OvBP", kBonded),        Rigid("OvUP", kUnbonded),
    Rigid("OvWT", kWhitetopping),
};

}  // namespace

std::span<const std::string_view> EquationScreen::Terms() const {
    if (flexible != nullptr) return *flexible;
    return *rigid;
}

std::span<const EquationScreen> EquationScreens() { return kEquations; }

const EquationScreen* FindEquation(std::string_view screen, int term) {
    const EquationScreen* found = nullptr;
    for (const EquationScreen& equation : kEquations) {
        if (!EqualNoCase(equation.screen, screen)) continue;
        if (found == nullptr || term >= equation.firstTerm) found = &equation;
    }
    return found;
}

std::optional<int> TermNumber(std::string_view screen, std::string_view variable) {
    for (const EquationScreen& equation : kEquations) {
        if (!EqualNoCase(equation.screen, screen)) continue;
        const auto terms = equation.Terms();
        const auto term = std::find_if(terms.begin(), terms.end(),
                                       [&](std::string_view name) { return EqualNoCase(name, variable); });
        if (term != terms.end()) return equation.firstTerm + static_cast<int>(term - terms.begin());
    }
    return std::nullopt;
}

int LastTerm(std::string_view screen) {
    int last = 0;
    for (const EquationScreen& equation : kEquations) {
        if (EqualNoCase(equation.screen, screen)) {
            last = equation.firstTerm + static_cast<int>(equation.Terms().size()) - 1;
        }
    }
    return last;
}

}  // namespace kelvor

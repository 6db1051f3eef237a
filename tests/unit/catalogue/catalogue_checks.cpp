#include "catalogue_checks.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <unordered_set>

#include "platform/number_picture.h"
#include "platform/text.h"

namespace kelvor::test {

namespace {

/// The variables whose limits are exactly 0 and 20: concrete thicknesses, inches.
const std::set<std::string, std::less<>> kConcreteThicknesses = {
    "DEPTH",       "ACPCFUTD",     "ACACPCFUTD", "BOLFUTDEPTH", "UBOLFUTDEPTH",
    "WTDEPTH",     "EXISTDEPTH",   "ACACPCACT",  "ACPCEFFD",    "ACACPCEFFD",
    "BOLEFFDEPTH", "UBOLEFFDEPTH", "BOLDEPTH",   "UBOLDEPTH",   "TrafficDEPTH",
};

/// The counts of a survey and what follows from them: any number may be typed.
const std::set<std::string, std::less<>> kWithoutLimits = {"APDETJTS", "APDETCRKS", "APDETPNCH",
                                                           "APDETEXP", "APDETTOT",  "APBOLFJC"};

/// Calculations that no output has: what an overlay of a given thickness would be good for, and the second
/// name of one.
const std::set<std::string, std::less<>> kKeysOfNoOutput = {"ACACFUTSN", "ACCSFUTSN", "BOLFUTDEPTH",
                                                            "UBOLFUTDEPTH", "InitialItemCost"};

/// Calculations of a column that work on the row in hand, which only the screen knows.
const std::set<std::string, std::less<>> kKeysOfTheRowInHand = {"MaintItemCost", "PWCostM"};

/// What must be calculated before what, by key: on one screen the needed output stands first.
const std::multimap<std::string, std::string, std::less<>> kNeeds = {
    {"SSN", "LDLayerStructNo"},
    {"LDAdditThick", "SSN"},
    {"EXISTEFSNSUM", "EXISTEFSN"},
    {"SNEFFTOT", "EXISTEFSN"},
    {"ACACTHICK", "ACACEFFSN"},
    {"ACCSTHICK", "ACCSEFFSN"},
    {"ACACPCOLT", "ACACPCEFFD"},
    {"ACPCOLT", "ACPCEFFD"},
    {"BOLDEPTH", "BOLEFFDEPTH"},
    {"UBOLDEPTH", "UBOLEFFDEPTH"},
    {"NDTEFFEP", "NDTRM"},
    {"AVGNDTRM", "NDTRM"},
    {"AVGNDTEFFEP", "NDTEFFEP"},
    {"BACKL", "AREA"},
    {"DYNK", "BACKL"},
    {"STATK", "DYNK"},
    {"NDTE", "DYNK"},
    {"AVGBACKL", "BACKL"},
    {"AVGSTATK", "STATK"},
    {"AVGNDTE", "NDTE"},
    {"BACKLC", "AREAC"},
    {"DYNKC", "BACKLC"},
    {"STATKC", "DYNKC"},
    {"NDTEC", "DYNKC"},
    {"AVGBACKLC", "BACKLC"},
    {"AVGSTATKC", "STATKC"},
    {"AVGNDTEC", "NDTEC"},
    {"TrRE18T", "TrRE18"},
    {"TrFE18T", "TrFE18"},
    {"PWCostM", "MaintItemCost"},
    {"ItemTotal3", "MaintItemCost"},
    {"PrWorthTotal3", "PWCostM"},
    {"PWCostR", "RehabItemCost"},
    {"ItemTotal2", "InitialItem"},
    {"ItemTotal4", "RehabItemCost"},
    {"PrWorthTotal4", "PWCostR"},
};

class Checker {
  public:
    Checker(Catalogue& catalogue, const Dispatch& calculations)
        : catalogue_(catalogue), calculations_(calculations) {}

    std::vector<std::string> Run() {
        for (const Variable& variable : catalogue_.variables()) CheckVariable(variable);
        for (const Field& field : catalogue_.fields()) CheckField(field);
        for (const SolveKey& equation : calculations_.SolveKeys()) CheckEquation(equation);
        for (const Screen& screen : catalogue_.screens()) {
            CheckOutputOrder(screen.name);
            CheckGrid(screen.name);
        }
        CheckKeysAreUsed();
        CheckUnitPairs();
        CheckHelpSentences();
        return faults_;
    }

  private:
    void Fault(const std::string& rule, const std::string& where) { faults_.push_back(rule + ": " + where); }

    void CheckVariable(const Variable& variable) {
        if (!IsNumberPicture(variable.format)) Fault("picture", variable.name);
        if (variable.desc.empty()) Fault("description", variable.name);
        if (catalogue_.FindPairByEnglish(variable.units) == nullptr) Fault("unit", variable.name);
        if (variable.dim1 < 1 || variable.dim2 < 1) Fault("bounds", variable.name);
        if (variable.low && variable.high && *variable.low > *variable.high) Fault("limits", variable.name);
        if (variable.lowMetric && variable.highMetric && *variable.lowMetric > *variable.highMetric) {
            Fault("limits", variable.name);
        }
        const bool limitsOfConcrete = variable.low == 0.0 && variable.high == 20.0;
        if (limitsOfConcrete != kConcreteThicknesses.contains(variable.name))
            Fault("concrete", variable.name);
        if (kWithoutLimits.contains(variable.name) && HasLimits(variable)) Fault("count", variable.name);
    }

    static bool HasLimits(const Variable& variable) {
        return variable.low || variable.high || variable.lowMetric || variable.highMetric;
    }

    void CheckField(const Field& field) {
        const std::string where = field.screen + "." + field.name;
        if (!fields_.insert(where).second) Fault("field twice", where);
        if (catalogue_.FindScreen(field.screen) == nullptr) Fault("screen", where);
        if (field.IsGrid()) return;  // the grid itself is no variable
        const Variable* variable = catalogue_.FindVariable(field.name);
        if (variable == nullptr) {
            Fault("variable", where);
            return;
        }
        if (variable->helpHead.empty() || !catalogue_.HelpText(field.name)) Fault("help", where);
        const bool isLimited = !variable->IsText() && !kWithoutLimits.contains(variable->name);
        if (isLimited && !field.IsOutput()) CheckLimits(*variable, where);
        CheckSolveFor(field, where);
        if (field.IsOutput()) CheckOutput(field, where);
    }

    void CheckLimits(const Variable& variable, const std::string& where) {
        if (!variable.low || !variable.high || !variable.lowMetric || !variable.highMetric)
            Fault("range", where);
        // Whatever is allowed in English is allowed in metric units too.
        const UnitPair* pair = catalogue_.FindPairByEnglish(variable.units);
        if (pair == nullptr) return;
        const double slack = 1e-7;  // for the rounding of the factor
        if (variable.high && variable.highMetric &&
            *variable.high * pair->factor > *variable.highMetric + slack * std::fabs(*variable.highMetric)) {
            Fault("metric limits", where);
        }
        if (variable.low && variable.lowMetric &&
            *variable.low * pair->factor < *variable.lowMetric - slack * std::fabs(*variable.lowMetric)) {
            Fault("metric limits", where);
        }
    }

    /// Only the terms of an equation can be solved for, and only they stand below 19.
    void CheckSolveFor(const Field& field, const std::string& where) {
        const auto term = calculations_.TermNumber(field.screen, field.name);
        if (term) {
            if (field.seq != term || field.solveFor != 1.0) Fault("term", where);
        } else if (field.solveFor ||
                   (calculations_.LastTerm(field.screen) > 0 && field.seq.value_or(0) < 19)) {
            Fault("term", where);
        }
    }

    void CheckOutput(const Field& field, const std::string& where) {
        const bool isOfCells = field.IsColumn() && !kKeysOfTheRowInHand.contains(field.equation);
        const auto keys = isOfCells ? calculations_.CellKeys() : calculations_.FieldKeys();
        if (std::find(keys.begin(), keys.end(), field.equation) == keys.end()) Fault("equation", where);
    }

    /// A screen with columns has the one grid that they are in, and the other way round.
    void CheckGrid(const std::string& screen) {
        std::ptrdiff_t grids = 0;
        bool hasColumns = false;
        for (const Field& field : catalogue_.fields()) {
            if (!EqualNoCase(field.screen, screen)) continue;
            if (field.IsGrid()) ++grids;
            if (field.IsColumn()) hasColumns = true;
        }
        if (grids != (hasColumns ? 1 : 0)) Fault("grid", screen);
    }

    /// A calculation that no output has would never run.
    void CheckKeysAreUsed() {
        std::set<std::string, std::less<>> used = kKeysOfNoOutput;
        for (const Field& field : catalogue_.fields()) used.insert(field.equation);
        const auto check = [&](const auto& keys) {
            for (const std::string_view key : keys) {
                if (!used.contains(key)) Fault("key without output", std::string(key));
            }
        };
        check(calculations_.FieldKeys());
        check(calculations_.CellKeys());
    }

    void CheckOutputOrder(const std::string& screen) {
        const auto outputs = catalogue_.OutputsOfScreen(screen);
        for (auto output = outputs.begin(); output != outputs.end(); ++output) {
            const auto [first, last] = kNeeds.equal_range((*output)->equation);
            for (auto need = first; need != last; ++need) {
                const bool later = std::any_of(output + 1, outputs.end(), [&](const Field* field) {
                    return field->equation == need->second;
                });
                if (later) Fault("order", screen + "." + (*output)->name);
            }
        }
    }

    void CheckEquation(const SolveKey& equation) {
        for (const std::string_view term : equation.terms) {
            const auto fields = catalogue_.FieldsOfScreen(equation.screen);
            const bool there = std::any_of(fields.begin(), fields.end(), [&](const Field* field) {
                return EqualNoCase(field->name, term);
            });
            if (!there) Fault("missing term", std::string(equation.screen) + "." + std::string(term));
        }
    }

    void CheckUnitPairs() {
        const auto& pairs = catalogue_.unitPairs();
        if (pairs.empty() || pairs.front().english != "in" || pairs.front().metric != "mm")
            Fault("first pair", "in");
        for (const UnitPair& pair : pairs) {
            if (catalogue_.FindPairByEnglish(pair.english) != &pair) Fault("pair twice", pair.english);
            if (catalogue_.FindPairByMetric(pair.metric) != &pair) Fault("pair twice", pair.metric);
        }
    }

    /// A sentence that serves many fields says nothing about any of them.
    void CheckHelpSentences() {
        std::map<std::string, int> count;
        for (const Variable& variable : catalogue_.variables()) {
            const auto text = catalogue_.HelpText(variable.name);
            if (!text) continue;
            for (const std::string& sentence : Sentences(*text)) ++count[sentence];
        }
        for (const auto& [sentence, times] : count) {
            if (times > 3) Fault("repeated help", sentence);
        }
    }

    static std::set<std::string> Sentences(const std::string& text) {
        std::vector<std::string> sentences(1);
        for (std::size_t i = 0; i < text.size(); ++i) {
            const bool ends =
                text[i] == '\n' || (text[i] == '.' && (i + 1 == text.size() || text[i + 1] == ' '));
            if (text[i] != '\n') sentences.back().push_back(text[i]);
            if (ends) sentences.emplace_back();
        }
        std::set<std::string> different;
        for (std::string& sentence : sentences) {
            sentence.erase(0, sentence.find_first_not_of(' '));
            if (!sentence.empty()) different.insert(sentence);
        }
        return different;
    }

    Catalogue& catalogue_;
    const Dispatch& calculations_;
    std::unordered_set<std::string, NameHash, NameEqual> fields_;  // "screen.name"
    std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> CheckCatalogue(Catalogue& catalogue, const Dispatch& calculations) {
    return Checker(catalogue, calculations).Run();
}

}  // namespace kelvor::test

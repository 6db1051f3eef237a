#include "calc/dispatch.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "calc/ignore_faults.h"
#include "platform/text.h"

namespace kelvor {

namespace {

template <typename Map, typename Entries>
void Join(Map& map, const Entries& entries) {
    for (const auto& entry : entries) {
        if (!map.emplace(entry.key, entry.routine).second) {
            throw std::logic_error("calculation key " + std::string(entry.key) + " stands twice");
        }
    }
}

void JoinSolves(std::vector<SolveKey>& solves, std::span<const SolveKey> more) {
    for (const SolveKey& solve : more) {
        const bool twice = std::any_of(solves.begin(), solves.end(), [&](const SolveKey& other) {
            return EqualNoCase(other.screen, solve.screen) && solve.firstTerm <= other.LastTerm() &&
                   other.firstTerm <= solve.LastTerm();
        });
        if (twice) throw std::logic_error("a term of " + std::string(solve.screen) + " stands twice");
        solves.push_back(solve);
    }
}

template <typename Map>
std::vector<std::string_view> SortedKeys(const Map& map) {
    std::vector<std::string_view> keys;
    keys.reserve(map.size());
    for (const auto& entry : map) keys.push_back(entry.first);
    std::sort(keys.begin(), keys.end());
    return keys;
}

}  // namespace

Dispatch::Dispatch(std::initializer_list<KeyTable> tables) {
    for (const KeyTable& table : tables) {
        Join(fields_, table.fields);
        Join(cells_, table.cells);
        JoinSolves(solves_, table.solves);
    }
    std::stable_sort(solves_.begin(), solves_.end(),
                     [](const SolveKey& a, const SolveKey& b) { return a.firstTerm < b.firstTerm; });
}

void Dispatch::CalcField(CalcContext& context, std::string_view target, std::string_view key) const {
    const auto found = fields_.find(key);
    if (found == fields_.end()) return;
    IgnoreFaults([&] { found->second(context, target); });
}

void Dispatch::CalcCell(CalcContext& context, std::string_view target, int dim1, int dim2,
                        std::string_view key) const {
    const auto found = cells_.find(key);
    if (found == cells_.end()) return;
    IgnoreFaults([&] { found->second(context, target, dim1, dim2); });
}

int Dispatch::SolveForVariable(CalcContext& context, std::string_view screen, int term) const {
    const SolveKey* equation = FindEquation(screen, term);
    return equation == nullptr ? 0
                               : equation->solve(context, term - equation->firstTerm + 1, equation->terms);
}

const SolveKey* Dispatch::FindEquation(std::string_view screen, int term) const {
    const SolveKey* found = nullptr;
    for (const SolveKey& equation : solves_) {
        if (!EqualNoCase(equation.screen, screen)) continue;
        if (found == nullptr || term >= equation.firstTerm) found = &equation;
    }
    return found;
}

std::vector<const SolveKey*> Dispatch::EquationsOf(std::string_view screen) const {
    std::vector<const SolveKey*> equations;
    for (const SolveKey& equation : solves_) {
        if (EqualNoCase(equation.screen, screen)) equations.push_back(&equation);
    }
    return equations;
}

int Dispatch::LastTerm(std::string_view screen) const {
    const auto equations = EquationsOf(screen);
    return equations.empty() ? 0 : equations.back()->LastTerm();
}

std::optional<int> Dispatch::TermNumber(std::string_view screen, std::string_view variable) const {
    for (const SolveKey* equation : EquationsOf(screen)) {
        const auto term = std::find_if(equation->terms.begin(), equation->terms.end(),
                                       [&](std::string_view name) { return EqualNoCase(name, variable); });
        if (term != equation->terms.end()) {
            return equation->firstTerm + static_cast<int>(term - equation->terms.begin());
        }
    }
    return std::nullopt;
}

std::vector<std::string_view> Dispatch::FieldKeys() const { return SortedKeys(fields_); }
std::vector<std::string_view> Dispatch::CellKeys() const { return SortedKeys(cells_); }

}  // namespace kelvor

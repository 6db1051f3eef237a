#include "calc/dispatch.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "platform/real.h"

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

template <typename Map>
std::vector<std::string_view> SortedKeys(const Map& map) {
    std::vector<std::string_view> keys;
    keys.reserve(map.size());
    for (const auto& entry : map) keys.push_back(entry.first);
    std::sort(keys.begin(), keys.end());
    return keys;
}

/// Runs a calculation; a fault abandons it and its target keeps the value it had.
template <typename Calculation>
void IgnoreFaults(Calculation calculate) {
    try {
        calculate();
    } catch (const ArithmeticFault&) {  // NOLINT(bugprone-empty-catch): no message belongs here
    }
}

}  // namespace

Dispatch::Dispatch(std::initializer_list<KeyTable> tables) {
    for (const KeyTable& table : tables) {
        Join(fields_, table.fields);
        Join(cells_, table.cells);
    }
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

std::vector<std::string_view> Dispatch::FieldKeys() const { return SortedKeys(fields_); }
std::vector<std::string_view> Dispatch::CellKeys() const { return SortedKeys(cells_); }

}  // namespace kelvor

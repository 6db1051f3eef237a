#include "console/model_driver.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

#include "console/script/command_line.h"
#include "design/calc/equation_screens.h"
#include "platform/text.h"

namespace kelvor {

namespace {

std::optional<int> WholeNumber(const std::string& text) {
    std::int16_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

}  // namespace

void ModelDriver::New() {
    // Without a template there is no project to go on with.
    if (!program_.NewProject()) throw ProgramStop("no new project can be made");
}

void ModelDriver::Open(const std::string& path) { program_.OpenProject(path); }
void ModelDriver::Save() { program_.Save(); }
void ModelDriver::SaveAs(const std::string& path) { program_.SaveAs(path); }
void ModelDriver::ChooseUnits(bool metric) { program_.ChooseUnits(metric); }

CellReport ModelDriver::Get(const CellKey& key) {
    const ProjectStore& store = program_.state().dbWork;
    const CellValue* cell = store.FindCell(key.name, key.dim1, key.dim2);
    if (cell == nullptr) return {key, std::nullopt};
    // The catalogue's spelling of the name, whatever the file's or the command's.
    const Variable* variable = program_.state().dbCatalogue->FindVariable(key.name);
    const std::string name(variable != nullptr ? variable->name : store.CanonicalName(key.name));
    return {{name, key.dim1, key.dim2}, *cell};
}

void ModelDriver::Set(const CellKey& key, const std::string& value) {
    program_.SetValue(key.name, key.dim1, key.dim2, value);
}

DisplayReport ModelDriver::Show(const CellKey& key) {
    const Units& units = *program_.state().units;
    const Variable* variable = program_.state().dbCatalogue->FindVariable(key.name);
    return {{variable != nullptr ? variable->name : key.name, key.dim1, key.dim2},
            units.GetDisplayValue(key.name, key.dim1, key.dim2),
            units.UnitLabel(key.name)};
}

std::vector<CellReport> ModelDriver::Dump(const std::string& pattern) {
    std::vector<CellReport> cells;
    program_.state().dbWork.ForEachFilled([&](const CellKey& key, const CellValue& /*value*/) {
        if (Like(key.name, pattern)) cells.push_back(Get(key));
    });
    return cells;
}

void ModelDriver::Calc(const std::string& key, const std::string& target) { program_.CalcField(target, key); }

void ModelDriver::CalcCell(const std::string& key, int dim1, int dim2, const std::string& target) {
    program_.CalcCell(target, dim1, dim2, key);
}

int ModelDriver::FindTerm(const std::string& screen, const std::string& term) {
    if (const auto number = WholeNumber(term)) {
        const int last = LastTerm(screen);
        if (last > 0 && (*number < 1 || *number > last)) {
            throw ScriptError(screen + " has terms 1 to " + std::to_string(last));
        }
        return *number;
    }
    const auto number = TermNumber(screen, term);
    if (!number) throw ScriptError(screen + " has no term " + term);
    return *number;
}

int ModelDriver::Solve(const std::string& screen, int term) { return program_.Solve(screen, term); }

void ModelDriver::QueueAnswer(const std::string& text) { dialogs_.QueueAnswer(text); }

}  // namespace kelvor

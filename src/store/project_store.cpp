#include "store/project_store.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include "platform/database_error.h"
#include "platform/translation.h"
#include "store/project_version.h"
#include "store/work_copy.h"

namespace kelvor {

namespace {

/// Room made at once for the cells of a project; one that has more grows.
constexpr std::size_t kUsualCells = 100'000;

/// Below, at or above 0 as `a` stands before, with or after `b` in the work copy's order of names.
int CompareNames(std::string_view a, std::string_view b) {
    if (a == b) return 0;  // as most names of a work copy are with the one before
    const auto [x, y] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char c, char d) { return FoldLetter(c) == FoldLetter(d); });
    if (x == a.end() || y == b.end()) return static_cast<int>(x != a.end()) - static_cast<int>(y != b.end());
    const auto byte = [](char c) { return static_cast<int>(static_cast<unsigned char>(FoldLetter(c))); };
    return byte(*x) - byte(*y);
}

std::size_t CountCells(const std::vector<CellBounds>& bounds) {
    std::size_t count = 0;
    for (const CellBounds& variable : bounds)
        count += static_cast<std::size_t>(variable.dim1) * static_cast<std::size_t>(variable.dim2);
    return count;
}

}  // namespace

void SortByName(std::vector<CellBounds>& bounds) {
    // By names in one case, made once: a comparison that folds letters takes longer than the rest.
    std::vector<std::pair<std::string, std::size_t>> order;
    order.reserve(bounds.size());
    for (std::size_t i = 0; i < bounds.size(); ++i) {
        std::string& folded = order.emplace_back(bounds[i].name, i).first;
        std::transform(folded.begin(), folded.end(), folded.begin(), FoldLetter);
    }
    std::sort(order.begin(), order.end());
    std::vector<CellBounds> sorted;
    sorted.reserve(bounds.size());
    for (const auto& [name, place] : order) sorted.push_back(std::move(bounds[place]));
    bounds = std::move(sorted);
}

std::string CellText(std::string_view name, int dim1, int dim2) {
    return std::string(name) + "(" + std::to_string(dim1) + "," + std::to_string(dim2) + ")";
}

ProjectStore::ProjectStore() = default;

ProjectStore::~ProjectStore() { Abandon(); }

// --- Opening and closing -----------------------------------------------------------------------

void ProjectStore::Open(const Path& workCopy, const std::vector<CellBounds>& bounds, bool checkPages,
                        const ProjectCells* known) {
    Abandon();
    ++openings_;
    workCopy_ = std::make_unique<WorkCopy>(workCopy, checkPages);
    try {
        if (workCopy_->version() != kProjectVersion) known = nullptr;  // it will have other rows
        BringUpToDate(*workCopy_, bounds);
        if (checkPages || !LoadByBounds(bounds, known)) LoadByRows(bounds);
    } catch (...) {
        Abandon();
        throw;
    }
}

bool ProjectStore::LoadByBounds(const std::vector<CellBounds>& bounds, const ProjectCells* known) {
    const auto unordered = [](const CellBounds& a, const CellBounds& b) {
        return CompareNames(a.name, b.name) >= 0;
    };
    const std::size_t count = CountCells(bounds);
    if (count > kUsualCells || count != (known != nullptr ? known->rows : workCopy_->CountRows()) ||
        std::adjacent_find(bounds.begin(), bounds.end(), unordered) != bounds.end()) {
        return false;
    }
    LayOut(bounds);
    bool within = true;
    const auto fill = [&](std::string_view name, int dim1, int dim2, const CellValue& value) {
        const auto place = FindPlace(name, dim1, dim2);
        if (place) variables_[place->variable].Touch(place->cell).value = value;
        within = within && place;
    };
    if (known != nullptr) {
        for (const auto& [key, value] : known->cells) fill(key.name, key.dim1, key.dim2, value);
    } else {
        workCopy_->ReadFilledRows(
            [&](const WorkCopy::Row& row) { fill(row.name, row.dim1, row.dim2, row.value); });
    }
    if (!within) ForgetCells();
    return within;
}

void ProjectStore::LayOut(const std::vector<CellBounds>& bounds) {
    variables_.reserve(bounds.size());
    byName_.Reserve(bounds.size());
    for (const CellBounds& declared : bounds) {
        Variable& variable = AddVariable(declared.name);
        variable.count =
            static_cast<std::uint32_t>(declared.dim1) * static_cast<std::uint32_t>(declared.dim2);
        variable.width = declared.dim2;
    }
}

void ProjectStore::LoadByRows(const std::vector<CellBounds>& bounds) {
    variables_.reserve(bounds.size());
    byName_.Reserve(bounds.size());
    workCopy_->ReadRows(
        [this](const WorkCopy::Row& row) { AddCell(row.name, row.dim1, row.dim2, row.value); });
    for (Variable& variable : variables_) variable.MarkBlock();
    for (const CellBounds& variable : bounds) CheckBounds(variable);
}

void ProjectStore::AddCell(std::string_view name, int dim1, int dim2, const CellValue& value) {
    // The rows come in key order, so a variable's cells follow each other. In a damaged work copy that has
    // them in another order no change would find its row.
    const int order = variables_.empty() ? 1 : CompareNames(name, variables_.back().name);
    const std::pair subscripts(dim1, dim2);
    if (order < 0 || (order == 0 && subscripts <= variables_.back().subscripts.back())) {
        throw DatabaseError(Translated("rows out of order"), false);
    }
    Variable& variable = order > 0 ? AddVariable(name) : variables_.back();
    ++variable.count;
    variable.subscripts.push_back(subscripts);
    variable.cells.emplace_back();
    if (value.IsFilled()) variable.cells.back().value = value;
}

ProjectStore::Variable& ProjectStore::AddVariable(std::string_view name) {
    byName_.Add(name);
    variables_.emplace_back().name = name;
    return variables_.back();
}

void ProjectStore::CheckBounds(const CellBounds& bounds) const {
    const Variable* variable = FindVariable(bounds.name);
    for (int dim1 = 1; dim1 <= bounds.dim1; ++dim1) {
        for (int dim2 = 1; dim2 <= bounds.dim2; ++dim2) {
            if (variable == nullptr || !variable->PlaceOf(dim1, dim2)) {
                throw DatabaseError(
                    Filled(Translated("cell %1 is missing"), {CellText(bounds.name, dim1, dim2)}), false);
            }
        }
    }
}

void ProjectStore::Close() {
    if (!IsOpen()) return;
    EndEvent();
    WriteUnwritten();
    Forget();
}

void ProjectStore::Abandon() noexcept {
    if (inTransaction_) workCopy_->Rollback();
    Forget();
}

void ProjectStore::Forget() noexcept {
    workCopy_.reset();
    ForgetCells();
    formers_.clear();
    inEvent_ = false;
    inTransaction_ = false;
}

void ProjectStore::ForgetCells() noexcept {
    variables_.clear();
    byName_.Clear();
}

// --- Finding -------------------------------------------------------------------------------------

std::pair<int, int> ProjectStore::Variable::SubscriptsOf(std::uint32_t place) const {
    if (width == 0) return subscripts[place];
    const auto number = static_cast<int>(place);
    return {number / width + 1, number % width + 1};
}

std::optional<std::uint32_t> ProjectStore::Variable::PlaceOf(int dim1, int dim2) const {
    if (dim1 < 1 || dim2 < 1) return std::nullopt;
    if (width > 0) {
        const std::int64_t place = std::int64_t{dim1 - 1} * width + dim2 - 1;
        if (dim2 > width || place >= count) return std::nullopt;
        return static_cast<std::uint32_t>(place);
    }
    const auto found = std::lower_bound(subscripts.begin(), subscripts.end(), std::pair(dim1, dim2));
    if (found == subscripts.end() || *found != std::pair(dim1, dim2)) return std::nullopt;
    return static_cast<std::uint32_t>(found - subscripts.begin());
}

const StoredCell& ProjectStore::Variable::At(std::uint32_t place) const {
    static const StoredCell kEmpty;
    return cells.empty() ? kEmpty : cells[place];
}

StoredCell& ProjectStore::Variable::Touch(std::uint32_t place) {
    if (cells.empty()) cells.resize(count);
    return cells[place];
}

void ProjectStore::Variable::MarkBlock() {
    const int last = subscripts.back().second;
    std::pair<int, int> expected(1, 1);
    for (const auto& [dim1, dim2] : subscripts) {
        if (std::pair(dim1, dim2) != expected) return;
        expected = dim2 < last ? std::pair(dim1, dim2 + 1) : std::pair(dim1 + 1, 1);
    }
    width = last;
    subscripts.clear();
}

std::optional<std::uint32_t> ProjectStore::FindName(std::string_view name) const {
    ++readCount_;
    return byName_.Find(
        name, [this](std::uint32_t variable) -> const std::string& { return variables_[variable].name; });
}

const ProjectStore::Variable* ProjectStore::FindVariable(std::string_view name) const {
    const auto index = FindName(name);
    return index ? &variables_[*index] : nullptr;
}

std::optional<ProjectStore::Place> ProjectStore::FindPlace(std::string_view name, int dim1, int dim2) const {
    const auto variable = FindName(name);
    if (!variable) return std::nullopt;
    const auto cell = variables_[*variable].PlaceOf(dim1, dim2);
    return cell ? std::optional(Place{*variable, *cell}) : std::nullopt;
}

ProjectStore::Place ProjectStore::RequirePlace(std::string_view name, int dim1, int dim2) const {
    const auto place = FindPlace(name, dim1, dim2);
    if (!place) throw ProgramStop("no cell " + CellText(name, dim1, dim2));
    return *place;
}

CellKey ProjectStore::KeyOf(Place place) const {
    const Variable& variable = variables_[place.variable];
    const auto [dim1, dim2] = variable.SubscriptsOf(place.cell);
    return {variable.name, dim1, dim2};
}

const CellValue* ProjectStore::FindCell(std::string_view name, int dim1, int dim2) const {
    const auto place = FindPlace(name, dim1, dim2);
    return place ? &At(*place).value : nullptr;
}

std::string_view ProjectStore::CanonicalName(std::string_view name) const {
    const Variable* variable = FindVariable(name);
    return variable == nullptr ? std::string_view{} : std::string_view(variable->name);
}

Real ProjectStore::GetVarDim(std::string_view name, int dim1, int dim2) const {
    return At(RequirePlace(name, dim1, dim2)).value.number.value_or(0.0);
}

std::optional<Real> ProjectStore::FindNumber(std::string_view name, int dim1, int dim2) const {
    const auto& number = At(RequirePlace(name, dim1, dim2)).value.number;
    return number ? std::optional(Real(*number)) : std::nullopt;
}

// --- Writing -------------------------------------------------------------------------------------

void ProjectStore::SetVar(std::string_view name, Real value) {
    if (const auto place = FindPlace(name, 1, 1)) StoreNumber(*place, value);
}

void ProjectStore::SetVarDim(std::string_view name, int dim1, int dim2, Real value) {
    StoreNumber(RequirePlace(name, dim1, dim2), value);
}

void ProjectStore::SetVarText(std::string_view name, std::string_view text) {
    SetCell(name, 1, 1, {std::nullopt, text.empty() ? std::nullopt : std::optional(std::string(text))});
}

void ProjectStore::SetCell(std::string_view name, int dim1, int dim2, CellValue value) {
    if (const auto place = FindPlace(name, dim1, dim2)) Store(*place, std::move(value));
}

void ProjectStore::StoreNumber(Place place, Real number) {
    const CellValue& former = At(place).value;
    if (former.number == number.value()) return;
    Store(place, {number.value(), former.text});
}

void ProjectStore::Store(Place place, CellValue value) {
    if (value.number && !std::isfinite(*value.number)) RaiseArithmeticFault("a number to be stored");
    if (value.number == 0.0) value.number = 0.0;  // a zero has no sign
    if (At(place).value == value) return;
    StoredCell& cell = variables_[place.variable].Touch(place.cell);
    CellValue former = std::exchange(cell.value, std::move(value));
    if (inEvent_) formers_.push_back({place, std::move(former), cell.unwritten});
    WriteThrough(place, cell);
}

void ProjectStore::WriteThrough(Place place, StoredCell& cell) {
    try {
        if (inEvent_ && !inTransaction_) {
            workCopy_->Begin();
            inTransaction_ = true;
        }
        const Variable& variable = variables_[place.variable];
        const auto [dim1, dim2] = variable.SubscriptsOf(place.cell);
        workCopy_->Update(variable.name, dim1, dim2, cell.value);
        cell.unwritten = false;
    } catch (const DatabaseError&) {
        cell.unwritten = true;  // kept in memory; Close writes it or reports
    }
}

int ProjectStore::writes() const { return workCopy_->writes(); }

std::string ProjectStore::WorkCopyContent() const { return workCopy_->Content(); }

void ProjectStore::EndEvent() {
    inEvent_ = false;
    if (std::exchange(inTransaction_, false)) {
        try {
            workCopy_->Commit();
        } catch (const DatabaseError&) {
            workCopy_->Rollback();
            MarkUnwritten();
        }
    }
    if (IsOpen()) workCopy_->FlushIfDue();
    formers_.clear();
}

std::vector<CellChange> ProjectStore::EventChanges() const {
    std::vector<CellChange> changes;
    changes.reserve(formers_.size());
    std::set<Place> seen;
    for (const Former& former : formers_) {
        if (formers_.size() > 1 && !seen.insert(former.place).second) continue;
        const CellValue& value = At(former.place).value;
        if (value != former.value) changes.push_back({KeyOf(former.place), former.value, value});
    }
    return changes;
}

void ProjectStore::UndoEvent() noexcept {
    inEvent_ = false;
    // The last write goes first, as a cell may have been written more than once.
    std::for_each(formers_.rbegin(), formers_.rend(), [this](Former& former) {
        StoredCell& cell = variables_[former.place.variable].cells[former.place.cell];
        cell.value = std::move(former.value);
        cell.unwritten = former.unwritten;
    });
    // A transaction that a failure had ended before may have left some of the writes behind.
    if (std::exchange(inTransaction_, false) && !workCopy_->Rollback()) MarkUnwritten();
    formers_.clear();
}

/// The work copy is not known to have what the memory holds of the open event's cells.
void ProjectStore::MarkUnwritten() noexcept {
    for (const auto& [place, value, unwritten] : formers_) {
        variables_[place.variable].cells[place.cell].unwritten = true;
    }
}

void ProjectStore::WriteUnwritten() {
    for (Variable& variable : variables_) {
        for (std::uint32_t place = 0; place < variable.cells.size(); ++place) {
            StoredCell& cell = variable.cells[place];
            if (!cell.unwritten) continue;
            const auto [dim1, dim2] = variable.SubscriptsOf(place);
            workCopy_->Update(variable.name, dim1, dim2, cell.value);
            cell.unwritten = false;
        }
    }
}

// --- Aggregates ----------------------------------------------------------------------------------

std::optional<Real> ProjectStore::SQLSum(std::string_view name, std::optional<int> dim2) const {
    const Variable* variable = FindVariable(name);
    if (variable == nullptr) return std::nullopt;
    std::optional<Real> sum;
    for (std::uint32_t place = 0; place < variable->cells.size(); ++place) {
        const auto& number = variable->cells[place].value.number;
        if (number && (!dim2 || variable->SubscriptsOf(place).second == *dim2))
            sum = sum.value_or(0.0) + *number;
    }
    return sum;
}

int ProjectStore::SQLCount(std::string_view name, std::optional<int> dim2) const {
    const Variable* variable = FindVariable(name);
    if (variable == nullptr) return 0;
    int count = 0;
    for (std::uint32_t place = 0; place < variable->cells.size(); ++place) {
        const bool counts = !dim2 || variable->SubscriptsOf(place).second == *dim2;
        if (counts && variable->cells[place].value.number) ++count;
    }
    return count;
}

void ProjectStore::ForEachFilled(const std::function<void(const CellKey&, const CellValue&)>& visit) const {
    for (std::uint32_t variable = 0; variable < variables_.size(); ++variable) {
        const std::vector<StoredCell>& cells = variables_[variable].cells;
        for (std::uint32_t place = 0; place < cells.size(); ++place) {
            if (cells[place].value.IsFilled()) visit(KeyOf({variable, place}), cells[place].value);
        }
    }
}

std::vector<std::string> ProjectStore::CompareWithWorkCopy() {
    std::vector<std::string> differences;
    std::size_t rows = 0;
    workCopy_->ReadRows([&](const WorkCopy::Row& row) {
        ++rows;
        const CellValue* cell = FindCell(row.name, row.dim1, row.dim2);
        if (cell == nullptr || !(*cell == row.value))
            differences.push_back(CellText(row.name, row.dim1, row.dim2));
    });
    std::size_t cells = 0;
    for (const Variable& variable : variables_) cells += variable.count;
    if (rows != cells) differences.emplace_back("number of rows");
    return differences;
}

}  // namespace kelvor

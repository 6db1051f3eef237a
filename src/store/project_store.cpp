#include "store/project_store.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <unordered_set>
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
    std::sort(bounds.begin(), bounds.end(),
              [](const CellBounds& a, const CellBounds& b) { return CompareNames(a.name, b.name) < 0; });
}

std::string CellText(std::string_view name, int dim1, int dim2) {
    return std::string(name) + "(" + std::to_string(dim1) + "," + std::to_string(dim2) + ")";
}

ProjectStore::ProjectStore() = default;

ProjectStore::~ProjectStore() { Abandon(); }

// --- Opening and closing -----------------------------------------------------------------------

void ProjectStore::Open(const Path& workCopy, const std::vector<CellBounds>& bounds, bool checkPages) {
    Abandon();
    ++openings_;
    workCopy_ = std::make_unique<WorkCopy>(workCopy, checkPages);
    try {
        BringUpToDate(*workCopy_, bounds);
        if (checkPages || !LoadByBounds(bounds)) LoadByRows(bounds);
    } catch (...) {
        Abandon();
        throw;
    }
}

bool ProjectStore::LoadByBounds(const std::vector<CellBounds>& bounds) {
    const auto unordered = [](const CellBounds& a, const CellBounds& b) {
        return CompareNames(a.name, b.name) >= 0;
    };
    const std::size_t count = CountCells(bounds);
    if (count > kUsualCells || count != workCopy_->CountRows() ||
        std::adjacent_find(bounds.begin(), bounds.end(), unordered) != bounds.end()) {
        return false;
    }
    LayOut(bounds);
    bool within = true;
    workCopy_->ReadFilledRows([&](const WorkCopy::Row& row) {
        const auto index = Index(row.name, row.dim1, row.dim2);
        if (index) cells_[*index].value = row.value;
        within = within && index;
    });
    if (!within) ForgetCells();
    return within;
}

void ProjectStore::LayOut(const std::vector<CellBounds>& bounds) {
    cells_.reserve(CountCells(bounds));
    variables_.reserve(bounds.size());
    byName_.reserve(bounds.size());
    for (const CellBounds& variable : bounds) {
        AddVariable(variable.name);
        for (int dim1 = 1; dim1 <= variable.dim1; ++dim1) {
            for (int dim2 = 1; dim2 <= variable.dim2; ++dim2) AppendCell(dim1, dim2);
        }
        variables_.back().width = variable.dim2;
    }
}

void ProjectStore::LoadByRows(const std::vector<CellBounds>& bounds) {
    cells_.reserve(std::min(CountCells(bounds), kUsualCells));  // a damaged catalogue may ask for any number
    variables_.reserve(bounds.size());
    byName_.reserve(bounds.size());
    workCopy_->ReadRows(
        [this](const WorkCopy::Row& row) { AddCell(row.name, row.dim1, row.dim2, row.value); });
    MarkBlocks();
    for (const CellBounds& variable : bounds) CheckBounds(variable);
}

void ProjectStore::AddCell(std::string_view name, int dim1, int dim2, const CellValue& value) {
    // The rows come in key order, so a variable's cells follow each other. In a damaged work copy that has
    // them in another order no change would find its row.
    const int order = variables_.empty() ? 1 : CompareNames(name, variables_.back().name);
    if (order < 0 ||
        (order == 0 && std::pair(dim1, dim2) <= std::pair(cells_.back().dim1, cells_.back().dim2))) {
        throw DatabaseError(Translated("rows out of order"), false);
    }
    if (order > 0) AddVariable(name);
    Cell& cell = AppendCell(dim1, dim2);
    if (value.IsFilled()) cell.value = value;
}

void ProjectStore::AddVariable(std::string_view name) {
    byName_.emplace(name, static_cast<std::uint32_t>(variables_.size()));
    variables_.push_back({std::string(name), static_cast<std::uint32_t>(cells_.size()), 0, 0});
}

ProjectStore::Cell& ProjectStore::AppendCell(int dim1, int dim2) {
    ++variables_.back().count;
    Cell& cell = cells_.emplace_back();
    cell.variable = static_cast<std::uint32_t>(variables_.size() - 1);
    cell.dim1 = dim1;
    cell.dim2 = dim2;
    return cell;
}

void ProjectStore::MarkBlocks() {
    for (Variable& variable : variables_) {
        const int width = cells_[variable.first + variable.count - 1].dim2;
        std::pair<int, int> expected(1, 1);
        bool full = true;
        for (std::uint32_t i = 0; full && i < variable.count; ++i) {
            const Cell& cell = cells_[variable.first + i];
            full = std::pair(cell.dim1, cell.dim2) == expected;
            expected = cell.dim2 < width ? std::pair(cell.dim1, cell.dim2 + 1) : std::pair(cell.dim1 + 1, 1);
        }
        variable.width = full ? width : 0;
    }
}

void ProjectStore::CheckBounds(const CellBounds& bounds) const {
    const Variable* variable = FindVariable(bounds.name);
    for (int dim1 = 1; dim1 <= bounds.dim1; ++dim1) {
        for (int dim2 = 1; dim2 <= bounds.dim2; ++dim2) {
            if (variable == nullptr || !Index(*variable, dim1, dim2)) {
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
    cells_.clear();
    variables_.clear();
    byName_.clear();
}

// --- Finding -------------------------------------------------------------------------------------

const ProjectStore::Variable* ProjectStore::FindVariable(std::string_view name) const {
    ++readCount_;
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : &variables_[found->second];
}

std::optional<std::uint32_t> ProjectStore::Index(std::string_view name, int dim1, int dim2) const {
    const Variable* variable = FindVariable(name);
    return variable == nullptr ? std::nullopt : Index(*variable, dim1, dim2);
}

std::optional<std::uint32_t> ProjectStore::Index(const Variable& variable, int dim1, int dim2) const {
    if (dim1 < 1 || dim2 < 1) return std::nullopt;
    if (variable.width > 0) {
        const std::int64_t place = std::int64_t{dim1 - 1} * variable.width + dim2 - 1;
        if (dim2 > variable.width || place >= variable.count) return std::nullopt;
        return variable.first + static_cast<std::uint32_t>(place);
    }
    const auto begin = cells_.begin() + variable.first;
    const auto end = begin + variable.count;
    const auto cell = std::lower_bound(
        begin, end, std::pair(dim1, dim2),
        [](const Cell& c, const std::pair<int, int>& key) { return std::pair(c.dim1, c.dim2) < key; });
    if (cell == end || cell->dim1 != dim1 || cell->dim2 != dim2) return std::nullopt;
    return static_cast<std::uint32_t>(cell - cells_.begin());
}

std::uint32_t ProjectStore::RequireIndex(std::string_view name, int dim1, int dim2) const {
    const auto index = Index(name, dim1, dim2);
    if (!index) throw ProgramStop("no cell " + CellText(name, dim1, dim2));
    return *index;
}

const CellValue* ProjectStore::FindCell(std::string_view name, int dim1, int dim2) const {
    const auto index = Index(name, dim1, dim2);
    return index ? &cells_[*index].value : nullptr;
}

std::string_view ProjectStore::CanonicalName(std::string_view name) const {
    const Variable* variable = FindVariable(name);
    return variable == nullptr ? std::string_view{} : std::string_view(variable->name);
}

CellHandle ProjectStore::Resolve(std::string_view name, int dim1, int dim2) const {
    return CellHandle(RequireIndex(name, dim1, dim2));
}

Real ProjectStore::GetVarDim(std::string_view name, int dim1, int dim2) const {
    return cells_[RequireIndex(name, dim1, dim2)].value.number.value_or(0.0);
}

// --- Writing -------------------------------------------------------------------------------------

void ProjectStore::SetVar(std::string_view name, Real value) {
    if (const auto index = Index(name, 1, 1)) Store(*index, {value.value(), cells_[*index].value.text});
}

void ProjectStore::SetVarDim(std::string_view name, int dim1, int dim2, Real value) {
    const std::uint32_t index = RequireIndex(name, dim1, dim2);
    Store(index, {value.value(), cells_[index].value.text});
}

void ProjectStore::SetVarText(std::string_view name, std::string_view text) {
    SetCell(name, 1, 1, {std::nullopt, text.empty() ? std::nullopt : std::optional(std::string(text))});
}

void ProjectStore::SetCell(std::string_view name, int dim1, int dim2, CellValue value) {
    if (const auto index = Index(name, dim1, dim2)) Store(*index, std::move(value));
}

void ProjectStore::SetNumber(CellHandle cell, Real value) {
    Store(cell.index_, {value.value(), cells_[cell.index_].value.text});
}

void ProjectStore::Store(std::uint32_t index, CellValue value) {
    if (value.number && !std::isfinite(*value.number)) RaiseArithmeticFault("a number to be stored");
    if (value.number == 0.0) value.number = 0.0;  // a zero has no sign
    Cell& cell = cells_[index];
    if (cell.value == value) return;
    CellValue former = std::exchange(cell.value, std::move(value));
    if (inEvent_) formers_.push_back({index, std::move(former), cell.unwritten});
    WriteThrough(index);
}

void ProjectStore::WriteThrough(std::uint32_t index) {
    Cell& cell = cells_[index];
    try {
        if (inEvent_ && !inTransaction_) {
            workCopy_->Begin();
            inTransaction_ = true;
        }
        workCopy_->Update(variables_[cell.variable].name, cell.dim1, cell.dim2, cell.value);
        cell.unwritten = false;
    } catch (const DatabaseError&) {
        cell.unwritten = true;  // kept in memory; Close writes it or reports
    }
}

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
    std::unordered_set<std::uint32_t> seen;
    for (const Former& former : formers_) {
        if (!seen.insert(former.index).second) continue;
        const Cell& cell = cells_[former.index];
        if (cell.value == former.value) continue;
        changes.push_back({{variables_[cell.variable].name, cell.dim1, cell.dim2}, former.value, cell.value});
    }
    return changes;
}

void ProjectStore::UndoEvent() noexcept {
    inEvent_ = false;
    // The last write goes first, as a cell may have been written more than once.
    for (auto former = formers_.rbegin(); former != formers_.rend(); ++former) {
        cells_[former->index].value = std::move(former->value);
        cells_[former->index].unwritten = former->unwritten;
    }
    // A transaction that a failure had ended before may have left some of the writes behind.
    if (std::exchange(inTransaction_, false) && !workCopy_->Rollback()) MarkUnwritten();
    formers_.clear();
}

/// The work copy is not known to have what the memory holds of the open event's cells.
void ProjectStore::MarkUnwritten() noexcept {
    for (const Former& former : formers_) cells_[former.index].unwritten = true;
}

void ProjectStore::WriteUnwritten() {
    for (Cell& cell : cells_) {
        if (!cell.unwritten) continue;
        workCopy_->Update(variables_[cell.variable].name, cell.dim1, cell.dim2, cell.value);
        cell.unwritten = false;
    }
}

// --- Aggregates ----------------------------------------------------------------------------------

std::optional<Real> ProjectStore::SQLSum(std::string_view name, std::optional<int> dim2) const {
    const Variable* variable = FindVariable(name);
    if (variable == nullptr) return std::nullopt;
    std::optional<Real> sum;
    for (std::uint32_t i = variable->first; i < variable->first + variable->count; ++i) {
        const Cell& cell = cells_[i];
        if (!cell.value.number || (dim2 && cell.dim2 != *dim2)) continue;
        sum = sum.value_or(0.0) + *cell.value.number;
    }
    return sum;
}

int ProjectStore::SQLCount(std::string_view name, std::optional<int> dim2) const {
    const Variable* variable = FindVariable(name);
    if (variable == nullptr) return 0;
    const auto begin = cells_.begin() + variable->first;
    return static_cast<int>(std::count_if(begin, begin + variable->count, [&](const Cell& cell) {
        return cell.value.number.has_value() && (!dim2 || cell.dim2 == *dim2);
    }));
}

void ProjectStore::ForEachFilled(const std::function<void(const CellKey&, const CellValue&)>& visit) const {
    for (const Cell& cell : cells_) {
        if (cell.value.IsFilled()) visit({variables_[cell.variable].name, cell.dim1, cell.dim2}, cell.value);
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
    if (rows != cells_.size()) differences.emplace_back("number of rows");
    return differences;
}

}  // namespace kelvor

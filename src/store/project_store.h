#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/file_system.h"
#include "platform/name_index.h"
#include "platform/real.h"
#include "store/cell.h"

namespace kelvor {

class WorkCopy;
struct ProjectCells;

/// The program's stop: a read, or a subscripted write, of a cell that has no row. A fault of the
/// program or of its template; nothing that ignores failures may swallow it.
class ProgramStop : public std::exception {
  public:
    explicit ProgramStop(std::string reason) : what_(std::move(reason)) {}
    [[nodiscard]] const char* what() const noexcept override { return what_.c_str(); }

  private:
    std::string what_;
};

/// A variable's name and its array bounds: the cells (1..dim1, 1..dim2) exist.
struct CellBounds {
    std::string name;
    int dim1 = 1;
    int dim2 = 1;
};

/// Brings them into the order in which a project holds its cells: one that stands so opens faster.
void SortByName(std::vector<CellBounds>& bounds);

/// A cell as the store holds it.
struct StoredCell {
    CellValue value;
    bool unwritten = false;  // the work copy does not have this value
};

/// All values of the open project, input or computed: cells addressed by the name of a variable,
/// without regard to case, and two subscripts. Numbers are in English units. The cells are held in
/// memory and every change is written through to the work copy; nothing else writes that. Cells are
/// never added or removed. Numbers come out and go in as Real, so that whatever is worked out with them is
/// checked; one that is not finite is refused with ArithmeticFault, and its cell stays as it was.
class ProjectStore {
  public:
    ProjectStore();
    ProjectStore(const ProjectStore&) = delete;
    ProjectStore& operator=(const ProjectStore&) = delete;
    ~ProjectStore();

    /// Opens a work copy, which must hold every cell of `bounds`. With `checkPages`, as for a file from
    /// outside, each page and each row is looked at; without, a row that is missing where another is too many
    /// shows when it is written. `known` are the cells of a work copy that were read before, of the content
    /// that it was made with. Throws DatabaseError, and the store is then closed.
    void Open(const Path& workCopy, const std::vector<CellBounds>& bounds, bool checkPages,
              const ProjectCells* known = nullptr);

    /// Brings every change to the work copy and closes it. Throws DatabaseError, still open, if a
    /// change cannot be written.
    void Close();

    /// Closes without another attempt to write what could not be written.
    void Abandon() noexcept;

    [[nodiscard]] bool IsOpen() const { return workCopy_ != nullptr; }

    /// How many cells have been written to the work copy since it was opened, and all of it as a file has it.
    /// Only of an open one.
    [[nodiscard]] int writes() const;
    [[nodiscard]] std::string WorkCopyContent() const;

    // --- Cells by name -------------------------------------------------------------------------

    /// The number at (1, 1), an empty one as 0. Stops the program if there is no such cell.
    [[nodiscard]] Real GetVar(std::string_view name) const { return GetVarDim(name, 1, 1); }
    [[nodiscard]] Real GetVarDim(std::string_view name, int dim1, int dim2) const;

    /// The number, nothing for an empty one. Stops the program if there is no such cell.
    [[nodiscard]] std::optional<Real> FindNumber(std::string_view name, int dim1, int dim2) const;

    /// Writes the number at (1, 1) and leaves the text; a missing cell is passed over.
    void SetVar(std::string_view name, Real value);

    /// Writes the number and leaves the text. Stops the program if there is no such cell.
    void SetVarDim(std::string_view name, int dim1, int dim2, Real value);

    /// Empties the number at (1, 1) and writes the text, an empty one as Null; a missing cell is
    /// passed over.
    void SetVarText(std::string_view name, std::string_view text);

    /// Both values at once; a missing cell is passed over.
    void SetCell(std::string_view name, int dim1, int dim2, CellValue value);

    /// The cell, or null if it has no row.
    [[nodiscard]] const CellValue* FindCell(std::string_view name, int dim1, int dim2) const;

    /// The name as the work copy spells it; empty if there is no such variable.
    [[nodiscard]] std::string_view CanonicalName(std::string_view name) const;

    // --- Aggregates ----------------------------------------------------------------------------

    /// The plain sum, in key order, of the numbers of a variable (of one second subscript if given);
    /// nothing if no cell holds a number. Raises ArithmeticFault if a double cannot hold the sum.
    [[nodiscard]] std::optional<Real> SQLSum(std::string_view name, std::optional<int> dim2 = {}) const;

    /// How many cells of a variable (of one second subscript if given) hold a number.
    [[nodiscard]] int SQLCount(std::string_view name, std::optional<int> dim2 = {}) const;

    /// Calls `visit` for every filled cell, by name without regard to case, then subscripts.
    void ForEachFilled(const std::function<void(const CellKey&, const CellValue&)>& visit) const;

    // --- Events --------------------------------------------------------------------------------

    /// Between BeginEvent and EndEvent all writes are one transaction of the work copy.
    void BeginEvent() { inEvent_ = true; }
    void EndEvent();

    /// What the open event has written so far: each cell that is not what it was, once, in the order of the
    /// first write to it.
    [[nodiscard]] std::vector<CellChange> EventChanges() const;

    /// Takes back what the open event has written, in memory and in the work copy, and ends the event.
    void UndoEvent() noexcept;

    /// Counts the work copies that were opened: another number means another set of cells.
    [[nodiscard]] int openings() const { return openings_; }

    /// How many keyed reads by name were made: a measure for benchmarks and tests.
    [[nodiscard]] std::uint64_t readCount() const { return readCount_; }

    /// The cells in which the work copy differs from the memory; for tests.
    [[nodiscard]] std::vector<std::string> CompareWithWorkCopy();

  private:
    /// One variable's cells, in subscript order.
    struct Variable {
        std::string name;
        std::uint32_t count = 0;
        int width = 0;  // cells of each first subscript if they form a full block; else 0
        std::vector<std::pair<int, int>> subscripts;  // of each cell if they form no block
        std::vector<StoredCell> cells;                // made with the first that is filled

        [[nodiscard]] std::pair<int, int> SubscriptsOf(std::uint32_t place) const;
        [[nodiscard]] std::optional<std::uint32_t> PlaceOf(int dim1, int dim2) const;
        [[nodiscard]] const StoredCell& At(std::uint32_t place) const;
        StoredCell& Touch(std::uint32_t place);
        void MarkBlock();
    };

    /// Where a cell stands: its variable, and its place in that.
    struct Place {
        std::uint32_t variable = 0;
        std::uint32_t cell = 0;
        friend bool operator<(const Place& a, const Place& b) {
            return std::pair(a.variable, a.cell) < std::pair(b.variable, b.cell);
        }
    };

    /// What a cell was before the open event wrote to it.
    struct Former {
        Place place;
        CellValue value;
        bool unwritten = false;
    };

    /// Lays the cells out as `bounds` says and reads the filled ones alone. False, with nothing loaded, if
    /// the work copy is not known to hold these cells and no others, or the bounds are not in the order of
    /// names.
    [[nodiscard]] bool LoadByBounds(const std::vector<CellBounds>& bounds, const ProjectCells* known);
    void LayOut(const std::vector<CellBounds>& bounds);

    void LoadByRows(const std::vector<CellBounds>& bounds);
    void AddCell(std::string_view name, int dim1, int dim2, const CellValue& value);
    Variable& AddVariable(std::string_view name);
    void CheckBounds(const CellBounds& bounds) const;

    [[nodiscard]] std::optional<std::uint32_t> FindName(std::string_view name) const;
    [[nodiscard]] const Variable* FindVariable(std::string_view name) const;
    [[nodiscard]] std::optional<Place> FindPlace(std::string_view name, int dim1, int dim2) const;
    [[nodiscard]] Place RequirePlace(std::string_view name, int dim1, int dim2) const;
    [[nodiscard]] const StoredCell& At(Place place) const {
        return variables_[place.variable].At(place.cell);
    }
    [[nodiscard]] CellKey KeyOf(Place place) const;

    void StoreNumber(Place place, Real number);
    void Store(Place place, CellValue value);
    void WriteThrough(Place place, StoredCell& cell);
    void WriteUnwritten();
    void MarkUnwritten() noexcept;
    void Forget() noexcept;
    void ForgetCells() noexcept;

    std::unique_ptr<WorkCopy> workCopy_;
    std::vector<Variable> variables_;
    NameIndex byName_;  // of variables_
    bool inEvent_ = false;
    bool inTransaction_ = false;
    std::vector<Former> formers_;  // of the open event, in the order of its writes
    int openings_ = 0;
    mutable std::uint64_t readCount_ = 0;
};

/// The name of a cell as messages write it: "SN(1,1)".
std::string CellText(std::string_view name, int dim1, int dim2);

}  // namespace kelvor

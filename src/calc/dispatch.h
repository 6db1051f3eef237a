#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "calc/calc_context.h"

namespace kelvor {

/// Computes one value and writes it to the cell (1, 1) of `target`.
using FieldRoutine = void (*)(CalcContext& context, std::string_view target);

/// Computes one value for a cell and writes it to `target` there.
using CellRoutine = void (*)(CalcContext& context, std::string_view target, int dim1, int dim2);

struct FieldKey {
    std::string_view key;
    FieldRoutine routine;
};

struct CellKeyRoutine {
    std::string_view key;
    CellRoutine routine;
};

/// The variables of an equation's terms, in the order of the term numbers.
using TermNames = std::span<const std::string_view>;

/// The traffic, in 18-kip ESALs and not rounded, that an equation gives for the stored terms; or why it gives
/// none, in words.
struct EquationAnswer {
    std::optional<Real> traffic;
    std::string whyNot;
};

/// One design equation of a screen. A screen with two has two entries; the term numbers of the second go on
/// where those of the first end. In every equation the second term is the traffic, and the last two are the
/// initial and the terminal serviceability.
struct SolveKey {
    std::string_view screen;
    int firstTerm = 1;
    TermNames terms;

    /// Finds one term, counted from 1, from all the others and stores it. 0: done; -1: refused or failed.
    int (*solve)(CalcContext& context, int term, TermNames terms) = nullptr;

    /// What the equation gives for the terms as they are stored; every one of them is filled. Shows nothing
    /// and changes nothing.
    EquationAnswer (*answer)(const CalcContext& context, TermNames terms) = nullptr;

    [[nodiscard]] std::string_view Traffic() const { return terms[1]; }
    [[nodiscard]] std::string_view InitialServiceability() const { return terms[terms.size() - 2]; }
    [[nodiscard]] std::string_view TerminalServiceability() const { return terms.back(); }
    [[nodiscard]] int LastTerm() const { return firstTerm + static_cast<int>(terms.size()) - 1; }
};

/// The keys that one folder of calculations serves.
struct KeyTable {
    std::span<const FieldKey> fields = {};
    std::span<const CellKeyRoutine> cells = {};
    std::span<const SolveKey> solves = {};
};

/// Finds the calculation of a key. The catalogue names the key of every computed value in the column
/// Equation; letter case counts. An equation is found by its screen, in any case, and a term number.
class Dispatch {
  public:
    /// Joins the tables. Throws std::logic_error if a key, or a term of a screen, stands twice.
    Dispatch(std::initializer_list<KeyTable> tables);

    /// Runs the calculation of a key for a single value. An unknown or empty key does nothing; an
    /// arithmetic fault leaves the target as it was.
    void CalcField(CalcContext& context, std::string_view target, std::string_view key) const;

    /// The same for one cell of a column.
    void CalcCell(CalcContext& context, std::string_view target, int dim1, int dim2,
                  std::string_view key) const;

    /// Finds one term of a screen's equation from all the others and stores it, in English units and
    /// unrounded. 0: the solve ran to its end (also a search that ran out of time and wrote nothing); -1: it
    /// was refused or failed, with its message and nothing written. A screen without an equation gives 0 and
    /// touches nothing.
    int SolveForVariable(CalcContext& context, std::string_view screen, int term) const;

    /// The equation to which a term number of a screen belongs; null if the screen has none. A number beyond
    /// the screen's terms belongs to its last equation.
    [[nodiscard]] const SolveKey* FindEquation(std::string_view screen, int term) const;

    /// The equations of a screen, in the order of their terms.
    [[nodiscard]] std::vector<const SolveKey*> EquationsOf(std::string_view screen) const;

    /// The number of the last term of a screen; 0 for a screen without an equation.
    [[nodiscard]] int LastTerm(std::string_view screen) const;

    /// The number, on its screen, of the term that a variable is; nothing if it is none.
    [[nodiscard]] std::optional<int> TermNumber(std::string_view screen, std::string_view variable) const;

    /// All keys served, of each kind.
    [[nodiscard]] std::vector<std::string_view> FieldKeys() const;
    [[nodiscard]] std::vector<std::string_view> CellKeys() const;
    [[nodiscard]] const std::vector<SolveKey>& SolveKeys() const { return solves_; }

  private:
    std::unordered_map<std::string_view, FieldRoutine> fields_;
    std::unordered_map<std::string_view, CellRoutine> cells_;
    std::vector<SolveKey> solves_;
};

}  // namespace kelvor

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "catalogue/catalogue.h"
#include "store/project_store.h"

namespace kelvor {

/// The allowed range of a variable in the active unit system; a missing limit does not bound.
struct Range {
    std::optional<double> high;
    std::optional<double> low;
};

/// What an empty box means: an empty text is Null.
std::optional<std::string> BlankToNull(std::string_view text);

/// An empty text counts as "0"; any other stands.
std::string BlankToZero(std::string_view text);

/// The only way between a stored English value and the text of a screen or report. The store holds
/// English numbers at full precision; a value is multiplied by the factor of its unit on its way to the
/// screen and divided by it on its way back, and only the screen's text is rounded.
class Units {
  public:
    Units(const Catalogue& catalogue, ProjectStore& store) : catalogue_(catalogue), store_(store) {}

    /// True in metric mode: the one flag that tells the unit system of the whole program.
    [[nodiscard]] bool bMetric() const { return metric_; }
    void SetMetric(bool metric) { metric_ = metric; }

    /// Metric units for one English unit in metric mode; 1 in English mode and for a name that has no
    /// metric partner.
    [[nodiscard]] double UnitFactor(std::string_view englishUnit) const;

    /// The names of a variable's unit in both systems, and the factor from English to metric; null for an
    /// unknown variable and a unit without a partner.
    [[nodiscard]] const UnitPair* PairOf(std::string_view variable) const;

    /// The unit of a variable in the active system; empty for an unknown variable.
    [[nodiscard]] std::string UnitLabel(std::string_view variable) const;

    /// The name in the active system of a unit that is given by its name in either; one that has no partner
    /// stays as it is.
    [[nodiscard]] std::string ActiveUnit(std::string_view unit) const;

    /// The English name of a unit that is given by its name in the active system; one that has no partner
    /// stays as it is.
    [[nodiscard]] std::string EnglishUnit(std::string_view unit) const;

    /// The allowed range in the active system; no limits for an unknown variable.
    [[nodiscard]] Range VariableRange(std::string_view variable) const;

    /// A cell's value in the active system, in the picture of its variable. Empty if the cell or its
    /// variable is missing.
    [[nodiscard]] std::string GetDisplayValue(std::string_view variable, int dim1 = 1, int dim2 = 1) const;

    /// A number of a variable in English units, in the active system and in the picture of its variable.
    /// Empty if the variable is missing or no double holds the number in this unit.
    [[nodiscard]] std::string DisplayNumber(std::string_view variable, double number) const;

    /// Stores a value given in the active system. An empty text empties the cell; a text that is no
    /// number, and any text of a text variable, leaves the number Null. A missing cell is passed over.
    /// A quantity of the cost grids goes by its own rule, below.
    void SetDisplayValue(std::string_view variable, int dim1, int dim2, std::string_view value);

    /// Stores a number given in the active system, with its shortest text.
    void SetDisplayNumber(std::string_view variable, int dim1, int dim2, double value);

    // --- Quantities ----------------------------------------------------------------------------
    // The quantities of initial costs and of rehabilitation, `InitialQuantity` and `RehabQuantity`, are the
    // one exception: each row has a unit of its own, `InitialUnit` or `RehabUnit`, whose text is its name in
    // the active system. The number of a quantity is in that unit, and its text is the number in English
    // units, so that a switch of systems and back brings no rounding with it.

    /// The cell of a quantity that is given in a unit of the active system, with the text that was typed for
    /// it. Raises ArithmeticFault if no double holds it in English units.
    [[nodiscard]] CellValue QuantityCell(double quantity, std::string text, std::string_view unit) const;

    /// As GetDisplayValue; the number of a quantity is multiplied by the factor of its row's unit, which is 1
    /// unless the row still has the English name of its unit in metric mode.
    [[nodiscard]] std::string GetQuantityDisplay(std::string_view variable, int dim1, int dim2) const;

  private:
    void StoreQuantityText(std::string_view variable, int dim1, int dim2, std::string_view text);
    void StoreQuantity(std::string_view variable, std::string_view unitVariable, int dim1, int dim2,
                       std::optional<double> quantity, std::string_view text);
    [[nodiscard]] std::optional<double> ToEnglish(const Variable* variable,
                                                  std::optional<double> value) const;

    const Catalogue& catalogue_;
    ProjectStore& store_;
    bool metric_ = false;
};

}  // namespace kelvor

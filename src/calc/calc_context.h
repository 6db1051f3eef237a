#pragma once

#include <optional>
#include <string_view>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/real.h"
#include "store/project_store.h"
#include "units/units.h"

namespace kelvor {

struct ReliabilityState;

/// Plain values that screens leave for the calculations which ask for them.
struct FormValues {
    int gridRow = 1;              // the row under the cursor of the grid in which the user works
    int dim2 = 1;                 // the second subscript that the current screen shows
    bool trafficInTrucks = true;  // traffic factors: trucks a day are given, and not all vehicles a day
};

/// All that a calculation may see and touch. It reads by Get, computes in Real and writes by Put.
struct CalcContext {
    ProjectStore& store;
    const Units& units;
    Dialogs& dialogs;
    Clock& clock;
    ReliabilityState& reliability;
    const FormValues& values;

    /// The number of a cell, an empty one as 0. Stops the program if there is no such cell.
    [[nodiscard]] Real Get(std::string_view name, int dim1 = 1, int dim2 = 1) const {
        return store.GetVarDim(name, dim1, dim2);
    }

    /// The number of a cell; nothing for an empty one. Stops the program if there is no such cell.
    [[nodiscard]] std::optional<Real> Find(std::string_view name, int dim1 = 1, int dim2 = 1) const;

    /// Writes a number to the cell (1, 1) of a variable; a missing one is passed over.
    void Put(std::string_view target, Real value) { store.SetVar(target, value); }

    /// Writes a number to a cell. Stops the program if there is no such cell.
    void Put(std::string_view target, int dim1, int dim2, Real value) {
        store.SetVarDim(target, dim1, dim2, value);
    }

    /// Empties a cell, number and text; a missing one is passed over.
    void Clear(std::string_view target, int dim1 = 1, int dim2 = 1) { store.SetCell(target, dim1, dim2, {}); }
};

}  // namespace kelvor

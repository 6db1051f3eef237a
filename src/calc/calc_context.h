#pragma once

#include "platform/clock.h"
#include "platform/dialogs.h"
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

/// All that a calculation may see and touch.
struct CalcContext {
    ProjectStore& store;
    const Units& units;
    Dialogs& dialogs;
    Clock& clock;
    ReliabilityState& reliability;
    const FormValues& values;
};

}  // namespace kelvor

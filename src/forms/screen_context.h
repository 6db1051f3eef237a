#pragma once

#include <string>

#include "calc/calc_context.h"
#include "calc/dispatch.h"
#include "catalogue/catalogue.h"
#include "catalogue/list_database.h"
#include "forms/balance_flags.h"
#include "forms/form_registry.h"
#include "units/units.h"

namespace kelvor {

struct CostSummary;
class ReportDesk;

/// All that a screen's routine may see and touch: what a calculation sees, and the forms.
struct ScreenContext {
    CalcContext calc;
    const Catalogue& catalogue;
    Units& units;
    const Dispatch& calculations;
    FormRegistry& forms;
    BalanceFlags& balance;
    bool& bProjectChanged;
    ListDatabase& lists;
    FormValues& values;  // what the calculations may know of the current form
    std::string& act;    // what the event does, in the user's words ("change of Reliability"), for Undo; the
                         // routine that names it last is right, and an event that only looks has none
    CostSummary& costSummary;
    ReportDesk& reports;
};

}  // namespace kelvor

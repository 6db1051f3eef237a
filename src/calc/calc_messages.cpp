#include "calc/calc_messages.h"

namespace kelvor {

void ReportMathOverflow(Dialogs& dialogs) {
    dialogs.ShowMessage({.text = "Math Overflow Error: One or more values out of range."});
}

void ReportOutsideBounds(Dialogs& dialogs) {
    dialogs.ShowMessage({.text = "Inputs outside of Equation Bounds!"});
}

}  // namespace kelvor

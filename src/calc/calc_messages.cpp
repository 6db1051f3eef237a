#include "calc/calc_messages.h"

namespace kelvor {

void ReportMathOverflow(Dialogs& dialogs) {
    dialogs.ShowMessage({.text = "Math Overflow Error: One or more values out of range."});
}

void ReportOutsideBounds(Dialogs& dialogs) {
    dialogs.ShowMessage({.text = "Inputs outside of Equation Bounds!"});
}

void ShowError(Dialogs& dialogs, const std::string& procedure, int number, const std::string& description) {
    dialogs.ShowMessage(
        {.text = "Error in " + procedure + " Error Number : " + std::to_string(number) + "\n" + description,
         .title = "Error"});
}

}  // namespace kelvor

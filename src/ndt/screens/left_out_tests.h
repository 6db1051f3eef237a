#pragma once

#include <set>
#include <string>
#include <vector>

#include "forms/form_type.h"

namespace kelvor {

// A test can be left out of the spread that its screen shows, without being deleted. That is a mark of the
// screen: the project knows nothing of it, and the averages that are stored count every test.

/// The check box that leaves out the test in whose row the cursor is.
LayoutElement LeaveOutBox();

/// The hidden boxes in which the marks are kept.
LayoutElement LeaveOutState();

/// The handlers by which the check box sets the mark of a row and shows it.
std::vector<Handler> LeaveOutHandlers();

/// The rows of the tests that are left out.
std::set<int> LeftOutTests(const Form& form);

/// A note of a result with what is to be said of a test that is left out.
std::string WithLeftOutNote(std::string note, const Form& form, int row, const GridColumn& column);

/// Every test that changes its row takes its mark with it; that of a test that goes is gone.
void MoveMarks(Form& form, const RowMoves& moves);

}  // namespace kelvor

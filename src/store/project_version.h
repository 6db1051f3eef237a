#pragma once

#include <vector>

#include "store/project_store.h"
#include "store/work_copy.h"

namespace kelvor {

/// Brings the database of a project that an earlier version of the program has saved to a version of project
/// files: it gets the cells of `bounds` that it lacks, empty, and the number of that version. One of that
/// version stays as it is: cells that it lacks are a fault. Throws DatabaseError, and the database is as it
/// was.
void BringUpToDate(WorkCopy& project, const std::vector<CellBounds>& bounds, int version = kProjectVersion);

}  // namespace kelvor

#include "store/project_version.h"

#include "platform/database_error.h"

namespace kelvor {

void BringUpToDate(WorkCopy& project, const std::vector<CellBounds>& bounds, int version) {
    if (project.version() >= version) return;
    project.Begin();
    try {
        for (const CellBounds& cells : bounds) project.AddMissingRows(cells.name, cells.dim1, cells.dim2);
        project.SetVersion(version);
        project.Commit();
    } catch (const DatabaseError&) {
        project.Rollback();
        throw;
    }
}

}  // namespace kelvor

#include "shell/process_state.h"

#include <utility>

#include "reports/own_engine.h"
#include "shell/calculations.h"

namespace kelvor {

ProcessState::ProcessState(Host hostInterfaces, Home homeFolders)
    : host(std::move(hostInterfaces)),
      home(std::move(homeFolders)),
      calculations(JoinCalculations()),
      reports(
          {host, home.folder, home.ReportTablesFile(), sProjectFile, bProjectChanged, bReportsUnavailable}) {
    reports.SetEngine(MakeReportEngine(host.files));
}

void ProcessState::OpenCatalogue(const Path& path) {
    dbCatalogue = std::make_unique<Catalogue>(path);
    units.emplace(*dbCatalogue, dbWork);
    projectBounds.clear();
    for (const Variable& variable : dbCatalogue->variables()) {
        projectBounds.push_back({variable.name, variable.dim1, variable.dim2});
    }
    SortByName(projectBounds);
}

void ProcessState::NoteChanges(const std::vector<CellChange>& cells, bool byUser) {
    ++events_;
    if (!byUser) return;
    for (const CellChange& change : cells) changes[change.cell.name] = events_;
}

CalcContext ProcessState::MakeCalcContext() {
    return {dbWork, *units, host.dialogs, host.clock, reliability, formValues};
}

ScreenContext ProcessState::MakeScreenContext() {
    return {MakeCalcContext(), *dbCatalogue, *units,     calculations, formRegistry, balance,
            bProjectChanged,   *dbCustom,    formValues, act,          costSummary,  reports};
}

}  // namespace kelvor

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "calc/calc_context.h"
#include "calc/dispatch.h"
#include "catalogue/catalogue.h"
#include "catalogue/list_database.h"
#include "design/calc/reliability.h"
#include "forms/screen_context.h"
#include "lcc/calc/cost_summary.h"
#include "platform/file_lock.h"
#include "platform/host.h"
#include "reports/run/report_desk.h"
#include "shell/home.h"
#include "shell/kept_work.h"
#include "shell/template_reader.h"
#include "store/project_store.h"
#include "units/units.h"

namespace kelvor {

/// An entry of the menu of recent projects.
struct RecentMenuItem {
    int position = 0;  // on the menu, from 0
    std::string path;
    std::string date;  // when it was opened or saved last, "2004-02-29 10:00:00.000"
};

/// Everything that lives as long as the process, in one place, so that a test makes as many as it
/// likes. Passed by reference; there are no globals.
struct ProcessState {
    ProcessState(Host hostInterfaces, Home homeFolders);

    /// Opens the catalogue and what depends on it. Throws DatabaseError.
    void OpenCatalogue(const Path& path);

    /// Notes that an event has changed cells, and of one that the user has made which variables they are of.
    void NoteChanges(const std::vector<CellChange>& cells, bool byUser);

    /// Counts the events that have changed cells.
    [[nodiscard]] int changingEvents() const { return events_; }

    /// What a calculation may see.
    [[nodiscard]] CalcContext MakeCalcContext();

    /// What a screen's routine may see.
    [[nodiscard]] ScreenContext MakeScreenContext();

    Host host;
    Home home;

    std::unique_ptr<Catalogue> dbCatalogue;
    std::unique_ptr<ListDatabase> dbCustom;
    ProjectStore dbWork;
    std::vector<CellBounds> projectBounds;  // the cells that every project has
    std::optional<Units> units;             // holds bMetric

    std::string sIniFile;
    std::unordered_map<std::string, int, NameHash, NameEqual>
        changes;               // by variable: the event by which the user changed it last, counted
    int noProjects = 0;        // counts the times that no project could be made of the template
    int saves = 0;             // counts the projects that were written to a file
    int projects = 0;          // counts them: each New and each Open is another one
    std::string sProjectFile;  // full path of the open project; empty for an unnamed one
    std::optional<std::size_t> fileDigest;  // of what that file held when it was opened or saved
    std::string caption;                    // of the main window
    bool bProjectChanged = false;
    bool crashedBefore =
        false;  // the start found unsaved work of a crashed program, now the first of keptWork
    bool unsavedNoted = false;  // a note beside the work copy says that it holds unsaved changes
    int snapshotWrites = -1;    // of the work copy when it was last copied as a whole; -1: there is no copy
    std::string proposedPath;   // for Save As: the path of a recovered project, the name of a sample
    Path recoveredFrom;         // of a recovered project: where it is kept
    bool bReportsUnavailable = false;
    std::vector<RecentMenuItem> recentMenu;  // what the menu shows; the table is read when it changes

    std::vector<KeptProject> keptWork;  // dropped work, newest first; read when it changes

    ReliabilityState reliability;
    FormValues formValues;
    CostSummary costSummary;  // of the cost summary that was worked out last
    Dispatch calculations;

    std::string act;  // of the event under way; see ScreenContext

    FormRegistry formRegistry;  // holds CurrentForm
    BalanceFlags balance;
    ReportDesk reports;

    std::unique_ptr<FileLock> workLock;

    std::optional<TemplateReader> templateReader;  // during the start; for the first project

  private:
    int events_ = 0;
};

}  // namespace kelvor

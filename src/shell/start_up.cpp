#include "shell/start_up.h"

#include <algorithm>

#include "calc/calc_messages.h"
#include "platform/database_error.h"
#include "platform/ini_file.h"
#include "platform/text.h"
#include "platform/translation.h"
#include "shell/project_files.h"
#include "shell/recovery.h"

namespace kelvor {

namespace {

/// Numbers under which failures of the start are reported.
constexpr int kNotADatabase = 3049;
constexpr int kDamagedDatabase = 3343;

StartResult Stop(ProcessState& state, const Message& message) {
    state.host.dialogs.ShowMessage(message);
    return StartResult::Stopped;
}

Message IniError(const std::string& reason) {
    return {.text = "Error reading .INI values\n" + reason, .title = "Init Error"};
}

Message ReinstallMessage(const std::string& missingFile) {
    return {.text = "One file is missing (" + missingFile + ").\n\nPlease reinstall program."};
}

/// Proves each component; a missing report engine costs the reports alone. False if another is missing,
/// also after the components were registered.
bool ProveComponents(ProcessState& state) {
    bool registered = false;
    for (const Component component : kComponents) {
        while (!state.host.components.Prove(component)) {
            if (component == Component::ReportEngine) {
                state.bReportsUnavailable = true;
                break;
            }
            if (registered) return false;
            state.host.components.RegisterComponents();
            registered = true;
        }
    }
    return true;
}

/// True for a file of any kind but a folder.
bool FileExists(const ProcessState& state, const Path& path) {
    const FileKind kind = state.host.files.Kind(path);
    return kind != FileKind::Missing && kind != FileKind::Directory;
}

/// The path of a database that the configuration names; nothing, with its message, if it is missing.
std::optional<Path> FindDatabase(ProcessState& state, const std::string& name) {
    const Path path = state.home.DatabaseFile(name);
    if (FileExists(state, path)) return path;
    state.host.dialogs.ShowMessage(ReinstallMessage(name));
    return std::nullopt;
}

void ShowDatabaseError(ProcessState& state, const DatabaseError& failure) {
    ShowError(state.host.dialogs, "MainFunction", failure.notADatabase() ? kNotADatabase : kDamagedDatabase,
              failure.what());
}

/// Without the catalogue there is no screen, so the program stops. False then, with its message.
bool OpenCatalogue(ProcessState& state, const std::string& name) {
    const auto path = FindDatabase(state, name);
    if (!path) return false;
    try {
        state.OpenCatalogue(*path);
        return true;
    } catch (const DatabaseError& failure) {
        ShowDatabaseError(state, failure);
        return false;
    }
}

/// Without readable lists there is less to pick from, and the program goes on. False if the file is
/// missing, with its message.
bool OpenLists(ProcessState& state, const std::string& name) {
    const auto path = FindDatabase(state, name);
    if (!path) return false;
    try {
        state.dbCustom = std::make_unique<ListDatabase>(*path);
    } catch (const DatabaseError& failure) {
        ShowDatabaseError(state, failure);
        state.dbCustom = std::make_unique<ListDatabase>();
    }
    return true;
}

bool OpenDatabases(ProcessState& state) {
    const std::string catalogue = ReadIni(state.host.files, kIniSection, "Application", state.sIniFile);
    const std::string lists = ReadIni(state.host.files, kIniSection, "Custom", state.sIniFile);
    if (catalogue.empty() || lists.empty()) {
        Message message = IniError("(unable to locate application file)");
        message.icon = MessageIcon::Critical;
        state.host.dialogs.ShowMessage(message);
        return false;
    }
    return OpenCatalogue(state, catalogue) && OpenLists(state, lists);
}

/// Makes the work copy this process's own. False, with its message, if another program has it.
bool LockWorkCopy(ProcessState& state) {
    try {
        state.workLock = std::make_unique<FileLock>(state.home.LockFile());
        if (state.workLock->holds()) return true;
        state.host.dialogs.ShowMessage(
            {.text = Filled(
                 Translated("Kelvor is already running on %1.\n\nPlease use the program that is open."),
                 {state.home.work.string()})});
    } catch (const FileError& failure) {
        state.host.dialogs.ShowMessage(
            {.text = "Error loading from " + state.home.WorkCopyFile().string() + ": " + failure.what()});
    }
    state.workLock.reset();
    return false;
}

/// False, with its message, if what a crash has left would be lost by going on.
bool KeepCrashedWork(ProcessState& state) {
    Recovery recovery(state);
    try {
        recovery.ListKeptWork();
        state.crashedBefore = recovery.KeepCrashedWork() && !state.keptWork.empty();
        return true;
    } catch (const FileError& failure) {
        state.host.dialogs.ShowMessage(
            {.text = Filled(
                 Translated("Kelvor did not end properly the last time, and what it left in %1 could not be "
                            "kept aside: %2"),
                 {state.home.WorkCopyFile().string(), failure.what()})});
        return false;
    }
}

StartResult OpenFirstProject(ProcessState& state, std::string command) {
    ProjectFiles files(state);
    if (command.empty()) return files.NewWorkCopy() ? StartResult::Running : StartResult::Stopped;
    command.erase(std::remove(command.begin(), command.end(), '"'), command.end());
    if (!FileExists(state, command)) {
        state.host.dialogs.ShowMessage({.text = command + " file does not exist!", .title = "Opening file"});
        return StartResult::FileMissing;
    }
    files.OpenProject(command);
    return StartResult::Running;
}

StartResult RunStart(ProcessState& state, const std::string& commandLine) {
    state.sIniFile = state.home.IniFile().string();
    if (!FileExists(state, state.sIniFile)) {
        return Stop(state, IniError("(unable to locate ini file)\nPlease reinstall Kelvor"));
    }
    if (!ProveComponents(state)) {
        return Stop(state, {.text = "A necessary system component could not be found.\n"
                                    "  Please contact Product Support for assistance.\n"
                                    "        Press 'OK' to shut down the application.",
                            .title = "Problem"});
    }
    if (!OpenDatabases(state) || !LockWorkCopy(state) || !KeepCrashedWork(state)) return StartResult::Stopped;
    return OpenFirstProject(state, std::string(TrimBlanks(commandLine)));
}

}  // namespace

StartResult Main(ProcessState& state, const std::string& commandLine) {
    state.bReportsUnavailable = false;
    state.host.dialogs.SetWaitCursor(true);
    if (TrimBlanks(commandLine).empty()) state.templateReader.emplace(state.home.Template());
    const StartResult result = RunStart(state, commandLine);
    state.templateReader.reset();
    // With an absent file the start ends early, and the wait cursor stays.
    if (result != StartResult::FileMissing) state.host.dialogs.SetWaitCursor(false);
    return result;
}

}  // namespace kelvor

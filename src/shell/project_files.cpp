#include "shell/project_files.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <utility>

#include "platform/database_error.h"
#include "platform/ini_file.h"
#include "platform/replace_file.h"
#include "platform/translation.h"
#include "shell/file_suggestion.h"
#include "shell/recent_files.h"
#include "shell/recovery.h"

namespace kelvor {

namespace {

constexpr double kMetricMode = -1.0;

const char* const kOpenFilter = "KVR projects (*.kvr)|*.kvr|All Files (*.*)|*.*";
const char* const kSaveFilter = "KVR projects (*.kvr)|*.kvr";
constexpr std::string_view kExtension = ".kvr";

/// The path from the root, without "." and "..", so that a file has one name in the list of recent files.
/// A ".." behind a link stays where without it another folder would be meant.
std::string FullPath(const std::string& path) {
    std::error_code error;
    const Path full = std::filesystem::absolute(path, error);
    if (error) return path;
    const Path plain = full.lexically_normal();
    const bool same = std::filesystem::equivalent(plain.parent_path(), full.parent_path(), error);
    return (same && !error ? plain : full).string();
}

std::size_t DigestOf(const std::string& content) { return std::hash<std::string>{}(content); }

}  // namespace

// --- The work copy ---------------------------------------------------------------------------------

void ProjectFiles::OpenWorkCopy(bool checkPages, const ProjectCells* known) {
    state_.dbWork.Open(state_.home.WorkCopyFile(), state_.projectBounds, checkPages, known);
    state_.bProjectChanged = false;
    state_.units->SetMetric(state_.dbWork.GetVar("MetricMode") == kMetricMode);
}

void ProjectFiles::CloseWorkCopyQuietly() {
    try {
        state_.dbWork.Close();
    } catch (const DatabaseError&) {
        state_.dbWork.Abandon();
    }
}

void ProjectFiles::WriteWorkCopy(const std::string& content) {
    const Path file = state_.home.WorkCopyFile();
    Recovery(state_).DropNote();
    state_.proposedPath.clear();
    state_.recoveredFrom.clear();
    // What an earlier run left behind goes first, or a link in its place; above all its journal, by which
    // SQLite would roll the new work copy back.
    for (const char* ending : {"-journal", "-wal", "-shm", ""}) {
        state_.host.files.Remove(file.string() + ending);
    }
    state_.host.files.Write(file, content);
    ++state_.projects;
    state_.changes.clear();
}

bool ProjectFiles::NewWorkCopy() {
    const bool made = MakeWorkCopy();
    if (!made) ++state_.noProjects;
    return made;
}

bool ProjectFiles::MakeWorkCopy() {
    state_.dbWork.Abandon();
    const Path source = state_.home.Template();
    if (state_.host.files.Kind(source) == FileKind::Missing) {
        Report(std::string("One file is missing (") + Home::kTemplateName +
               ").\n\nPlease reinstall program.");
        return false;
    }
    Path culprit = source;
    try {
        auto read = state_.templateReader ? state_.templateReader->Take() : std::nullopt;
        const std::string content =
            read ? std::move(read->content) : state_.host.files.Read(source, kLargestProject);
        culprit = state_.home.WorkCopyFile();
        WriteWorkCopy(content);
        culprit = source;
        OpenWorkCopy(false, read ? &read->cells : nullptr);
        return true;
    } catch (const FileError& failure) {
        Report("Error loading from " + culprit.string() + ": " + failure.what());
    } catch (const DatabaseError& failure) {
        Report("Error loading from " + culprit.string() + ": " + failure.what());
    }
    return false;
}

/// Closes the work copy; what no file has is kept aside. False, with its message and the project open, if it
/// cannot be.
bool ProjectFiles::KeepAside() {
    Recovery recovery(state_);
    const std::optional<KeptProject> unsaved = recovery.UnsavedWork();
    if (!unsaved) {
        CloseWorkCopyQuietly();
        return true;
    }
    try {
        state_.dbWork.SetVar("MetricMode", state_.units->bMetric() ? kMetricMode : 0.0);
        state_.dbWork.Close();
        recovery.Keep(*unsaved);
        return true;
    } catch (const std::exception& failure) {
        Report(Filled(Translated("What is open could not be kept aside: %1.\n\nPlease save it first."),
                      {failure.what()}));
    }
    if (!state_.dbWork.IsOpen()) ReopenUnsaved();
    return false;
}

/// Puts the project away over its file. False if that has not all of it now.
bool ProjectFiles::StoreOver(const std::string& path) {
    try {
        if (!MayOverwrite(path)) return false;
        state_.dbWork.SetVar("MetricMode", state_.units->bMetric() ? kMetricMode : 0.0);
        state_.dbWork.Close();
        Overwrite(path);
        return true;
    } catch (const std::exception&) {  // New asks and tells nothing
        if (!state_.dbWork.IsOpen()) ReopenUnsaved();
        return false;
    }
}

bool ProjectFiles::DiscardWorkCopy(const std::string& path) {
    if ((path.empty() || !StoreOver(path)) && !KeepAside()) return false;
    try {
        state_.host.files.Remove(state_.home.WorkCopyFile());
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): the next one replaces it
    }
    state_.sProjectFile.clear();
    return true;
}

// --- New and Open ----------------------------------------------------------------------------------

bool ProjectFiles::NewProject() {
    if (state_.dbWork.IsOpen() && !DiscardWorkCopy(state_.sProjectFile)) return true;
    state_.sProjectFile.clear();
    return NewWorkCopy();
}

bool ProjectFiles::OpenProject(const std::string& path) {
    const bool opened = LoadProject(path);
    if (IsSample(path)) {
        if (!opened) return false;
        Unname();
        state_.proposedPath = Path(path).filename().string();
        return true;
    }
    AddRecentFile(state_, FullPath(path));
    return opened;
}

std::string ProjectFiles::ReadProject(const std::string& path) const {
    const FileSystem& files = state_.host.files;
    try {
        return files.Read(path, kLargestProject);
    } catch (const FileTooLarge&) {
        // A large text is no project, rather than one too large.
        if (files.ReadStart(path, kDatabaseMagic.size()) == kDatabaseMagic) throw;
        throw DatabaseError(Translated("file is not a database"), true);
    }
}

bool ProjectFiles::LoadProject(const std::string& path) {
    if (!KeepAside()) return false;
    const std::string failed = "Error loading from " + path + ": ";
    try {
        if (IsWorkCopy(path)) throw FileError(Translated("it is the program's own work copy"));
        const std::string content = ReadProject(path);
        WriteWorkCopy(content);
        OpenWorkCopy(true);
        NameProject(path);
        state_.fileDigest = DigestOf(content);
        RemoveLeftovers(state_.host.files, path);
        return true;
    } catch (const FileError& failure) {
        Report(failed + failure.what());
    } catch (const DatabaseError& failure) {
        Report(failure.notADatabase() ? "File " + path + " is not a kvor file" : failed + failure.what());
    }
    return false;
}

bool ProjectFiles::OpenProjectDialog() {
    MakeProjectsFolder();
    FileRequest request{FileRequest::Kind::Open, state_.home.ProjectsFolder(), kOpenFilter};
    request.places = {state_.home.ProjectsFolder(), state_.home.SamplesFolder()};
    const auto chosen = state_.host.dialogs.AskFile(request);
    if (chosen) return OpenProject(chosen->string());
    if (state_.dbWork.IsOpen() && !DiscardWorkCopy("")) return false;
    state_.sProjectFile.clear();
    return NewWorkCopy();
}

bool ProjectFiles::RecoverProject(int place) {
    if (place < 0 || static_cast<std::size_t>(place) >= state_.keptWork.size()) return false;
    const KeptProject kept = state_.keptWork[static_cast<std::size_t>(place)];
    try {
        // Read first: what is kept aside now may push it out.
        const std::string content = state_.host.files.Read(kept.file, kLargestProject);
        if (!KeepAside()) return false;
        BecomeRecovered(kept, content);
        return true;
    } catch (const std::exception& failure) {
        Report("Error loading from " + kept.file.string() + ": " + failure.what());
        return false;
    }
}

void ProjectFiles::BecomeRecovered(const KeptProject& kept, const std::string& content) {
    WriteWorkCopy(content);
    OpenWorkCopy(true);
    Unname();
    state_.proposedPath = kept.formerPath;
    state_.recoveredFrom = kept.file;
    state_.bProjectChanged = true;  // no project file has it
}

// --- Save ------------------------------------------------------------------------------------------

bool ProjectFiles::SaveProject(const std::string& path) {
    const std::string failed = "Error saving to " + path + ": ";
    if (!state_.dbWork.IsOpen()) {
        Report(failed + Translated("no project is open"));
        return false;
    }
    if (!MayOverwrite(path)) return false;
    state_.dbWork.SetVar("MetricMode", state_.units->bMetric() ? kMetricMode : 0.0);
    try {
        state_.dbWork.Close();
    } catch (const DatabaseError& failure) {
        Report(failed + failure.what());
        return false;
    }
    try {
        if (IsWorkCopy(path)) throw FileError(Translated("it is the program's own work copy"));
        Overwrite(path);
    } catch (const std::exception& failure) {  // whatever it is: the work copy is opened again
        Report(failed + failure.what());
        ReopenUnsaved();
        return false;
    }
    if (!IsSample(path)) AddRecentFile(state_, FullPath(path));
    try {
        ReopenSaved();
    } catch (const DatabaseError& failure) {
        Report(failed + failure.what());
        return false;
    }
    NameProject(path);
    ++state_.saves;
    return true;
}

/// Asks before a file is replaced that another program has changed since it was opened or saved here.
bool ProjectFiles::MayOverwrite(const std::string& path) {
    if (!state_.home.attended || !state_.fileDigest || FullPath(path) != state_.sProjectFile) return true;
    try {
        if (DigestOf(state_.host.files.Read(path, kLargestProject)) == *state_.fileDigest) return true;
    } catch (const FileTooLarge&) {  // NOLINT(bugprone-empty-catch): it was no such file before
    } catch (const FileError&) {
        return true;  // it is gone, or the save will tell why it cannot be replaced
    }
    const Answer answer = state_.host.dialogs.ShowMessage(
        {.text = Filled(
             Translated("%1 was changed by another program since it was opened. Do you want to replace it?"),
             {path}),
         .style = MessageStyle::YesNo,
         .icon = MessageIcon::Warning});
    return answer == Answer::Yes;
}

/// The file as it was before a save, beside it, readable by those who could read it. A failure costs the
/// former version alone.
void ProjectFiles::KeepFormerVersion(const std::string& path, const std::string& content) {
    FileSystem& files = state_.host.files;
    if (!state_.home.attended || files.Kind(path) != FileKind::Regular) return;
    if (ReadIni(files, kIniSection, "KeepFormerVersion", state_.sIniFile) == "0") return;
    try {
        const std::string former = files.Read(path, kLargestProject);
        if (former == content) return;
        const Path backup = path + "~";
        if (files.Kind(backup) == FileKind::Missing) {
            (void)files.WriteNew(backup, {}, FileAccess::Private);
            files.CopyPermissions(path, backup);
        }
        ReplaceFile(files, backup, former);
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): the save matters more
    }
}

/// Puts the closed work copy in a file's place.
void ProjectFiles::Overwrite(const std::string& path) {
    const std::string content = state_.host.files.Read(state_.home.WorkCopyFile(), kLargestProject);
    KeepFormerVersion(path, content);
    ReplaceFile(state_.host.files, path, content);
    state_.fileDigest = DigestOf(content);
}

/// The work copy again, as it was before it was closed to no effect.
void ProjectFiles::ReopenUnsaved() {
    const bool changed = state_.bProjectChanged;
    try {
        OpenWorkCopy(false);
        state_.bProjectChanged = changed;
    } catch (const DatabaseError& failure) {
        Report("Error loading from " + state_.home.WorkCopyFile().string() + ": " + failure.what());
    }
}

/// The work copy again, of which the file is a copy now. What fails once may not fail again, and without it
/// the work ends: so it is tried twice. Throws DatabaseError.
void ProjectFiles::ReopenSaved() {
    try {
        OpenWorkCopy(false);
    } catch (const DatabaseError&) {
        OpenWorkCopy(false);
    }
}

bool ProjectFiles::Save() {
    return state_.sProjectFile.empty() ? SaveProjectAs() : SaveProject(state_.sProjectFile);
}

bool ProjectFiles::SaveProjectAs() {
    MakeProjectsFolder();  // the dialog starts there
    FileRequest request{FileRequest::Kind::Save, state_.home.ProjectsFolder(), kSaveFilter,
                        std::string(kExtension.substr(1))};
    request.suggested = SuggestedProjectFile(state_);
    const auto chosen = state_.host.dialogs.AskFile(request);
    return chosen && SaveProjectAs(chosen->string());
}

bool ProjectFiles::SaveProjectAs(const std::string& name) {
    if (name.empty()) return false;
    MakeProjectsFolder();
    const std::string_view ending =
        std::string_view(name).substr(name.size() - std::min(name.size(), kExtension.size()));
    return SaveProject(EqualNoCase(ending, kExtension) ? name : name + std::string(kExtension));
}

// --- Helpers ---------------------------------------------------------------------------------------

bool ProjectFiles::IsWorkCopy(const std::string& path) const {
    const FileSystem& files = state_.host.files;
    return files.Resolve(path) == files.Resolve(state_.home.WorkCopyFile());
}

/// A sample stays as it is: what is opened is a copy without a name.
bool ProjectFiles::IsSample(const std::string& path) const {
    if (path.empty()) return false;
    const FileSystem& files = state_.host.files;
    return files.Resolve(Path(FullPath(path)).parent_path()) == files.Resolve(state_.home.SamplesFolder());
}

void ProjectFiles::Unname() {
    state_.sProjectFile.clear();
    state_.caption.clear();
}

void ProjectFiles::NameProject(const std::string& path) {
    state_.sProjectFile = FullPath(path);
    state_.proposedPath.clear();
    state_.recoveredFrom.clear();
    state_.caption = "KVR - " + state_.sProjectFile;
}

void ProjectFiles::MakeProjectsFolder() {
    try {
        const Path folder = state_.home.ProjectsFolder();
        // A new user may lack the folder of documents, in which that of projects lies.
        for (const Path& missing : {folder.parent_path(), folder}) {
            if (state_.host.files.Kind(missing) == FileKind::Missing)
                state_.host.files.MakeDirectory(missing);
        }
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): the dialog then starts elsewhere
    }
}

void ProjectFiles::Report(const std::string& text) { state_.host.dialogs.ShowMessage({.text = text}); }

}  // namespace kelvor

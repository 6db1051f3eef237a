#include "shell/project_files.h"

#include <algorithm>
#include <cstddef>

#include "platform/database_error.h"
#include "platform/replace_file.h"
#include "shell/recent_files.h"

namespace kelvor {

namespace {

/// Far above any project: a file beyond this is none.
constexpr std::size_t kLargestProject = 64UL * 1024UL * 1024UL;

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

}  // namespace

// --- The work copy ---------------------------------------------------------------------------------

void ProjectFiles::OpenWorkCopy(bool checkPages) {
    state_.dbWork.Open(state_.home.WorkCopyFile(), state_.projectBounds, checkPages);
    state_.bProjectChanged = false;
    state_.units->SetMetric(state_.dbWork.GetVar("MetricMode") == kMetricMode);
}

/// False if changes were lost on the way.
bool ProjectFiles::CloseWorkCopyQuietly() {
    try {
        state_.dbWork.Close();
        return true;
    } catch (const DatabaseError&) {
        state_.dbWork.Abandon();
        return false;
    }
}

void ProjectFiles::WriteWorkCopy(const std::string& content) {
    const Path file = state_.home.WorkCopyFile();
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
    state_.dbWork.Abandon();
    const Path source = state_.home.Template();
    if (state_.host.files.Kind(source) == FileKind::Missing) {
        Report(std::string("One file is missing (") + Home::kTemplateName +
               ").\n\nPlease reinstall program.");
        return false;
    }
    Path culprit = source;
    try {
        const std::string content = state_.host.files.Read(source, kLargestProject);
        culprit = state_.home.WorkCopyFile();
        WriteWorkCopy(content);
        culprit = source;
        OpenWorkCopy(false);
        return true;
    } catch (const FileError& failure) {
        Report("Error loading from " + culprit.string() + ": " + failure.what());
    } catch (const DatabaseError& failure) {
        Report("Error loading from " + culprit.string() + ": " + failure.what());
    }
    return false;
}

void ProjectFiles::DiscardWorkCopy(const std::string& path) {
    state_.dbWork.SetVar("MetricMode", state_.units->bMetric() ? kMetricMode : 0.0);
    const bool whole = CloseWorkCopyQuietly();
    const Path workCopy = state_.home.WorkCopyFile();
    try {
        // A work copy that lacks changes is no reason to put the former file away.
        if (!path.empty() && whole) {
            ReplaceFile(state_.host.files, path, state_.host.files.Read(workCopy, kLargestProject));
        }
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): New asks and tells nothing
    }
    try {
        state_.host.files.Remove(workCopy);
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): the next one replaces it
    }
    state_.sProjectFile.clear();
}

// --- New and Open ----------------------------------------------------------------------------------

bool ProjectFiles::NewProject() {
    if (state_.dbWork.IsOpen()) {
        DiscardWorkCopy(state_.sProjectFile);
    } else {
        state_.sProjectFile.clear();
    }
    return NewWorkCopy();
}

bool ProjectFiles::OpenProject(const std::string& path) {
    const bool opened = LoadProject(path);
    if (IsSample(path)) {
        if (opened) Unname();
        return opened;
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
        throw DatabaseError("file is not a database", true);
    }
}

bool ProjectFiles::LoadProject(const std::string& path) {
    CloseWorkCopyQuietly();
    const std::string failed = "Error loading from " + path + ": ";
    try {
        if (IsWorkCopy(path)) throw FileError("it is the program's own work copy");
        WriteWorkCopy(ReadProject(path));
        OpenWorkCopy(true);
        NameProject(path);
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
    if (state_.dbWork.IsOpen()) DiscardWorkCopy("");
    state_.sProjectFile.clear();
    return NewWorkCopy();
}

// --- Save ------------------------------------------------------------------------------------------

bool ProjectFiles::SaveProject(const std::string& path) {
    const std::string failed = "Error saving to " + path + ": ";
    if (!state_.dbWork.IsOpen()) {
        Report(failed + "no project is open");
        return false;
    }
    state_.dbWork.SetVar("MetricMode", state_.units->bMetric() ? kMetricMode : 0.0);
    try {
        state_.dbWork.Close();
    } catch (const DatabaseError& failure) {
        Report(failed + failure.what());
        return false;
    }
    try {
        if (IsWorkCopy(path)) throw FileError("it is the program's own work copy");
        ReplaceFile(state_.host.files, path,
                    state_.host.files.Read(state_.home.WorkCopyFile(), kLargestProject));
    } catch (const std::exception& failure) {  // whatever it is: the work copy is opened again
        Report(failed + failure.what());
        ReopenAfterFailedSave();
        return false;
    }
    AddRecentFile(state_, FullPath(path));
    try {
        OpenWorkCopy(false);
    } catch (const DatabaseError& failure) {
        Report(failed + failure.what());
        return false;
    }
    NameProject(path);
    ++state_.saves;
    return true;
}

void ProjectFiles::ReopenAfterFailedSave() {
    const bool changed = state_.bProjectChanged;
    try {
        OpenWorkCopy(false);
        state_.bProjectChanged = changed;
    } catch (const DatabaseError& failure) {
        Report("Error loading from " + state_.home.WorkCopyFile().string() + ": " + failure.what());
    }
}

bool ProjectFiles::Save() {
    return state_.sProjectFile.empty() ? SaveProjectAs() : SaveProject(state_.sProjectFile);
}

bool ProjectFiles::SaveProjectAs() {
    MakeProjectsFolder();  // the dialog starts there
    FileRequest request{FileRequest::Kind::Save, state_.home.ProjectsFolder(), kSaveFilter,
                        std::string(kExtension.substr(1))};
    request.suggested = state_.sProjectFile;
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
    const FileSystem& files = state_.host.files;
    return files.Resolve(Path(FullPath(path)).parent_path()) == files.Resolve(state_.home.SamplesFolder());
}

void ProjectFiles::Unname() {
    state_.sProjectFile.clear();
    state_.caption.clear();
}

void ProjectFiles::NameProject(const std::string& path) {
    state_.sProjectFile = FullPath(path);
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

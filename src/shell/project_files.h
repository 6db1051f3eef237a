#pragma once

#include <string>

#include "shell/process_state.h"

namespace kelvor {

/// Project files and the work copy. The program never edits a project file: it works in one database,
/// the work copy, and moves whole files. Each operation shows its own messages.
class ProjectFiles {
  public:
    explicit ProjectFiles(ProcessState& state) : state_(state) {}

    /// New Project: a named project is saved over its file without asking, an unnamed one is dropped and kept
    /// aside; then a fresh project. False if there is none. What can be neither saved nor kept stays open,
    /// with a message.
    bool NewProject();

    /// Copies the template to the work copy and opens it. False, with its message and no project open,
    /// if that cannot be done; an older work copy is never taken for a new project.
    bool NewWorkCopy();

    /// Makes a project file the open project; unsaved work is kept aside. On failure, with its message, no
    /// project is open, and name and caption of the former one stand. The path joins the recent files in any
    /// case, but that of a sample, which is opened as a copy without a name. Work that cannot be kept aside
    /// stays open, with a message.
    bool OpenProject(const std::string& path);

    /// Opens what is kept aside, by its place on the list, as an unnamed project whose former path Save As
    /// proposes. What cannot be read is told, and the open project stays.
    bool RecoverProject(int place);

    /// The Open command: asks for a file. A cancelled dialog leaves a fresh, unnamed project.
    bool OpenProjectDialog();

    /// Copies the work copy over a project file, whole. On failure the work copy stays open and sound.
    bool SaveProject(const std::string& path);

    /// Save: to the project's file, or as SaveProjectAs if it has none.
    bool Save();

    /// Save As: asks for a file. True if the project was saved.
    bool SaveProjectAs();

    /// Save As with a given name, to which ".kvr" is added if it has another ending.
    bool SaveProjectAs(const std::string& name);

  private:
    void OpenWorkCopy(bool checkPages, const ProjectCells* known = nullptr);
    bool MakeWorkCopy();
    void CloseWorkCopyQuietly();
    [[nodiscard]] bool MayOverwrite(const std::string& path);
    void KeepFormerVersion(const std::string& path, const std::string& content);
    void Overwrite(const std::string& path);
    void ReopenUnsaved();
    void ReopenSaved();
    bool KeepAside();
    bool DiscardWorkCopy(const std::string& path);
    bool StoreOver(const std::string& path);
    void BecomeRecovered(const KeptProject& kept, const std::string& content);
    void WriteWorkCopy(const std::string& content);
    [[nodiscard]] std::string ReadProject(const std::string& path) const;
    bool LoadProject(const std::string& path);
    [[nodiscard]] bool IsWorkCopy(const std::string& path) const;
    [[nodiscard]] bool IsSample(const std::string& path) const;
    void NameProject(const std::string& path);
    void Unname();
    void MakeProjectsFolder();
    void Report(const std::string& text);

    ProcessState& state_;
};

}  // namespace kelvor

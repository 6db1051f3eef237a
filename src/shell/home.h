#pragma once

#include <cstddef>
#include <string>

#include "platform/file_system.h"

namespace kelvor {

/// The section of kvor.ini that holds the settings.
inline constexpr const char* kIniSection = "kvor";

/// Far above any project file, and above anything else that a home holds: a file beyond this is none.
inline constexpr std::size_t kLargestProject = 64UL * 1024UL * 1024UL;

/// Where everything lies: below the program folder, but for the work copy, which may lie elsewhere. The home
/// of a user of an installed program has its projects among his documents, and shares with other users what
/// nobody changes.
struct Home {
    Path folder;
    Path work;
    Path projects = {};  // where the dialogs for projects start; empty for below the folder
    Path shared = {};    // where help and samples lie; empty for below the folder

    /// True of a program in whose windows a person works: a save keeps the former version of the file, and
    /// asks before it replaces one that others have changed.
    bool attended = false;

    [[nodiscard]] Path IniFile() const { return folder / "kvor.ini"; }
    [[nodiscard]] Path DatabaseFile(const std::string& name) const { return folder / ("DataBase/" + name); }
    [[nodiscard]] Path ProjectsFolder() const { return projects.empty() ? folder / "Projects" : projects; }
    [[nodiscard]] Path SamplesFolder() const { return SharedFolder() / "Samples"; }
    [[nodiscard]] Path HelpFile() const { return SharedFolder() / "Help/Kelvor.hlp"; }
    [[nodiscard]] Path Template() const { return folder / kTemplateName; }
    [[nodiscard]] Path WorkCopyFile() const { return work / "kvrwork.tmp"; }
    [[nodiscard]] Path ReportTablesFile() const { return work / "kvrrport.tmp"; }
    /// How the windows were left: sizes, places, the unit system of new projects.
    [[nodiscard]] Path WindowFile() const { return work / "kvrwindow.ini"; }
    /// By which a second start hands its project to the first.
    [[nodiscard]] Path HandOverFile() const { return work / "kvropen.txt"; }
    [[nodiscard]] Path UnsavedNoteFile() const { return work / "kvrwork.uns"; }
    /// The work copy as it stood whole some seconds ago, in case a power cut tears it.
    [[nodiscard]] Path SnapshotFile() const { return work / "kvrwork.sav"; }
    [[nodiscard]] Path LockFile() const { return work / "kvrwork.lck"; }

    [[nodiscard]] Path SharedFolder() const { return shared.empty() ? folder : shared; }

    /// True for a program that works in its home, as the window does: what it drops is kept aside there.
    [[nodiscard]] bool KeepsDroppedWork() const {
        return folder.lexically_normal() == work.lexically_normal();
    }
    [[nodiscard]] Path KeptFolder() const { return folder / "Kept"; }

    static constexpr const char* kTemplateName = "kvrwork.tpl";
};

}  // namespace kelvor

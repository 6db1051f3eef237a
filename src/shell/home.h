#pragma once

#include <string>

#include "platform/file_system.h"

namespace kelvor {

/// Where everything lies: below the program folder, but for the work copy, which may lie elsewhere.
struct Home {
    Path folder;
    Path work;

    [[nodiscard]] Path IniFile() const { return folder / "kvor.ini"; }
    [[nodiscard]] Path DatabaseFile(const std::string& name) const { return folder / ("DataBase/" + name); }
    [[nodiscard]] Path ProjectsFolder() const { return folder / "Projects"; }
    [[nodiscard]] Path SamplesFolder() const { return folder / "Samples"; }
    [[nodiscard]] Path HelpFile() const { return folder / "Help/Kelvor.hlp"; }
    [[nodiscard]] Path Template() const { return folder / kTemplateName; }
    [[nodiscard]] Path WorkCopyFile() const { return work / "kvrwork.tmp"; }
    [[nodiscard]] Path ReportTablesFile() const { return work / "kvrrport.tmp"; }
    /// How the windows were left: sizes, places, the unit system of new projects.
    [[nodiscard]] Path WindowFile() const { return work / "kvrwindow.ini"; }
    /// By which a second start hands its project to the first.
    [[nodiscard]] Path HandOverFile() const { return work / "kvropen.txt"; }
    [[nodiscard]] Path LockFile() const { return work / "kvrwork.lck"; }

    static constexpr const char* kTemplateName = "kvrwork.tpl";
};

}  // namespace kelvor

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
    [[nodiscard]] Path HelpFile() const { return folder / "Help/Kelvor.hlp"; }
    [[nodiscard]] Path Template() const { return folder / kTemplateName; }
    [[nodiscard]] Path WorkCopyFile() const { return work / "kvrwork.tmp"; }
    [[nodiscard]] Path ReportTablesFile() const { return work / "kvrrport.tmp"; }
    [[nodiscard]] Path LockFile() const { return work / "kvrwork.lck"; }

    static constexpr const char* kTemplateName = "kvrwork.tpl";
};

}  // namespace kelvor

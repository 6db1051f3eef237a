#include "shell/file_suggestion.h"

#include <array>
#include <string>

#include "platform/file_name.h"
#include "shell/process_state.h"

namespace kelvor {

namespace {

constexpr const char* kEnding = ".kvr";

/// The fields that may name a project, the best one first.
constexpr std::array kNamingFields = {"Location", "JobNumber", "PavDesc"};

Path NameInProject(const ProjectStore& project) {
    if (!project.IsOpen()) return {};
    for (const char* field : kNamingFields) {
        const CellValue* cell = project.FindCell(field, 1, 1);
        if (cell == nullptr || !cell->text) continue;
        if (const std::string name = FileNameFrom(*cell->text); !name.empty()) return name + kEnding;
    }
    return {};
}

}  // namespace

Path SuggestedProjectFile(const ProcessState& state) {
    if (!state.sProjectFile.empty()) return Path(state.sProjectFile).filename();
    const Path former = state.proposedPath;
    if (former.empty()) return NameInProject(state.dbWork);
    // Its name alone where the folder is gone.
    const bool folderStands = state.host.files.Kind(former.parent_path()) == FileKind::Directory;
    return folderStands ? former : former.filename();
}

}  // namespace kelvor

#include "platform/executable_folder.h"

#include <system_error>

namespace kelvor {

Path ExecutableFolder() {
    std::error_code error;
    const Path executable = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::current_path() : executable.parent_path();
}

std::vector<Path> ModulePlaces(std::string_view module) {
    const Path folder = ExecutableFolder();
    return {folder / module, folder / "../lib/kelvor" / module,
            folder / KELVOR_MODULES_FROM_PROGRAMS / module};
}

}  // namespace kelvor

#include "support/script_files.h"

#include <algorithm>

namespace kelvor::test {

Path ScriptFolder() { return Path(KELVOR_SOURCE_FOLDER) / "tests/scripts"; }

std::vector<std::string> ScriptNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ScriptFolder())) {
        if (entry.path().extension() != ".kvs") continue;
        names.push_back(entry.path().lexically_relative(ScriptFolder()).replace_extension().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string ReplaceAll(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

}  // namespace kelvor::test

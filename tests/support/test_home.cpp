#include "support/test_home.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <vector>

namespace kelvor::test {

TestHome::TestHome() { Fill(); }

TestHome::TestHome(const Path& folder) : folder_(folder) { Fill(); }

void TestHome::Fill() {
    const Path built = KELVOR_HOME_FOLDER;
    std::filesystem::copy(built / "DataBase", folder_ / "DataBase", std::filesystem::copy_options::recursive);
    std::filesystem::copy(built / "Reports", folder_ / "Reports", std::filesystem::copy_options::recursive);
    std::filesystem::copy(built / "Languages", folder_ / "Languages");
    std::filesystem::copy(built / "kvor.ini", folder_ / "kvor.ini");
    std::filesystem::copy(built / "kvrwork.tpl", folder_ / "kvrwork.tpl");
}

std::string Checksum(const Path& folder) {
    std::vector<std::string> lines;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        std::string line = entry.path().lexically_relative(folder).string();
        if (entry.is_regular_file()) {
            const std::size_t hash = std::hash<std::string>()(ReadFile(entry.path()));
            line += " " + std::to_string(entry.file_size()) + " " + std::to_string(hash);
        }
        lines.push_back(line);
    }
    std::sort(lines.begin(), lines.end());
    std::string all;
    for (const std::string& line : lines) all += line + "\n";
    return all;
}

}  // namespace kelvor::test

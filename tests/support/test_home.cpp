#include "support/test_home.h"

#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkdtemp

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <system_error>
#include <utility>
#include <vector>

namespace kelvor::test {

TemporaryFolder::TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "kelvor-test-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder can be made");
    path_ = name;
}

TemporaryFolder::TemporaryFolder(Path path) : path_(std::move(path)) {
    if (!std::filesystem::create_directory(path_))
        throw std::runtime_error(path_.string() + " is there already");
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

TestHome::TestHome() { Fill(); }

TestHome::TestHome(const Path& folder) : folder_(folder) { Fill(); }

void TestHome::Fill() {
    const Path built = KELVOR_HOME_FOLDER;
    std::filesystem::copy(built / "DataBase", folder_ / "DataBase", std::filesystem::copy_options::recursive);
    std::filesystem::copy(built / "kvor.ini", folder_ / "kvor.ini");
    std::filesystem::copy(built / "kvrwork.tpl", folder_ / "kvrwork.tpl");
}

std::string ReadFile(const Path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path.string());
    std::ostringstream content;
    content << file.rdbuf();
    return std::move(content).str();
}

void WriteFile(const Path& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << content;
    if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
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

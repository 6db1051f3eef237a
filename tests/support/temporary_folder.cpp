#include "support/temporary_folder.h"

#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkdtemp

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>
#include <utility>

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

}  // namespace kelvor::test

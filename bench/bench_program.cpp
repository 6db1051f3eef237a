#include "bench_program.h"
#include "platform/executable_folder.h"

#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkdtemp

#include <algorithm>
#include <random>
#include <stdexcept>
#include <system_error>

namespace kelvor::bench {

TemporaryHome::TemporaryHome() {
    const Path built = ExecutableFolder();
    std::string name = (std::filesystem::temp_directory_path() / "kelvor-bench-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder can be made");
    path_ = name;
    for (const char* folder : {"DataBase", "Reports", "Samples"}) {
        std::filesystem::copy(built / folder, path_ / folder, std::filesystem::copy_options::recursive);
    }
    std::filesystem::copy(built / "kvor.ini", path_ / "kvor.ini");
    std::filesystem::copy(built / Home::kTemplateName, path_ / Home::kTemplateName);
}

TemporaryHome::~TemporaryHome() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

BenchProgram::BenchProgram(const Path& home)
    : program_({files_, clock_, dialogs_, components_}, Home{home, home}) {
    if (program_.Start("") != StartResult::Running) throw std::runtime_error("the program did not start");
}

std::vector<std::string> BenchProgram::ShuffledNames() {
    std::vector<std::string> names;
    for (const CellBounds& variable : program_.state().projectBounds) names.push_back(variable.name);
    std::shuffle(names.begin(), names.end(), std::mt19937(1));
    return names;
}

int BenchProgram::CountCells() {
    int cells = 0;
    for (const CellBounds& variable : program_.state().projectBounds) cells += variable.dim1 * variable.dim2;
    return cells;
}

}  // namespace kelvor::bench

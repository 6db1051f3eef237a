// The least that a program could do from its start to its first answer with the same files: reads the
// configuration, opens the catalogue and the lists, copies the template to a private work copy, opens
// that, reads one cell with SQL and prints it.
//
// Usage: kelvor-bench-start HOME

#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkdtemp

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>

#include "raw_database.h"

namespace {

namespace fs = std::filesystem;
using namespace kelvor::bench;

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (fs::temp_directory_path() / "kelvor-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder can be made");
        path_ = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

    [[nodiscard]] const fs::path& path() const { return path_; }

  private:
    fs::path path_;
};

std::string ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

void PrintCell(sqlite3* project) {
    const RawStatement row =
        Prepare(project, "SELECT RValue FROM Project WHERE Name = 'SN' AND Dim1 = 1 AND Dim2 = 1");
    if (sqlite3_step(row.get()) != SQLITE_ROW) throw std::runtime_error("there is no cell SN");
    if (sqlite3_column_type(row.get(), 0) == SQLITE_NULL) {
        std::printf("SN(1,1) = empty\n");
    } else {
        std::printf("SN(1,1) = %.17g\n", sqlite3_column_double(row.get(), 0));
    }
}

void Run(const fs::path& home) {
    const TemporaryFolder work;
    if (ReadFile(home / "kvor.ini").empty()) throw std::runtime_error("the configuration is empty");
    const RawDatabase catalogue = OpenRaw((home / "DataBase" / "Kelvor.mdb").string());
    const RawDatabase lists = OpenRaw((home / "DataBase" / "custom.tpl").string());
    const fs::path workCopy = work.path() / "kvrwork.tmp";
    fs::copy_file(home / "kvrwork.tpl", workCopy);
    const RawDatabase project = OpenRawWorkCopy(workCopy.string());
    PrintCell(project.get());
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("Usage: kelvor-bench-start HOME\n", stderr);
        return 2;
    }
    try {
        Run(argv[1]);
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "kelvor-bench-start: %s\n", failure.what());
        return 1;
    }
}

#include "reports/staging/staging_file.h"

#include <system_error>

#include "platform/sqlite.h"

namespace kelvor {

namespace {

/// A copy that does not depend on what another program is just writing to the list of recent files.
void Copy(const Path& from, const Path& to) {
    SQLite::Database database = OpenDatabase(from, DatabaseAccess::ReadOnly);
    try {
        SQLite::Statement copy(database, "VACUUM INTO ?");
        copy.bind(1, to.string());
        copy.exec();
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

}  // namespace

StagingFile::~StagingFile() {
    std::error_code ignored;
    if (made_) std::filesystem::remove(path_, ignored);
}

const Path& StagingFile::Provide(FileSystem& files, const Path& catalogue) {
    if (made_ && files.Kind(path_) == FileKind::Regular) return path_;
    // What a killed process has left is no copy of this catalogue.
    for (const char* ending : {"-journal", "-wal", "-shm", ""}) files.Remove(path_.string() + ending);
    Copy(catalogue, path_);
    made_ = true;
    return path_;
}

}  // namespace kelvor

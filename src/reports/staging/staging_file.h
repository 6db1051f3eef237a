#pragma once

#include "platform/file_system.h"

namespace kelvor {

/// The process's own copy of the catalogue database, whose staging tables its runs fill: so two programs on
/// one installation never print each other's rows, and one that cannot be written to prints. What a run has
/// filled stays for the next one. It is made when it is first needed, and goes with the process.
class StagingFile {
  public:
    explicit StagingFile(Path path) : path_(std::move(path)) {}
    StagingFile(const StagingFile&) = delete;
    StagingFile& operator=(const StagingFile&) = delete;
    ~StagingFile();

    /// The copy, made from a catalogue database if there is none yet. Throws DatabaseError or FileError.
    const Path& Provide(FileSystem& files, const Path& catalogue);

  private:
    Path path_;
    bool made_ = false;
};

}  // namespace kelvor

#pragma once

#include <future>
#include <optional>
#include <string>

#include "platform/file_system.h"
#include "store/work_copy.h"

namespace kelvor {

/// Reads the template of projects while the start does other things: looking through its ten thousand cells,
/// nearly all of them empty, takes as long as the whole catalogue.
class TemplateReader {
  public:
    struct Template {
        std::string content;  // of the file
        ProjectCells cells;
    };

    /// Begins to read a file.
    explicit TemplateReader(const Path& file);

    /// What was read, once; waits for it. Nothing if it could not be read: who reads the file again learns
    /// why.
    std::optional<Template> Take();

  private:
    std::future<std::optional<Template>> reading_;
};

}  // namespace kelvor

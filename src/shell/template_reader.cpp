#include "shell/template_reader.h"

#include <cstddef>
#include <exception>
#include <system_error>
#include <utility>

namespace kelvor {

namespace {

/// Far above any template; a file beyond this is none.
constexpr std::size_t kLargestTemplate = 4UL * 1024UL * 1024UL;

std::optional<TemplateReader::Template> Read(const Path& file) {
    try {
        TemplateReader::Template read{NativeFileSystem().Read(file, kLargestTemplate), {}};
        read.cells = ReadProjectCells(read.content);
        return read;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

}  // namespace

TemplateReader::TemplateReader(const Path& file) {
    try {
        reading_ = std::async(std::launch::async, Read, file);
    } catch (const std::system_error&) {  // NOLINT(bugprone-empty-catch): no thread to be had
    }
}

std::optional<TemplateReader::Template> TemplateReader::Take() {
    return reading_.valid() ? reading_.get() : std::nullopt;
}

}  // namespace kelvor

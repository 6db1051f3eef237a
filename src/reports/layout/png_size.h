#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kelvor {

/// The size of a picture in dots.
struct PictureSize {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};

/// The size of a picture in the format PNG; nothing if it has another format, or a side of no or more than
/// 10,000 dots.
std::optional<PictureSize> PngSize(std::string_view file);

}  // namespace kelvor

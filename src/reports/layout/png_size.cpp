#include "reports/layout/png_size.h"

#include <cstddef>

namespace kelvor {

namespace {

// A file begins with its signature, the length and the name of the header, and the header's width and height
// (Portable Network Graphics, Sections 5.2 and 11.2.2).
constexpr std::string_view kSignature("\x89PNG\r\n\x1A\n", 8);
constexpr std::string_view kHeaderName = "IHDR";
constexpr std::size_t kNameAt = 12;
constexpr std::size_t kWidthAt = 16;
constexpr std::size_t kHeightAt = 20;
constexpr std::size_t kLeastSize = 24;
constexpr std::uint32_t kMostDots = 10000;

std::uint32_t BigEndian(std::string_view bytes) {
    std::uint32_t number = 0;
    for (const char byte : bytes) number = number << 8U | static_cast<unsigned char>(byte);
    return number;
}

bool IsSide(std::uint32_t dots) { return dots > 0 && dots <= kMostDots; }

}  // namespace

std::optional<PictureSize> PngSize(std::string_view file) {
    if (file.size() < kLeastSize || !file.starts_with(kSignature)) return std::nullopt;
    if (file.substr(kNameAt, kHeaderName.size()) != kHeaderName) return std::nullopt;
    const PictureSize size{BigEndian(file.substr(kWidthAt, 4)), BigEndian(file.substr(kHeightAt, 4))};
    if (!IsSide(size.width) || !IsSide(size.height)) return std::nullopt;
    return size;
}

}  // namespace kelvor

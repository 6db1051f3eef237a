#include "reports/pages/picture_surface.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace kelvor {

namespace {

/// Gives the next bytes of a file in memory; the signature is the library's.
cairo_status_t ReadBytes(void* rest, unsigned char* bytes, unsigned int count) {
    auto& file = *static_cast<std::string_view*>(rest);
    if (file.size() < count) return CAIRO_STATUS_READ_ERROR;
    std::memcpy(bytes, file.data(), count);
    file.remove_prefix(count);
    return CAIRO_STATUS_SUCCESS;
}

}  // namespace

PlacedPicture PlacePicture(const blocks::Picture& picture, const PointSize& room) {
    std::string_view rest = picture.png;
    SharedSurface surface(cairo_image_surface_create_from_png_stream(ReadBytes, &rest), ReleaseSurface());
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return {};
    const double scale =
        std::min({1.0, room.width / picture.widthPoints, room.height / picture.heightPoints});
    return {std::move(surface), picture.widthPoints * scale, picture.heightPoints * scale};
}

}  // namespace kelvor

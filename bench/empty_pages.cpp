#include "empty_pages.h"

#include <cairo-pdf.h>

namespace kelvor::bench {

namespace {

constexpr double kWidth = 612.0;  // of a Letter sheet, in points
constexpr double kHeight = 792.0;

cairo_status_t Append(void* file, const unsigned char* bytes, unsigned int count) {
    static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
}

}  // namespace

std::string WriteEmptyPages(std::size_t count) {
    std::string file;
    cairo_surface_t* surface = cairo_pdf_surface_create_for_stream(Append, &file, kWidth, kHeight);
    cairo_t* painter = cairo_create(surface);
    for (std::size_t page = 0; page < count; ++page) cairo_show_page(painter);
    cairo_destroy(painter);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
    return file;
}

}  // namespace kelvor::bench

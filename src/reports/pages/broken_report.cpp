#include "reports/pages/broken_report.h"

#include <cairo-pdf.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "platform/file_system.h"
#include "reports/pages/page_painter.h"
#include "reports/pages/strip_builder.h"
#include "reports/pages/word_search.h"

namespace kelvor {

namespace {

constexpr double kMostDotsPerPoint = 20.0;

cairo_status_t AppendBytes(void* file, const unsigned char* bytes, unsigned int count) {
    // The bytes of the library are not letters to our strings.
    static_cast<std::string*>(file)->append(bytes, bytes + count);
    return CAIRO_STATUS_SUCCESS;
}

void Require(cairo_status_t status) {
    if (status != CAIRO_STATUS_SUCCESS) throw FileError(cairo_status_to_string(status));
}

double TextHeight(const PageSetup& setup) {
    return setup.Sheet().height - 2.0 * setup.marginPoints - 2.0 * kEdgeRoom;
}

}  // namespace

BrokenReport::BrokenReport(const TypeSetter& setter, const Document& document, const PageSetup& setup)
    : setter_(setter),
      document_(document),
      setup_(setup),
      strips_(BuildStrips(setter, document_, setup)),
      pages_(BreakIntoPages(strips_, TextHeight(setup))) {}

void BrokenReport::Show(cairo_t* painter, std::size_t page) const {
    PaintPage(painter, setter_, document_, setup_, pages_.at(page), {page + 1, pages_.size()});
}

std::string BrokenReport::Pdf() const {
    std::string file;
    const SurfaceHandle surface(
        cairo_pdf_surface_create_for_stream(AppendBytes, &file, Sheet().width, Sheet().height));
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, document_.title.c_str());
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATOR, "Kelvor");
    const PainterHandle painter(cairo_create(surface.get()));
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        Show(painter.get(), i);
        cairo_show_page(painter.get());
    }
    Require(cairo_status(painter.get()));
    cairo_surface_finish(surface.get());
    Require(cairo_surface_status(surface.get()));
    return file;
}

PageImage BrokenReport::Paint(std::size_t page, double dotsPerPoint) const {
    const double scale = std::clamp(dotsPerPoint, 0.01, kMostDotsPerPoint);
    PageImage image;
    image.width = std::max(1, static_cast<int>(std::lround(Sheet().width * scale)));
    image.height = std::max(1, static_cast<int>(std::lround(Sheet().height * scale)));
    const SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, image.width, image.height));
    const PainterHandle painter(cairo_create(surface.get()));
    cairo_set_source_rgb(painter.get(), 1.0, 1.0, 1.0);
    cairo_paint(painter.get());
    cairo_scale(painter.get(), scale, scale);
    Show(painter.get(), page);
    Require(cairo_status(painter.get()));
    cairo_surface_flush(surface.get());
    const auto wide = static_cast<std::size_t>(image.width);
    image.dots.resize(wide * static_cast<std::size_t>(image.height));
    const unsigned char* row = cairo_image_surface_get_data(surface.get());
    for (std::size_t place = 0; place < image.dots.size(); place += wide) {
        std::memcpy(image.dots.data() + place, row, wide * sizeof(std::uint32_t));
        row += cairo_image_surface_get_stride(surface.get());
    }
    return image;
}

std::vector<PageRectangle> BrokenReport::Find(std::size_t page, std::string_view words) const {
    return FindWords(pages_.at(page), words, setup_.marginPoints, setup_.marginPoints + kEdgeRoom);
}

}  // namespace kelvor

// The module that paints drawings as dots.

#include <cmath>
#include <memory>

#include "drawing/paint/scene_canvas.h"
#include "drawing/scene_painter.h"
#include "platform/file_system.h"

namespace kelvor {

namespace {

constexpr double kPointsOfInch = 72.0;

struct ReleaseSurface {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct ReleaseCanvas {
    void operator()(cairo_t* canvas) const { cairo_destroy(canvas); }
};

using SurfaceHandle = std::unique_ptr<cairo_surface_t, ReleaseSurface>;
using CanvasHandle = std::unique_ptr<cairo_t, ReleaseCanvas>;

cairo_status_t AppendBytes(void* file, const unsigned char* bytes, unsigned int count) {
    static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
}

void Check(cairo_status_t status) {
    if (status != CAIRO_STATUS_SUCCESS) throw FileError(cairo_status_to_string(status));
}

class CairoScenePainter : public ScenePainter {
  public:
    [[nodiscard]] std::string Png(const Scene& scene, double dotsOfInch) const override {
        const double scale = dotsOfInch / kPointsOfInch;
        const SurfaceHandle surface(
            cairo_image_surface_create(CAIRO_FORMAT_RGB24, static_cast<int>(std::ceil(scene.width * scale)),
                                       static_cast<int>(std::ceil(scene.height * scale))));
        Check(cairo_surface_status(surface.get()));
        const CanvasHandle canvas(cairo_create(surface.get()));
        cairo_scale(canvas.get(), scale, scale);
        PaintScene(canvas.get(), scene);
        Check(cairo_status(canvas.get()));
        std::string file;
        Check(cairo_surface_write_to_png_stream(surface.get(), AppendBytes, &file));
        return file;
    }
};

}  // namespace

}  // namespace kelvor

/// The entry of the module.
extern "C" __attribute__((visibility("default"))) const kelvor::ScenePainter* KelvorScenePainter(
    int version) {
    static const kelvor::CairoScenePainter painter;
    return version == kelvor::kScenePainterVersion ? &painter : nullptr;
}

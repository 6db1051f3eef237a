#include "drawing/paint/scene_canvas.h"

#include <pango/pangocairo.h>

#include <charconv>
#include <memory>
#include <numbers>

namespace kelvor {

namespace {

constexpr const char* kFamily = "sans-serif";

struct ReleaseObject {
    void operator()(void* object) const { g_object_unref(object); }
};
struct ReleaseFont {
    void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
};

class Canvas {
  public:
    explicit Canvas(cairo_t* canvas) : canvas_(canvas), layout_(pango_cairo_create_layout(canvas)) {}

    void Paint(const shape::Rectangle& rectangle) {
        cairo_rectangle(canvas_, rectangle.corner.x, rectangle.corner.y, rectangle.width, rectangle.height);
        FillAndStroke(rectangle.fill, rectangle.stroke);
    }

    void Paint(const shape::Polygon& polygon) {
        Trace(polygon.corners);
        cairo_close_path(canvas_);
        FillAndStroke(polygon.fill, polygon.stroke);
    }

    void Paint(const shape::Ellipse& ellipse) {
        cairo_save(canvas_);
        cairo_translate(canvas_, ellipse.centre.x, ellipse.centre.y);
        cairo_scale(canvas_, ellipse.radiusX, ellipse.radiusY);
        cairo_new_sub_path(canvas_);
        cairo_arc(canvas_, 0.0, 0.0, 1.0, 0.0, 2.0 * std::numbers::pi);
        cairo_restore(canvas_);
        FillAndStroke(ellipse.fill, ellipse.stroke);
    }

    void Paint(const shape::Line& line) {
        Trace(line.points);
        FillAndStroke({}, line.stroke);
    }

    void Paint(const shape::Text& text) {
        SetFont(text);
        pango_layout_set_text(layout_.get(), text.text.data(), static_cast<int>(text.text.size()));
        int width = 0;
        pango_layout_get_size(layout_.get(), &width, nullptr);
        const double length = static_cast<double>(width) / PANGO_SCALE;
        const double base = static_cast<double>(pango_layout_get_baseline(layout_.get())) / PANGO_SCALE;
        cairo_save(canvas_);
        cairo_translate(canvas_, text.place.x, text.place.y);
        if (text.upright) cairo_rotate(canvas_, -std::numbers::pi / 2.0);
        const double part = text.anchor == shape::Anchor::Start ? 0.0
                            : text.anchor == shape::Anchor::End ? 1.0
                                                                : 0.5;
        cairo_move_to(canvas_, -length * part, -base);
        SetColour(text.colour);
        pango_cairo_show_layout(canvas_, layout_.get());
        cairo_restore(canvas_);
        cairo_new_path(canvas_);
    }

  private:
    void SetFont(const shape::Text& text) {
        const std::unique_ptr<PangoFontDescription, ReleaseFont> font(pango_font_description_new());
        pango_font_description_set_family_static(font.get(), kFamily);
        pango_font_description_set_absolute_size(font.get(), text.size * PANGO_SCALE);
        if (text.bold) pango_font_description_set_weight(font.get(), PANGO_WEIGHT_BOLD);
        pango_layout_set_font_description(layout_.get(), font.get());
    }

    void Trace(const std::vector<Point>& points) {
        for (const Point& point : points) cairo_line_to(canvas_, point.x, point.y);
    }

    /// "#RRGGBB"
    void SetColour(const std::string& colour) {
        unsigned int number = 0;
        if (!colour.empty()) std::from_chars(colour.data() + 1, colour.data() + colour.size(), number, 16);
        const auto part = [&](unsigned int shift) {
            return static_cast<double>(number >> shift & 0xFFU) / 255.0;
        };
        cairo_set_source_rgb(canvas_, part(16), part(8), part(0));
    }

    void FillAndStroke(const std::string& fill, const Stroke& stroke) {
        if (!fill.empty()) {
            SetColour(fill);
            cairo_fill_preserve(canvas_);
        }
        if (!stroke.colour.empty()) {
            SetColour(stroke.colour);
            cairo_set_line_width(canvas_, stroke.width);
            cairo_set_dash(canvas_, &stroke.dash, stroke.dash > 0.0 ? 1 : 0, 0.0);
            cairo_stroke_preserve(canvas_);
        }
        cairo_new_path(canvas_);
    }

    cairo_t* canvas_;
    std::unique_ptr<PangoLayout, ReleaseObject> layout_;
};

}  // namespace

void PaintScene(cairo_t* canvas, const Scene& scene) {
    Canvas painter(canvas);
    painter.Paint(shape::Rectangle{{0.0, 0.0}, scene.width, scene.height, scene.paper});
    for (const Shape& shape : scene.shapes) {
        std::visit([&](const auto& kind) { painter.Paint(kind); }, shape);
    }
}

}  // namespace kelvor

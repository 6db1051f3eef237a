#pragma once

#include <cairo.h>
#include <glib-object.h>
#include <pango/pangocairo.h>

#include <memory>

namespace kelvor {

// What the libraries give, released by itself.

struct ReleaseObject {
    void operator()(void* object) const { g_object_unref(object); }
};
struct ReleaseSurface {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct ReleasePainter {
    void operator()(cairo_t* painter) const { cairo_destroy(painter); }
};
struct ReleaseFont {
    void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
};
struct ReleaseAttributes {
    void operator()(PangoAttrList* attributes) const { pango_attr_list_unref(attributes); }
};
struct ReleaseFontOptions {
    void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};

using ContextHandle = std::unique_ptr<PangoContext, ReleaseObject>;
using FontHandle = std::unique_ptr<PangoFontDescription, ReleaseFont>;
using AttributesHandle = std::unique_ptr<PangoAttrList, ReleaseAttributes>;
using FontOptionsHandle = std::unique_ptr<cairo_font_options_t, ReleaseFontOptions>;
using SurfaceHandle = std::unique_ptr<cairo_surface_t, ReleaseSurface>;
using PainterHandle = std::unique_ptr<cairo_t, ReleasePainter>;

/// Shared by the lines that were broken from it.
using SharedLayout = std::shared_ptr<PangoLayout>;

/// Shared by a page and what it was made from.
using SharedSurface = std::shared_ptr<cairo_surface_t>;

}  // namespace kelvor

#include "reports/pages/page_painter.h"

#include <algorithm>
#include <string>

#include "drawing/paint/scene_canvas.h"
#include "reports/pages/strip_builder.h"

namespace kelvor {

namespace {

constexpr double kRuleWidth = 0.5;
constexpr double kEdgeRuleGrey = 0.6;
constexpr double kEdgeGap = 4.0;

void SetGrey(cairo_t* painter, double grey) { cairo_set_source_rgb(painter, grey, grey, grey); }

void PaintLine(cairo_t* painter, const SetLine& line, double left, double baseline) {
    SetGrey(painter, line.grey);
    cairo_move_to(painter, left, baseline);
    pango_cairo_show_layout_line(painter, pango_layout_get_line_readonly(line.layout.get(), line.number));
}

void PaintRule(cairo_t* painter, const Rule& rule, double left, double top) {
    SetGrey(painter, rule.grey);
    cairo_set_line_width(painter, kRuleWidth);
    cairo_move_to(painter, left + rule.left, top + rule.top);
    cairo_rel_line_to(painter, rule.width, 0.0);
    cairo_stroke(painter);
}

void PaintPicture(cairo_t* painter, const PlacedPicture& picture, double left, double top) {
    cairo_surface_t* surface = picture.surface.get();
    cairo_save(painter);
    cairo_translate(painter, left, top);
    cairo_scale(painter, picture.width / cairo_image_surface_get_width(surface),
                picture.height / cairo_image_surface_get_height(surface));
    cairo_set_source_surface(painter, surface, 0.0, 0.0);
    cairo_paint(painter);
    cairo_restore(painter);
}

void PaintDrawing(cairo_t* painter, const PlacedDrawing& drawing, double share, double left, double top) {
    const double scale = drawing.scale * share;
    cairo_save(painter);
    cairo_translate(painter, left, top);
    cairo_scale(painter, scale, scale);
    PaintScene(painter, *drawing.scene);
    cairo_restore(painter);
}

void PaintStrip(cairo_t* painter, const PlacedStrip& placedStrip, double left, double above) {
    const Strip& strip = *placedStrip.strip;
    const double top = above + placedStrip.top;
    if (strip.picture.surface) PaintPicture(painter, strip.picture, left, top);
    if (strip.drawing.scene != nullptr) PaintDrawing(painter, strip.drawing, placedStrip.share, left, top);
    for (const PlacedLine& placed : strip.lines) {
        PaintLine(painter, placed.line, left + placed.left, top + placed.baseline);
    }
    for (const Rule& rule : strip.rules) PaintRule(painter, rule, left, top);
}

/// Paints the three parts of a head or foot on one base line; each has a third of the width, a long one the
/// room that the others leave.
void PaintEdge(cairo_t* painter, const TypeSetter& setter, const PageEdge& edge, const PageSetup& setup,
               double baseline) {
    const double width = setup.TextWidth();
    const double left = setup.marginPoints;
    const double third = width / 3.0 - kEdgeGap;
    const double outer = edge.middle.empty() ? width / 2.0 - kEdgeGap : third;
    const SetLine right = setter.SetOne(edge.right, styles::kEdge, outer);
    PaintLine(painter, setter.SetOne(edge.left, styles::kEdge, outer), left, baseline);
    PaintLine(painter, right, left + width - right.width, baseline);
    const SetLine middle = setter.SetOne(edge.middle, styles::kEdge, third);
    PaintLine(painter, middle, left + (width - middle.width) / 2.0, baseline);
}

/// The foot of a page: its number stands at the right.
PageEdge Foot(const PageEdge& foot, const PageNumber& page) {
    PageEdge edge = foot;
    if (!edge.right.empty()) edge.right += "   ";
    edge.right += "Page " + std::to_string(page.number) + " of " + std::to_string(page.count);
    return edge;
}

}  // namespace

void PaintPage(cairo_t* painter, const TypeSetter& setter, const Document& document, const PageSetup& setup,
               const Page& page, const PageNumber& number) {
    const double left = setup.marginPoints;
    const double top = setup.marginPoints;
    const double bottom = setup.Sheet().height - setup.marginPoints;
    const double width = setup.TextWidth();
    if (!document.head.IsEmpty()) {
        PaintEdge(painter, setter, document.head, setup, top + styles::kEdge.size);
        PaintRule(painter, {0.0, width, styles::kEdge.size + kEdgeGap, kEdgeRuleGrey}, left, top);
    }
    for (const PlacedStrip& placed : page) PaintStrip(painter, placed, left, top + kEdgeRoom);
    PaintEdge(painter, setter, Foot(document.foot, number), setup, bottom);
    PaintRule(painter, {0.0, width, -styles::kEdge.size - kEdgeGap, kEdgeRuleGrey}, left, bottom);
}

}  // namespace kelvor

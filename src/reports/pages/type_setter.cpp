#include "reports/pages/type_setter.h"

#include <algorithm>

namespace kelvor {

namespace {

/// The first of these that a machine has; the last is always there.
constexpr const char* kFamilies = "DejaVu Sans,Liberation Sans,Noto Sans,Arial,sans-serif";

/// Points, as pages are measured.
constexpr double kDotsPerInch = 72.0;

double Points(int units) { return static_cast<double>(units) / PANGO_SCALE; }
int Units(double points) { return static_cast<int>(points * PANGO_SCALE); }

PangoContext* MakeContext() {
    // The font map of the thread is kept by the library: to find the fonts anew for each report takes long.
    PangoFontMap* fonts = pango_cairo_font_map_get_default();
    PangoContext* context = pango_font_map_create_context(fonts);
    const FontOptionsHandle options(cairo_font_options_create());
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    pango_cairo_context_set_font_options(context, options.get());
    pango_cairo_context_set_resolution(context, kDotsPerInch);
    pango_context_set_round_glyph_positions(context, FALSE);
    return context;
}

SetLine LineOf(const SharedLayout& layout, int number, double grey) {
    PangoRectangle ink;
    PangoRectangle logical;
    pango_layout_line_get_extents(pango_layout_get_line_readonly(layout.get(), number), &ink, &logical);
    return {layout, number, Points(logical.width), Points(PANGO_ASCENT(logical)), Points(logical.height),
            grey};
}

double WidthOf(const SharedLayout& layout) {
    int width = 0;
    int height = 0;
    pango_layout_get_size(layout.get(), &width, &height);
    return Points(width);
}

}  // namespace

TypeSetter::TypeSetter() : context_(MakeContext()) {}

SharedLayout TypeSetter::Lay(std::string_view text, const TextStyle& style) const {
    SharedLayout layout(pango_layout_new(context_.get()), ReleaseObject());
    const FontHandle font(pango_font_description_from_string(kFamilies));
    pango_font_description_set_size(font.get(), Units(style.size));
    if (style.bold) pango_font_description_set_weight(font.get(), PANGO_WEIGHT_BOLD);
    pango_layout_set_font_description(layout.get(), font.get());
    const AttributesHandle attributes(pango_attr_list_new());
    pango_attr_list_insert(attributes.get(), pango_attr_font_features_new("liga=0, clig=0, dlig=0, calt=0"));
    // A word that is parted by the end of a line gets no hyphen, which would not be its own.
    pango_attr_list_insert(attributes.get(), pango_attr_insert_hyphens_new(FALSE));
    pango_layout_set_attributes(layout.get(), attributes.get());
    pango_layout_set_auto_dir(layout.get(), FALSE);
    pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));
    return layout;
}

std::vector<SetLine> TypeSetter::Set(std::string_view text, const TextStyle& style, double width) const {
    const SharedLayout layout = Lay(text, style);
    pango_layout_set_width(layout.get(), Units(width));
    pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
    std::vector<SetLine> lines;
    const int count = pango_layout_get_line_count(layout.get());
    for (int i = 0; i < count; ++i) lines.push_back(LineOf(layout, i, style.grey));
    return lines;
}

SetLine TypeSetter::SetOne(std::string_view text, const TextStyle& style, double width) const {
    std::string joined(text);
    std::replace(joined.begin(), joined.end(), '\n', ' ');
    const SharedLayout layout = Lay(joined, style);
    pango_layout_set_width(layout.get(), Units(width));
    pango_layout_set_ellipsize(layout.get(), PANGO_ELLIPSIZE_END);
    return LineOf(layout, 0, style.grey);
}

double TypeSetter::Natural(std::string_view text, const TextStyle& style) const {
    return WidthOf(Lay(text, style));
}

double TypeSetter::WidestWord(std::string_view text, const TextStyle& style) const {
    std::string words(text);
    std::replace(words.begin(), words.end(), ' ', '\n');
    return Natural(words, style);
}

std::string_view LettersOf(const SetLine& line) {
    const PangoLayoutLine* set = pango_layout_get_line_readonly(line.layout.get(), line.number);
    return {pango_layout_get_text(line.layout.get()) + set->start_index,
            static_cast<std::size_t>(set->length)};
}

double PlaceOf(const SetLine& line, std::size_t letter) {
    PangoLayoutLine* set = pango_layout_get_line_readonly(line.layout.get(), line.number);
    int place = 0;
    pango_layout_line_index_to_x(set, set->start_index + static_cast<int>(letter), FALSE, &place);
    return Points(place);
}

}  // namespace kelvor

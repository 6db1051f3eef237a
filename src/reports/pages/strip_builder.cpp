#include "reports/pages/strip_builder.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "reports/pages/picture_surface.h"
#include "reports/pages/row_strips.h"
#include "reports/pages/table_strips.h"

namespace kelvor {

namespace {

struct HeadingStyle {
    TextStyle text;
    double above;
    double below;
};

constexpr std::array<HeadingStyle, 3> kHeadings = {HeadingStyle{{15.0, true}, 6.0, 4.0},
                                                   HeadingStyle{{11.0, true}, 10.0, 2.5},
                                                   HeadingStyle{{9.0, true}, 8.0, 2.0}};
constexpr double kParagraphSpace = 4.0;
constexpr double kPictureSpace = 8.0;

// Where the columns of a list begin and end, of the width of the text. Texts begin behind the widest label,
// but not nearer than in other lists.
constexpr double kTextBegin = 0.24;
constexpr double kTextBeginMost = 0.5;
constexpr double kTextGap = 12.0;  // points
constexpr double kNumberBegin = 0.45;
constexpr double kNumberEnd = 0.62;
constexpr double kUnitBegin = 0.64;
constexpr double kBelowListRow = 1.0;  // points

/// Sets each kind of block.
class Builder {
  public:
    Builder(const TypeSetter& setter, const PageSetup& setup)
        : setter_(setter),
          width_(setup.TextWidth()),
          height_(setup.Sheet().height - 2.0 * setup.marginPoints) {}

    void operator()(const blocks::Heading& heading) {
        const auto level = static_cast<std::size_t>(std::clamp(heading.level, 1, 3)) - 1;
        const HeadingStyle& style = kHeadings[level];
        std::vector<Strip> strips = RowStrips({{setter_.Set(heading.text, style.text, width_), 0.0, width_}});
        Pad(strips, 0.0, style.below);
        for (Strip& strip : strips) strip.keepWithNext = true;
        Append(std::move(strips), style.above);
    }

    void operator()(const blocks::Paragraph& paragraph) {
        Append(RowStrips({{setter_.Set(paragraph.text, styles::kText, width_), 0.0, width_}}),
               kParagraphSpace);
    }

    void operator()(const blocks::ValueList& list) {
        const bool numbers = list.alignment == Alignment::Right;
        const double begin = numbers ? width_ * kNumberBegin : TextBegin(list);
        for (const blocks::ValueList::Row& row : list.rows) {
            std::vector<Strip> strips = RowStrips(numbers ? NumberCells(row, begin) : TextCells(row, begin));
            Pad(strips, 0.0, kBelowListRow);
            Append(std::move(strips), 0.0);
        }
    }

    void operator()(const blocks::Table& table) {
        Append(TableStrips(setter_, table, width_, height_), kParagraphSpace);
    }

    void operator()(const blocks::Picture& picture) {
        PlacedPicture placed = PlacePicture(picture, {width_, height_ / 2.0});
        if (!placed.surface) return (*this)(blocks::Paragraph{picture.words});
        Strip strip;
        strip.height = placed.height;
        strip.picture = std::move(placed);
        Append({std::move(strip)}, kPictureSpace);
    }

    void operator()(const blocks::Drawing& drawing) {
        const Scene& scene = drawing.scene;
        const double scale = std::min({1.0, width_ / scene.width, height_ / 2.0 / scene.height});
        Strip strip;
        strip.height = scene.height * scale;
        strip.drawing = {&scene, scale};
        Append({std::move(strip)}, kPictureSpace);
    }

    std::vector<Strip> Take() { return std::move(strips_); }

  private:
    [[nodiscard]] double TextBegin(const blocks::ValueList& list) const {
        double begin = width_ * kTextBegin;
        for (const blocks::ValueList::Row& row : list.rows) {
            begin = std::max(begin, setter_.Natural(row.label, styles::kLabel) + kTextGap);
        }
        return std::min(begin, width_ * kTextBeginMost);
    }

    /// A text between two edges.
    [[nodiscard]] RowCell Cell(std::string_view text, const TextStyle& style, double left,
                               double right) const {
        return {setter_.Set(text, style, right - left), left, right - left};
    }

    [[nodiscard]] std::vector<RowCell> TextCells(const blocks::ValueList::Row& row, double begin) const {
        const std::string both = row.unit.empty() ? row.value : row.value + " " + row.unit;
        return {Cell(row.label, styles::kLabel, 0.0, begin - kTextGap),
                Cell(both, styles::kText, begin, width_)};
    }

    [[nodiscard]] std::vector<RowCell> NumberCells(const blocks::ValueList::Row& row, double begin) const {
        std::vector<RowCell> cells = {Cell(row.label, styles::kLabel, 0.0, begin),
                                      Cell(row.value, styles::kText, begin, width_ * kNumberEnd),
                                      Cell(row.unit, styles::kLabel, width_ * kUnitBegin, width_)};
        cells[1].alignment = Alignment::Right;
        return cells;
    }

    void Append(std::vector<Strip> strips, double space) {
        if (strips.empty()) return;
        strips.front().spaceBefore = space;
        std::move(strips.begin(), strips.end(), std::back_inserter(strips_));
    }

    const TypeSetter& setter_;
    double width_;
    double height_;
    std::vector<Strip> strips_;
};

}  // namespace

std::vector<Strip> BuildStrips(const TypeSetter& setter, const Document& document, const PageSetup& setup) {
    Builder builder(setter, setup);
    for (const Block& block : document.blocks) std::visit(builder, block);
    return builder.Take();
}

}  // namespace kelvor

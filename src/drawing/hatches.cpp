#include "drawing/hatches.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr double kThinnestMarked = 2.5;  // points; a layer below that has no marks
constexpr double kUsualHeight = 16.0;    // of a layer whose marks have their usual size
constexpr double kMarkLine = 0.6;
constexpr double kMargin = 0.5;  // that marks keep from the edge

/// The same numbers in every drawing of the same layer, between 0 and 1.
class Chance {
  public:
    double Next() {
        state_ = state_ * 1664525U + 1013904223U;  // Press et al., Numerical Recipes, 7.1
        return static_cast<double>(state_ >> 8U) / static_cast<double>(1U << 24U);
    }

    double Between(double least, double most) { return least + (most - least) * Next(); }

  private:
    std::uint32_t state_ = 1993;
};

/// The place of a layer, and its marks.
class Marks {
  public:
    Marks(Scene& scene, const shape::Rectangle& place, std::string ink)
        : scene_(scene),
          left_(place.corner.x + kMargin),
          right_(place.corner.x + place.width - kMargin),
          top_(place.corner.y + kMargin),
          bottom_(place.corner.y + place.height - kMargin),
          scale_(std::min(1.0, place.height / kUsualHeight)),
          stroke_{std::move(ink), kMarkLine * std::max(0.5, scale_)} {}

    /// Dots, and among them the outlines of coarse aggregate.
    void DrawAggregate() {
        OverCells(7.0, [&](Point at) {
            if (chance_.Next() < 0.16) return DrawStone(at, 2.4 * scale_, 3);
            const double radius = chance_.Between(0.4, 0.75) * scale_;
            Put(shape::Ellipse{at, radius, radius, stroke_.colour}, at, radius);
        });
    }

    /// Round stones beside each other.
    void DrawStones() {
        OverCells(8.0, [&](Point at) { DrawStone(at, chance_.Between(2.0, 3.2) * scale_, 6); });
    }

    /// Lines that lean: to the right, to the left, or both.
    void DrawRules(double apart, bool right, bool left) {
        const double height = bottom_ - top_;
        for (double x = left_ - height; x < right_; x += apart * scale_) {
            if (right) DrawRule(x, false);
            if (left) DrawRule(x, true);
        }
    }

    /// Groups of three strokes that lean to either side in turn.
    void DrawEarth() {
        const double size = 7.0 * scale_;
        bool left = false;
        for (double y = top_; y + size <= bottom_; y += 2.0 * size) {
            bool leansLeft = std::exchange(left, !left);
            for (double x = left_ + size; x + 2.0 * size <= right_; x += 2.4 * size) {
                for (int i = 0; i < 3; ++i) DrawStroke({x + size * 0.4 * i, y}, size, leansLeft);
                leansLeft = !leansLeft;
            }
        }
    }

  private:
    /// Visits places in rows, each moved a little by chance.
    template <typename Visit>
    void OverCells(double size, Visit visit) {
        const double step = size * scale_;
        const double shift = step * 0.25;
        bool odd = false;
        for (double y = top_ + step / 2.0; y <= bottom_; y += step) {
            const double start = left_ + (odd ? step : step / 2.0);
            odd = !odd;
            for (double x = start; x <= right_; x += step) {
                visit(Point{x + chance_.Between(-shift, shift), y + chance_.Between(-shift, shift)});
            }
        }
    }

    void DrawStone(Point centre, double radius, int corners) {
        // The corners of a hexagon and of a triangle about a centre.
        constexpr std::array<Point, 6> kHexagon = {Point{1.0, 0.0}, {0.5, 0.87},   {-0.5, 0.87},
                                                   {-1.0, 0.0},     {-0.5, -0.87}, {0.5, -0.87}};
        shape::Polygon stone{{}, {}, stroke_};
        const std::size_t step = kHexagon.size() / static_cast<std::size_t>(corners);
        for (std::size_t i = 0; i < kHexagon.size(); i += step) {
            const double reach = radius * chance_.Between(0.75, 1.0);
            stone.corners.push_back({centre.x + kHexagon[i].x * reach, centre.y + kHexagon[i].y * reach});
        }
        Put(std::move(stone), centre, radius);
    }

    /// One line from the bottom up over the whole height, as far as it lies within the sides.
    void DrawRule(double bottomX, bool leansLeft) {
        const double height = bottom_ - top_;
        const double from = std::max(bottomX, left_);
        const double to = std::min(bottomX + height, right_);
        if (to <= from) return;
        const double rise = from - bottomX;
        const double fullRise = to - bottomX;
        const Point first{from, leansLeft ? top_ + rise : bottom_ - rise};
        const Point last{to, leansLeft ? top_ + fullRise : bottom_ - fullRise};
        scene_.shapes.emplace_back(shape::Line{{first, last}, stroke_});
    }

    void DrawStroke(Point top, double size, bool leansLeft) {
        const Point low{top.x, top.y + size};
        const Point high{leansLeft ? top.x - size * 0.7 : top.x + size * 0.7, top.y};
        scene_.shapes.emplace_back(shape::Line{{low, high}, stroke_});
    }

    /// Draws a mark unless it would reach out.
    template <typename Mark>
    void Put(Mark mark, Point centre, double radius) {
        const bool inside = centre.x - radius >= left_ && centre.x + radius <= right_ &&
                            centre.y - radius >= top_ && centre.y + radius <= bottom_;
        if (inside) scene_.shapes.emplace_back(std::move(mark));
    }

    Scene& scene_;
    double left_;
    double right_;
    double top_;
    double bottom_;
    double scale_;
    Stroke stroke_;
    Chance chance_;
};

void DrawMarks(Scene& scene, const shape::Rectangle& place, Material material) {
    Marks marks(scene, place, "#202020");
    switch (material) {
        case Material::Asphalt:
            return;
        case Material::Concrete:
            return marks.DrawAggregate();
        case Material::Treated:
            return marks.DrawRules(6.0, true, false);
        case Material::Granular:
            return marks.DrawStones();
        case Material::Interlayer:
            return marks.DrawRules(5.0, true, true);
        case Material::Subgrade:
            return marks.DrawEarth();
        case Material::Other:
            return marks.DrawRules(9.0, false, true);
    }
}

}  // namespace

std::string NameOf(Material material) {
    switch (material) {
        case Material::Asphalt:
            return Translated("Asphalt");
        case Material::Concrete:
            return Translated("Concrete");
        case Material::Treated:
            return Translated("Treated base");
        case Material::Granular:
            return Translated("Granular base");
        case Material::Interlayer:
            return Translated("Interlayer");
        case Material::Subgrade:
            return Translated("Subgrade");
        case Material::Other:
            break;
    }
    return Translated("Other material");
}

void DrawHatched(Scene& scene, const shape::Rectangle& place, Material material) {
    scene.shapes.emplace_back(place);
    if (place.height >= kThinnestMarked) DrawMarks(scene, place, material);
}

}  // namespace kelvor

#include "reports/pages/page_breaker.h"

#include <algorithm>
#include <cstddef>

namespace kelvor {

namespace {

/// Of a drawing's size; what is smaller has letters that tire the eye.
constexpr double kLeastShare = 0.7;

double LeastHeight(const Strip& strip) {
    return strip.drawing.scene == nullptr ? strip.height : strip.height * kLeastShare;
}

class Breaker {
  public:
    Breaker(const std::vector<Strip>& strips, double height) : strips_(strips), height_(height) {}

    std::vector<Page> Break() {
        pages_.emplace_back();
        for (std::size_t first = 0; first < strips_.size();) {
            const std::size_t end = EndOfGroup(first);
            PlaceGroup(first, end);
            first = end;
        }
        return std::move(pages_);
    }

  private:
    /// The strip behind those that are kept together with one.
    [[nodiscard]] std::size_t EndOfGroup(std::size_t first) const {
        std::size_t last = first;
        while (last + 1 < strips_.size() && strips_[last].keepWithNext) ++last;
        return last + 1;
    }

    [[nodiscard]] double LeastHeightOf(std::size_t first, std::size_t end) const {
        double height = 0.0;
        for (std::size_t i = first; i < end; ++i) {
            height += LeastHeight(strips_[i]) + (i == first ? 0.0 : strips_[i].spaceBefore);
        }
        return height;
    }

    [[nodiscard]] static double HeightOfHeadings(const Strip& strip) {
        double height = 0.0;
        if (strip.headings) {
            for (const Strip& heading : *strip.headings) height += heading.height;
        }
        return height;
    }

    void PlaceGroup(std::size_t first, std::size_t end) {
        const double height = LeastHeightOf(first, end);
        const bool fitsHere = top_ + Space(strips_[first]) + height <= height_;
        const bool fitsAnywhere = HeightOfHeadings(strips_[first]) + height <= height_;
        if (!fitsHere && fitsAnywhere) BeginPage(strips_[first]);
        for (std::size_t i = first; i < end; ++i) {
            if (top_ + Space(strips_[i]) + LeastHeight(strips_[i]) > height_) BeginPage(strips_[i]);
            Place(strips_[i]);
        }
    }

    /// The space above a strip where it would stand now.
    [[nodiscard]] double Space(const Strip& strip) const {
        return pages_.back().empty() ? 0.0 : strip.spaceBefore;
    }

    void BeginPage(const Strip& next) {
        if (pages_.back().empty()) return;
        pages_.emplace_back();
        top_ = 0.0;
        if (!next.headings) return;
        for (const Strip& heading : *next.headings) Place(heading);
    }

    void Place(const Strip& strip) {
        top_ += Space(strip);
        const bool isDrawing = strip.drawing.scene != nullptr;
        const double share = isDrawing ? std::min(1.0, (height_ - top_) / strip.height) : 1.0;
        pages_.back().push_back({&strip, top_, share});
        top_ += strip.height * share;
    }

    const std::vector<Strip>& strips_;
    double height_;
    double top_ = 0.0;
    std::vector<Page> pages_;
};

}  // namespace

std::vector<Page> BreakIntoPages(const std::vector<Strip>& strips, double height) {
    return Breaker(strips, height).Break();
}

}  // namespace kelvor

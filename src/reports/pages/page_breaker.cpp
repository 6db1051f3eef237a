#include "reports/pages/page_breaker.h"

#include <cstddef>

namespace kelvor {

namespace {

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

    [[nodiscard]] double HeightOf(std::size_t first, std::size_t end) const {
        double height = 0.0;
        for (std::size_t i = first; i < end; ++i) {
            height += strips_[i].height + (i == first ? 0.0 : strips_[i].spaceBefore);
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
        const double height = HeightOf(first, end);
        const bool fitsHere = top_ + Space(strips_[first]) + height <= height_;
        const bool fitsAnywhere = HeightOfHeadings(strips_[first]) + height <= height_;
        if (!fitsHere && fitsAnywhere) BeginPage(strips_[first]);
        for (std::size_t i = first; i < end; ++i) {
            if (top_ + Space(strips_[i]) + strips_[i].height > height_) BeginPage(strips_[i]);
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
        pages_.back().push_back({&strip, top_});
        top_ += strip.height;
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

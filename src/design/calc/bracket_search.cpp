#include "design/calc/bracket_search.h"

#include <optional>

namespace kelvor {

namespace {

/// A thickness or structural number, and the traffic it carries.
struct Point {
    Real x;
    Real traffic;

    friend bool operator==(const Point&, const Point&) = default;
};

class BracketSearch {
  public:
    BracketSearch(const SearchProblem& problem, Clock& clock) : problem_(problem), clock_(clock) {}

    SearchResult Run() {
        low_.x = problem_.low;
        high_.x = problem_.high;
        Evaluate(low_);
        Evaluate(high_);
        const double start = clock_.SteadySeconds();
        for (;;) {
            const Point lowBefore = low_;
            const Point highBefore = high_;
            if (const auto result = Pass()) return *result;
            if (clock_.SteadySeconds() - start > kSearchSeconds) return {};
            if (low_ == lowBefore && high_ == highBefore) return {};
        }
    }

  private:
    void Evaluate(Point& point) { problem_.traffic(point.x, point.traffic); }

    [[nodiscard]] bool Meets(const Point& point) const {
        return Abs(problem_.target - point.traffic) < problem_.target / 1000.0;
    }

    /// The end of the search, if this pass brought it.
    std::optional<SearchResult> Pass() {
        middle_.x = (high_.x + low_.x) / 2.0;
        Evaluate(middle_);
        if (problem_.target < low_.traffic) {
            if (!problem_.lowers) return SearchResult{SearchEnd::BelowBracket, {}};
            low_.x = low_.x / 2.0;
            Evaluate(low_);
        } else if (problem_.target > high_.traffic) {
            high_.x = high_.x + 1.0;
            Evaluate(high_);
        } else if (problem_.target > low_.traffic && problem_.target <= middle_.traffic) {
            if (Meets(low_)) return SearchResult{SearchEnd::Found, low_.x};
            if (Meets(middle_)) return SearchResult{SearchEnd::Found, middle_.x};
            high_ = middle_;
        } else if (problem_.target > middle_.traffic && problem_.target <= high_.traffic) {
            if (Meets(middle_)) return SearchResult{SearchEnd::Found, middle_.x};
            if (Meets(high_)) return SearchResult{SearchEnd::Found, high_.x};
            low_ = middle_;
        }
        return std::nullopt;
    }

    const SearchProblem& problem_;
    Clock& clock_;
    Point low_;
    Point high_;
    Point middle_;
};

}  // namespace

SearchResult SearchBracket(const SearchProblem& problem, Clock& clock) {
    return BracketSearch(problem, clock).Run();
}

}  // namespace kelvor

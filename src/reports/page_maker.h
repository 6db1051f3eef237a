#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "reports/document/document.h"
#include "reports/document/page_setup.h"

namespace kelvor {

/// A picture of a page: rows of dots from the top, 0xAARRGGBB each, opaque.
struct PageImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> dots;
};

/// A place on a page, in points from its upper left corner.
struct PageRectangle {
    double left = 0.0;
    double top = 0.0;
    double width = 0.0;
    double height = 0.0;
};

/// A report broken into pages, which look the same in a file, on the screen and on paper. Pages count from 0.
class PagedReport {
  public:
    PagedReport() = default;
    PagedReport(const PagedReport&) = delete;
    PagedReport& operator=(const PagedReport&) = delete;
    virtual ~PagedReport() = default;

    [[nodiscard]] virtual std::size_t Count() const = 0;
    [[nodiscard]] virtual PointSize Sheet() const = 0;

    /// A PDF file of all pages, whose text can be searched and copied. Throws FileError.
    [[nodiscard]] virtual std::string Pdf() const = 0;

    /// A picture of a page, so many dots for a point, that is 1/72 in; more than 20 count as 20. Throws
    /// FileError.
    [[nodiscard]] virtual PageImage Paint(std::size_t page, double dotsPerPoint) const = 0;

    /// Where words stand on a page, without regard to case; none for an empty text. Words that a line break
    /// parts are not found.
    [[nodiscard]] virtual std::vector<PageRectangle> Find(std::size_t page, std::string_view words) const = 0;
};

/// Breaks reports into pages. It lives in a module of its own, as it needs libraries that take long to load.
class PageMaker {
  public:
    PageMaker() = default;
    PageMaker(const PageMaker&) = delete;
    PageMaker& operator=(const PageMaker&) = delete;
    virtual ~PageMaker() = default;

    [[nodiscard]] virtual std::unique_ptr<PagedReport> Break(const Document& document,
                                                             const PageSetup& setup) const = 0;
};

/// What the module gives. `version` is kPageMakerVersion of the caller; null if the module has another one.
using PageMakerEntry = const PageMaker* (*)(int version);
inline constexpr const char* kPageMakerEntryName = "KelvorPageMaker";
inline constexpr int kPageMakerVersion = 1;

/// The page maker, loaded at the first call: the module kelvor-pages.so beside the executable or in the
/// folder `lib/kelvor` beside the executable's. Throws FileError with the reason if there is none.
const PageMaker& LoadPageMaker();

}  // namespace kelvor

#pragma once

#include <vector>

#include "reports/page_maker.h"
#include "reports/pages/page_breaker.h"
#include "reports/pages/type_setter.h"

namespace kelvor {

/// A report, broken into pages for good; it needs the type setter as long as it lives.
class BrokenReport : public PagedReport {
  public:
    BrokenReport(const TypeSetter& setter, const Document& document, const PageSetup& setup);

    [[nodiscard]] std::size_t Count() const override { return pages_.size(); }
    [[nodiscard]] PointSize Sheet() const override { return setup_.Sheet(); }
    [[nodiscard]] std::string Pdf() const override;
    [[nodiscard]] PageImage Paint(std::size_t page, double dotsPerPoint) const override;
    [[nodiscard]] std::vector<PageRectangle> Find(std::size_t page, std::string_view words) const override;

  private:
    void Show(cairo_t* painter, std::size_t page) const;

    const TypeSetter& setter_;
    Document document_;
    PageSetup setup_;
    std::vector<Strip> strips_;
    std::vector<Page> pages_;  // point to the strips
};

}  // namespace kelvor

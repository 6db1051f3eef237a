#pragma once

#include <QCache>
#include <QImage>
#include <QWidget>
#include <memory>
#include <vector>

#include "reports/page_maker.h"

namespace kelvor {

/// A place on one of the pages of a report, where searched words stand.
struct PageHit {
    std::size_t page = 0;
    PageRectangle place;
};

/// All pages of a report below one another, as they will be on paper. A page is painted when it is first
/// seen.
class PageSheet : public QWidget {
  public:
    explicit PageSheet(QWidget* parent);

    void SetPages(std::unique_ptr<PagedReport> pages);
    [[nodiscard]] const PagedReport* pages() const { return pages_.get(); }

    /// How many of the screen's dots a point is wide, that is 1/72 in.
    void SetScale(double dotsPerPoint);
    [[nodiscard]] double scale() const { return scale_; }

    /// Marks what was found; the current one stands out.
    void SetHits(std::vector<PageHit> hits);
    void SetCurrentHit(std::size_t hit);

    /// Where a page lies on the sheet, without the room around it.
    [[nodiscard]] QRect PageAt(std::size_t page) const;
    [[nodiscard]] QRect PlaceOf(const PageHit& hit) const;

    /// The page that most of a part of the sheet shows.
    [[nodiscard]] std::size_t PageIn(const QRect& part) const;

    /// The room beside and between the pages, dots.
    static constexpr int kRoom = 12;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Resize();
    const QImage& ImageOf(std::size_t page);
    void PaintPage(QPainter& painter, std::size_t page);

    std::unique_ptr<PagedReport> pages_;
    double scale_ = 1.0;
    std::vector<PageHit> hits_;
    std::size_t currentHit_ = 0;
    QCache<std::size_t, QImage> images_;
    double imageScale_ = 0.0;  // of the images that are kept
};

}  // namespace kelvor

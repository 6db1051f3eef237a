#pragma once

#include <QScrollArea>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "desktop/preview/page_sheet.h"

namespace kelvor {

/// The pages of a report in a window that scrolls, made larger and smaller, and searched.
class PageBrowser : public QScrollArea {
  public:
    explicit PageBrowser(QWidget* parent);

    void SetPages(std::unique_ptr<PagedReport> pages);
    [[nodiscard]] std::size_t Count() const;

    // --- Size ----------------------------------------------------------------------------------

    /// As wide as the window, also when that changes.
    void FitWidth();
    /// Per cent of the size on paper.
    void SetZoom(int percent);
    /// To the next size above or below, of those that make sense.
    void StepZoom(int direction);
    [[nodiscard]] int zoom() const;
    [[nodiscard]] bool fitsWidth() const { return fitsWidth_; }

    // --- Place ---------------------------------------------------------------------------------

    /// Shows the head of a page; one that is not there counts as the nearest.
    void GoTo(int page);
    [[nodiscard]] int page() const;

    // --- Search --------------------------------------------------------------------------------

    /// Marks all places of words and goes to the first one from the current page on. The number of places.
    std::size_t Search(std::string_view words);
    /// Goes to the next place, or with -1 to the one before; behind the last comes the first.
    void StepHit(int direction);
    /// Which place is the current one, from 1; 0 if there is none.
    [[nodiscard]] std::size_t hit() const;

    /// Told when the current page or the size is another one.
    std::function<void()> onMoved = [] {};

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void Scale(double dotsPerPoint);
    void ShowHit();
    [[nodiscard]] double DotsPerPoint(int percent) const;

    PageSheet* sheet_;
    bool fitsWidth_ = true;
    std::vector<PageHit> hits_;
    std::size_t current_ = 0;
};

}  // namespace kelvor
